// The functions of texts, dates and keys and the RTF reader: by the tables of tests/utils/tables, and what no
// table can say.
#include "utils/Funcoes.h"

#include <gtest/gtest.h>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <random>
#include <set>

#include "platform/rtl/CodePage.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/rtl/Rtf.h"
#include "platform/system/UserInterface.h"
#include "tests/support/TextTable.h"

namespace {

using TArgs = QStringList;

QString Parts(const UnicodeString& text) {
    QString result;
    for (const UnicodeString& part : ExplodeStr(text, u';')) result += '[' + part + ']';
    return result;
}

QString Flag(bool flag) {
    return flag ? "S" : "N";
}

QString Day(TDateTime date) {
    return FormatDateTime(u"yyyy-MM-dd", date) + (TimeOf(date) == TDateTime() ? "" : " and a time");
}

QString Ends(const TArgs& a) {
    const TDateTime date = StrToDateTime(a[0]);
    const QStringList week = {FormatDateTime(u"yyyy-MM-dd hh:nn", FirstDayOfWeek(date)),
                              FormatDateTime(u"yyyy-MM-dd hh:nn", LastDayOfWeek(date))};
    return (week + TArgs{Day(FirstDayOfMonth(date)), Day(LastDayOfMonth(date)), Day(FirstMonday(date))})
        .join(", ");
}

// What a filter makes of a key: the key it leaves, or "no" for an aborted one.
template <class Filter>
QString After(WideChar key, Filter filter) {
    try {
        filter(key);
        return QChar(key);
    } catch (const EAbort&) {
        return "no";
    }
}

QString KeyOutcomes(const TArgs& a) {
    const WideChar key = a[0][0].unicode();
    const QStringList outcomes = {
        After(key, OnlyInteger), After(key, [](WideChar& k) { OnlyNumbers(k, false); }),
        After(key, [](WideChar& k) { OnlyNumbers(k, true); }), After(key, GetDecSeparator)};
    return outcomes.join(' ');
}

void CheckTable(const char* table, const std::map<QString, TTextFunction>& functions) {
    CheckTextTable(QString(UTILS_TESTS "/tables/%1.txt").arg(table), functions);
}

TEST(Functions, OfTexts) {
    CheckTable(
        "texto",
        {
            {"ExplodeStr", [](const TArgs& a) { return Parts(a[0]); }},
            {"FillCharR", [](const TArgs& a) { return FillCharR(a[0], a[1].toInt(), a[2]); }},
            {"FillCharL", [](const TArgs& a) { return FillCharL(a[0], a[1].toInt(), a[2]); }},
            {"GetNumbers", [](const TArgs& a) { return GetNumbers(a[0]); }},
            {"Digits", [](const TArgs& a) { return Flag(Inteiros(a[0])) + Flag(FirstIsNumber(a[0])); }},
            {"CopyNumbersUntilChar",
             [](const TArgs& a) { return QString::number(CopyNumbersUntilChar(a[0])); }},
            {"RemoveAcentos", [](const TArgs& a) { return RemoveAcentos(a[0]); }},
            {"RemoveCaracters", [](const TArgs& a) { return RemoveCaracters(a[0]); }},
            {"PrimeiroNome", [](const TArgs& a) { return PrimeiroNome(a[0]); }},
            {"FixDir", [](const TArgs& a) { return FixDir(a[0]); }},
            {"TrocaPorParams", [](const TArgs& a) { return TrocaPorParams(a[0], u'*', u'%'); }},
            {"GetBoolValue", [](const TArgs& a) { return GetBoolValue(a[0]); }},
            {"GetBoolText", [](const TArgs& a) { return GetBoolText(a[0]); }},
            {"RichtToStr", [](const TArgs& a) { return RichtToStr(a[0]); }},
            {"AnsiTrim", [](const TArgs& a) { return FromAnsi(AnsiTrim(ToAnsi(a[0]))); }},
            {"AnsiUpperCase", [](const TArgs& a) { return FromAnsi(AnsiUpperCase(ToAnsi(a[0]))); }},
            {"AnsiTrocaPorParams",
             [](const TArgs& a) { return FromAnsi(AnsiTrocaPorParams(ToAnsi(a[0]), '*', '%')); }},
            {"AnsiPos", [](const TArgs& a) { return QString::number(AnsiPos(ToAnsi(a[0]), ToAnsi(a[1]))); }},
        });
}

TEST(Functions, OfDates) {
    CheckTable("datas",
               {
                   {"FixDate", [](const TArgs& a) { return Day(FixDate(a[0])); }},
                   {"Ends", Ends},
                   {"GetMonthName", [](const TArgs& a) { return GetMonthName(a[0].toUShort()); }},
                   {"DateTimeToNFeStr", [](const TArgs& a) { return DateTimeToNFeStr(StrToDateTime(a[0])); }},
                   {"DateToNFeStr", [](const TArgs& a) { return DateToNFeStr(StrToDateTime(a[0])); }},
                   {"DateToSQLDate",
                    [](const TArgs& a) { return DateToSQLDate(StrToDateTime(a[0]), !a[1].isEmpty()); }},
                   {"NFeStrToDateTime", [](const TArgs& a) { return DateTimeToStr(NFeStrToDateTime(a[0])); }},
               });
}

TEST(Functions, OfDocuments) {
    CheckTable("documentos", {{"CPF", [](const TArgs& a) { return Flag(CPF(a[0])); }},
                              {"CNPJ", [](const TArgs& a) { return Flag(CNPJ(a[0])); }},
                              {"Mod11", [](const TArgs& a) { return Flag(Mod11(a[0], 9)); }},
                              {"FormatCPF", [](const TArgs& a) { return FormatCPF(a[0]); }},
                              {"FormatTelefone", [](const TArgs& a) { return FormatTelefone(a[0]); }}});
}

TEST(Functions, RtfReader) {
    CheckTable("rtf", {{"Rtf", [](const TArgs& a) { return RtfToPlainText(ToAnsi(a[0])); }}});
    EXPECT_TRUE(IsRtf("{\\rtf1}"));
    EXPECT_FALSE(IsRtf("{\\rt"));
}

TEST(Functions, OfKeys) {
    CheckTable("teclas",
               {{"Key", KeyOutcomes},
                {"UpeCase", [](const TArgs& a) { return QChar(UpeCase(a[0][0].unicode())); }},
                {"IsKeyCharacter", [](const TArgs& a) { return Flag(IsKeyCharacter(a[0][0].unicode())); }}});
}

class TCountingInterface : public TUserInterface {
  public:
    int MessageBox(const UnicodeString&, const UnicodeString&, int) override { return IDOK; }
    void ProcessMessages() override { ++Rounds; }
    void EnableMainForm(bool) override {}
    void BringToFront() override {}
    void WaitFor(const std::function<bool(int)>&) override {}
    int Rounds = 0;
};

TEST(Wait, ProcessesMessagesUntilTheTimeIsOver) {
    TCountingInterface screen;
    TUserInterface* const before = InstallUserInterface(&screen);
    Wait(-1);
    Wait(0);
    EXPECT_EQ(screen.Rounds, 0);
    QElapsedTimer timer;
    timer.start();
    Wait(10);
    EXPECT_TRUE(timer.elapsed() >= 10 && screen.Rounds > 1);
    InstallUserInterface(before);
}

TEST(RandomStr, DrawsFromAllButTheLastCharacter) {
    const UnicodeString text = RandomStr(20000);
    const std::set<QChar> drawn(text.begin(), text.end());
    EXPECT_EQ(text.size(), 20000);
    EXPECT_TRUE(drawn.size() == 35 && !drawn.count(u'9'));
    EXPECT_NE(RandomStr(20), RandomStr(20));
    EXPECT_EQ(RandomStr(0) + RandomStr(-3), "");
}

TEST(Files, TellAndTakeTheirTime) {
    const QTemporaryDir folder;
    const UnicodeString name = folder.filePath(QString::fromUtf8("relação.txt"));
    EXPECT_THROW(GetFileDate(name), EConvertError);
    EXPECT_EQ(SetFileDate(name, EncodeDate(2024, 1, 1)), ENOENT);
    QFile(name).open(QIODevice::WriteOnly);
    for (const char* moment : {"31/07/2024 18:00:00", "01/01/1999 00:00:01"}) {
        EXPECT_EQ(SetFileDate(name, StrToDateTime(QString(moment))), 0);
        EXPECT_EQ(DateTimeToStr(GetFileDate(name)), moment);
    }
}

TEST(Rtf, GarbageIsReadWithoutHarm) {
    std::mt19937 random(7);
    const QByteArray kinds = "{{}}\\\\''*uc-0123 abinpartfobl\r\n\xE7";
    for (int run = 0; run < 20000; ++run) {
        QByteArray soup;
        for (unsigned left = random() % 60; left > 0; --left)
            soup += kinds[int(random() % unsigned(kinds.size()))];
        ASSERT_LE(RtfToPlainText(soup).size(), 2 * soup.size());
    }
    EXPECT_EQ(RtfToPlainText(QByteArray(1000000, '{') + "a"), "a");
}

}  // namespace
