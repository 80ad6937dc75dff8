#include "tests/support/TextTable.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QRegularExpression>

namespace {

// What the function gives, or "throws" and the message.
QString Outcome(const TTextFunction& function, const QStringList& arguments) {
    try {
        return function(arguments);
    } catch (const std::exception& e) {
        return "throws " + QString::fromUtf8(e.what());
    }
}

bool Agrees(const QString& outcome, const QString& expected) {
    return outcome == expected || (expected == "throws" && outcome.startsWith("throws "));
}

void CheckLine(const QByteArray& path, int number, const QString& line,
               const std::map<QString, TTextFunction>& functions) {
    static const QRegularExpression form("^(\\w+)\\((.*?)\\) =(?: (.*))?$");
    const QRegularExpressionMatch parts = form.match(line);
    const auto function = functions.find(parts.captured(1));
    if (function == functions.end()) {
        ADD_FAILURE_AT(path, number) << "no such function: " << qPrintable(line);
        return;
    }
    QStringList arguments = parts.captured(2).split('|');
    for (QString& argument : arguments) argument = Unescaped(argument);
    const QString outcome = Outcome(function->second, arguments);
    if (Agrees(outcome, Unescaped(parts.captured(3)))) return;
    ADD_FAILURE_AT(path, number) << qPrintable(line) << "\ngave: [" << qPrintable(outcome) << ']';
}

}  // namespace

void CheckTextTable(const QString& path, const std::map<QString, TTextFunction>& functions) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    int number = 0;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        ++number;
        if (!line.isEmpty() && !line.startsWith("##")) CheckLine(path.toUtf8(), number, line, functions);
    }
}

QString Unescaped(const QString& text) {
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar next = i + 1 < text.size() ? text[i + 1] : QChar();
        if (text[i] != '\\' || !QString("rntpu\\").contains(next)) {
            result += text[i];
        } else if (next == 'u') {
            result += QChar(text.mid(i + 2, 4).toUShort(nullptr, 16));
            i += 5;
        } else {
            result += QString("\r\n\t|\\")[QString("rntp\\").indexOf(next)];
            ++i;
        }
    }
    return result;
}
