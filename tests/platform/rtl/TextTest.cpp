// Code page, lists of texts, edit masks.
#include <gtest/gtest.h>
#include "platform/rtl/CodePage.h"
#include "platform/rtl/EditMask.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/Strings.h"

using namespace Qt::Literals::StringLiterals;

TEST(CodePage, EveryByteComesBack) {
    for (int byte = 0; byte < 256; ++byte) {
        const QByteArray bytes(1, static_cast<char>(byte));
        EXPECT_EQ(ToAnsiExact(FromAnsi(bytes)), bytes) << byte;
    }
    EXPECT_EQ(FromAnsi("\x80\x81\x9F\xE7"), u"€\u0081Ÿç"_s);
}

TEST(CodePage, MissingCharacters) {
    EXPECT_EQ(ToAnsi(u"a\u0100€"), "a?\x80"_ba);
    EXPECT_FALSE(ToAnsiExact(u"\u0100"));
    EXPECT_FALSE(InCodePage(0x80));
}

TEST(CodePage, CaseKeepsLength) {
    EXPECT_EQ(UpperText(u"straße ação"), u"STRAßE AÇÃO"_s);
    EXPECT_EQ(LowerText(u"ÉÇ"), u"éç"_s);
    EXPECT_TRUE(SameText(u"Ação", u"AÇÃO"));
    EXPECT_FALSE(SameText(u"acao", u"ação"));
}

TEST(Strings, SplitsAtAnyLineEndAndJoinsWithCrLf) {
    TStringList list;
    list.SetText(u"a\r\nb\nc\r\rd\n");
    EXPECT_EQ(list.ToArray(), (TStringArray{u"a"_s, u"b"_s, u"c"_s, u""_s, u"d"_s}));
    EXPECT_EQ(list.Text(), u"a\r\nb\r\nc\r\n\r\nd\r\n"_s);
    list.SetText(u"");
    EXPECT_EQ(list.Count(), 0);
}

TEST(Strings, CommaText) {
    const TStringArray items{u"a b"_s, u""_s, u"c,\"d\""_s, u"e"_s};
    TStringList list;
    list.Assign(items);
    EXPECT_EQ(list.CommaText(), u"\"a b\",\"\",\"c,\"\"d\"\"\",e"_s);
    list.SetCommaText(list.CommaText());
    EXPECT_EQ(list.ToArray(), items);
    list.SetCommaText(u" x y,,z , ");
    EXPECT_EQ(list.ToArray(), (TStringArray{u"x"_s, u"y"_s, u""_s, u"z"_s, u""_s}));
    list.SetCommaText(u"\"open");
    EXPECT_EQ(list.ToArray(), (TStringArray{u"open"_s}));
}

TEST(Strings, NamesAndValues) {
    TStringList list;
    list.SetText(u"Server=localhost\nno value\nRole=\n");
    EXPECT_EQ(list.Values(u"server"), u"localhost"_s);
    EXPECT_EQ(list.Names(1), u""_s);
    EXPECT_EQ(list.IndexOfName(u"ROLE"), 2);
    list.SetValue(u"Server"_s, u"a=b"_s);
    list.SetValue(u"Role"_s, u""_s);
    list.SetValue(u"Port"_s, u"3050"_s);
    EXPECT_EQ(list.ToArray(), (TStringArray{u"Server=a=b"_s, u"no value"_s, u"Port=3050"_s}));
    EXPECT_THROW(list.Strings(3), EInvalidOperation);
    EXPECT_THROW(list.Insert(4, u""_s), EInvalidOperation);
}

TEST(Strings, ChangesAreToldOncePerUpdate) {
    TStringList list;
    int told = 0;
    list.OnChange = [&] { ++told; };
    list.Add(u"a"_s);
    EXPECT_EQ(told, 1);
    {
        const TStringsUpdate update(list);
        list.AddStrings(list);
        list.Delete(0);
        EXPECT_EQ(told, 1);
    }
    EXPECT_EQ(told, 2);
    { const TStringsUpdate nothing(list); }
    EXPECT_EQ(told, 2);
}

TEST(EditMask, Formats) {
    const struct {
        QStringView Mask, Value, Text;
    } cases[] = {
        {u"999.999.999-99;0; ", u"12345678909", u"123.456.789-09"},
        {u"99.999.999/9999-99;0; ", u"12345678000195", u"12.345.678/0001-95"},
        {u"(99)9999-9999;0; ", u"1133334444", u"(11)3333-4444"},
        {u"!(99)99999-9999;0; ", u"11933334444", u"(11)93333-4444"},
        {u"(99)9999-9999;0; ", u"33334444", u"(33)3344-44  "},
        {u"!9999;0;_", u"12", u"  12"},
        {u"(99)9999-9999;0; ", u"", u"(  )    -    "},
        {u"99/99/0000;1;_", u"07/03/2024", u"07/03/2024"},
        {u"99/99/0000;1;_", u"07032024", u"07/03/2024"},
        {u"99999;0;_", u"1a2b3", u"123  "},
        {u">LL<LL<>LL;0;_", u"aBCdEf", u"ABcdEf"},
        {u"\\9-00;0;_", u"12", u"9-12"},
        {u"", u"free", u"free"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(qPrintable(u"%1 : %2"_s.arg(c.Mask, c.Value)));
        EXPECT_EQ(TEditMask(c.Mask).FormatText(c.Value), c.Text);
    }
}

TEST(EditMask, EditedTexts) {
    const struct {
        QStringView Mask, Edit, Value;
        bool Complete;
    } cases[] = {
        {u"99/99/0000;1;_", u"07/03/2024", u"07/03/2024", true},
        {u"99/99/0000;1;_", u"07/03/20__", u"07/03/20  ", false},
        {u"99/99/0000;1;_", u"__/__/____", u"", false},
        {u"00-99;0;_", u"12-__", u"12", true},
        {u"00-99;0;_", u"1_-__", u"1", false},
        {u"!9999;0;_", u"__12", u"12", true},
        {u"00-99;0;_", u"12+34", u"1234", false},
        {u"", u"free", u"free", true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(qPrintable(u"%1 : %2"_s.arg(c.Mask, c.Edit)));
        EXPECT_EQ(TEditMask(c.Mask).Value(c.Edit), c.Value);
        EXPECT_EQ(TEditMask(c.Mask).IsComplete(c.Edit), c.Complete);
    }
}

TEST(EditMask, Places) {
    const TEditMask mask(u"0#>L-c");
    EXPECT_EQ(mask.Length(), 5);
    EXPECT_TRUE(mask.SavesLiterals());
    EXPECT_EQ(mask.Apply(u""), u"___-_"_s);
    EXPECT_FALSE(mask.Accept(1, u' '));
    EXPECT_EQ(mask.Accept(2, u' '), u'_');
    EXPECT_EQ(mask.Accept(2, u'-'), u'-');
    EXPECT_EQ(mask.Accept(3, u'ç'), u'Ç');
    EXPECT_FALSE(mask.Accept(4, u'-'));
    EXPECT_TRUE(mask.IsLiteral(4));
}
