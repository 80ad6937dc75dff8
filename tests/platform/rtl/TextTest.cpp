// Code page, lists of texts.
#include <gtest/gtest.h>
#include "platform/rtl/CodePage.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/Strings.h"

using namespace Qt::Literals::StringLiterals;

TEST(CodePage, EveryByteComesBack) {
    for (int byte = 0; byte < 256; ++byte) {
        const QByteArray bytes(1, static_cast<char>(byte));
        EXPECT_EQ(ToAnsiExact(FromAnsi(bytes)), bytes) << byte;
        EXPECT_TRUE(ToAnsiExact(UpperText(FromAnsi(bytes)))) << byte;
    }
    EXPECT_EQ(FromAnsi("\x80\x81\x9F\xE7"), u"€\u0081Ÿç"_s);
}

TEST(CodePage, MissingCharacters) {
    EXPECT_EQ(ToAnsi(u"a\u0100€"), "a?\x80"_ba);
    EXPECT_FALSE(ToAnsiExact(u"\u0100"));
    EXPECT_FALSE(InCodePage(0x80));
}

TEST(CodePage, CaseKeepsLength) {
    EXPECT_EQ(UpperText(u"straße ação ÿ"), u"STRAßE AÇÃO ÿ"_s);
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
