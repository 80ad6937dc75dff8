#include "db/Prefixos.h"

#include <gtest/gtest.h>

#include "platform/data/Field.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"
#include "tests/support/TextTable.h"

namespace {

class Prefixes : public ::testing::Test {
  protected:
    Prefixes() : Field(NewField(nullptr, ftString)) { Field->SetFieldName("codigo"); }
    ~Prefixes() override { Field->Free(); }
    TField* Field;
};

TEST_F(Prefixes, LiveInTheTag) {
    const auto write = [this](const QStringList& a) {
        Field->SetOrigin(a[1]);
        SetPrefix(Field, a[0]);
        return IntToHex(int(Field->Tag()), 8) + ' ' + GetPrefix(Field) + ' ' + GetFieldName(Field);
    };
    const auto read = [this](const QStringList& a) {
        Field->SetTag(a[0].toInt(nullptr, 16));
        return GetPrefix(Field);
    };
    CheckTextTable(DB_TESTS "/tables/prefixos.txt", {{"Prefix", write}, {"Tag", read}});
}

TEST_F(Prefixes, ARefusedOneLeavesTheOldUnlessItIsEmpty) {
    SetPrefix(Field, "C");
    EXPECT_THROW(SetPrefix(Field, "ABCDE"), Exception);
    EXPECT_EQ(Field->Tag(), 0x43);
    EXPECT_THROW(SetPrefix(Field, ""), EConvertError);
    EXPECT_EQ(Field->Tag(), 0);
}

}  // namespace
