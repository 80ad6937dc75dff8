#include "utils/funcoes/Listas.h"

#include <gtest/gtest.h>

#include "platform/rtl/Exceptions.h"

namespace {

template <class Call>
UnicodeString MessageOf(Call call) {
    try {
        call();
    } catch (const Exception& e) {
        return e.Message;
    }
    return {};
}

TEST(Lists, TheLastMatchWinsAndOthersGiveTheDefault) {
    const int keys[] = {5, 5, 7}, results[] = {1, 2, 3};
    EXPECT_EQ(CaseOfInt(5, keys, results, 0), 2);
    EXPECT_EQ(CaseOfInt(6, keys, results, -1), -1);
    EXPECT_EQ(CaseOfInt(7, keys, 1, results, 1, 9), 9);
    EXPECT_EQ(CaseOfInt(7, keys, -1, results, -1, 9), 9);

    const UnicodeString names[] = {"a", "B", "a"}, texts[] = {"1", "2", "3"};
    EXPECT_EQ(CaseOfStr("a", names, texts, "-"), "3");
    EXPECT_EQ(CaseOfStr("b", names, 2, texts, 2, "-"), "-");
    EXPECT_EQ(GetFieldListValue(names, texts, "a"), "3");
    EXPECT_EQ(GetFieldListValue(names, 1, texts, 1, "c"), "c");
    EXPECT_EQ(GetFieldListText(names, texts, "2"), "B");
    EXPECT_EQ(GetFieldListText(names, 1, texts, 2, "3"), "3");
    EXPECT_TRUE(StrInSet("B", names));
    EXPECT_FALSE(StrInSet("b", names));
    EXPECT_FALSE(StrInSet("a", names, -1));

    const Variant values[] = {1, Variant::Null(), UnicodeString("x")}, outcomes[] = {true, 2.5, 3};
    EXPECT_EQ(CaseOfVar(1.0, values, outcomes, 0), Variant(true));
    EXPECT_EQ(CaseOfVar(Variant(), values, outcomes, 0), Variant(0));
    EXPECT_EQ(GetCase(Variant::Null(), values, outcomes), Variant(2.5));
    EXPECT_EQ(GetCase(UnicodeString("x"), values, 2, outcomes, 2), Variant(3));
    EXPECT_TRUE(GetCase(UnicodeString("X"), values, outcomes).IsUnassigned());
}

TEST(Lists, OfDifferentLengthsAreRefused) {
    const int ints[] = {1, 2, 3};
    const UnicodeString texts[] = {"a", "b"};
    const Variant values[] = {1, 2};
    const UnicodeString english = "ValueSet and ResultSet must have same number of items.";
    EXPECT_EQ(MessageOf([&] { CaseOfInt(1, ints, 1, ints, 2, 0); }), english);
    EXPECT_EQ(MessageOf([&] { CaseOfStr("a", texts, 1, texts, 0, ""); }), english);
    EXPECT_EQ(MessageOf([&] { CaseOfVar(1, values, 1, values, -1, 0); }), english);
    EXPECT_EQ(MessageOf([&] { GetCase(1, values, 1, values, 0); }),
              QString::fromUtf8("Os parametros não conicidem com a chave."));
}

}  // namespace
