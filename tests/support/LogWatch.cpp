#include "tests/support/LogWatch.h"

#include <gtest/gtest.h>
#include <QStringList>

namespace {

QStringList expected;
QStringList tolerated;
QStringList unexpected;

bool TakeExpected(const QString& text) {
    for (int i = 0; i < expected.size(); ++i) {
        if (text.contains(expected[i])) {
            expected.removeAt(i);
            return true;
        }
    }
    return false;
}

bool IsTolerated(const QString& text) {
    return std::any_of(tolerated.begin(), tolerated.end(),
                       [&](const QString& part) { return text.contains(part); });
}

void Hear(QtMsgType type, const QMessageLogContext&, const QString& text) {
    fprintf(stderr, "%s\n", qPrintable(text));
    if (type == QtDebugMsg || type == QtInfoMsg || IsTolerated(text) || TakeExpected(text)) return;
    unexpected << text;
}

class Watch : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo&) override {
        expected.clear();
        unexpected.clear();
    }
    void OnTestEnd(const ::testing::TestInfo&) override {
        for (const QString& text : unexpected)
            ADD_FAILURE() << "unannounced in the log: " << qPrintable(text);
        for (const QString& text : expected)
            ADD_FAILURE() << "announced but never logged: " << qPrintable(text);
    }
};

}  // namespace

void LogWatch::Install() {
    qInstallMessageHandler(Hear);
    ::testing::UnitTest::GetInstance()->listeners().Append(new Watch);
}

void LogWatch::Expect(const QString& part) {
    expected << part;
}

void LogWatch::Tolerate(const QString& part) {
    tolerated << part;
}
