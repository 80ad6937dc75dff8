// The examples of docs/utils.md, and that no function is missing there.
#include <QBuffer>
#include <QDir>
#include <QRegularExpression>

#include "platform/rtl/Exceptions.h"
#include "tests/utils/manual/Manual.h"
#include "utils/MD5.h"
#include "utils/UImpParticipante.h"

#include "Manual.inc"

TEST_F(Manual, NamesEveryFunction) {
    const QString manual = QString::fromUtf8(ReadWholeFile(MANUAL));
    static const QRegularExpression declared(u"^[A-Za-z][\\w:<>&* ]*?\\b([A-Z]\\w+)\\("_s,
                                             QRegularExpression::MultilineOption);
    QStringList headers{QStringLiteral(UTILS "/MD5.h"), QStringLiteral(UTILS "/UImpParticipante.h")};
    for (const QFileInfo& header : QDir(QStringLiteral(UTILS "/funcoes")).entryInfoList({u"*.h"_s}))
        headers << header.filePath();
    int functions = 0;
    for (const QString& header : headers) {
        const QString text = QString::fromUtf8(ReadWholeFile(header));
        for (const auto& match : declared.globalMatch(text)) {
            ++functions;
            EXPECT_TRUE(manual.contains(match.captured(1) + u'(')) << match.captured(1).toStdString();
        }
    }
    EXPECT_GT(functions, 80);
}
