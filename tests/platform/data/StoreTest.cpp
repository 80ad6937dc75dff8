// The packed rows, and dates on the wire.
#include <gtest/gtest.h>
#include "platform/data/firebird/RowStore.h"
#include "platform/data/firebird/WireTime.h"
#include "tests/platform/data/TestDatabase.h"

using namespace fichario;

namespace {

TEST(RowDirectory, GoesOnBeyond32Bits) {
    RowDirectory rows;
    const uint64_t far = (uint64_t{1} << 32) + 5;
    rows.Append(1);
    rows.Append(0xFFFFFFFF);
    rows.Insert(1, far);
    rows.Set(0, far + 1);
    EXPECT_EQ(rows.Count(), 3);
    EXPECT_EQ(rows.At(0), far + 1);
    EXPECT_EQ(rows.At(1), far);
    EXPECT_EQ(rows.At(2), 0xFFFFFFFFu);
    rows.Erase(1);
    EXPECT_EQ(rows.At(1), 0xFFFFFFFFu);
}

// A message of a number and a text whose rows outgrow several chunks, the second kind a chunk each.
TEST(RowStore, KeepsRowsOfAnyLength) {
    for (const uint32_t length : {30000u, 2'000'000u}) {
        ColumnInfo number, text;
        number.Kind = WireKind::Long;
        number.NullOffset = 4;
        text.Kind = WireKind::Text;
        text.Length = length;
        text.Offset = 6;
        text.NullOffset = 6 + length;
        RowStore store{RowLayout({number, text})};
        std::vector<uint8_t> message(8 + length, 'a');
        message[4] = message[5] = message[6 + length] = message[7 + length] = 0;
        for (int32_t i = 0; i < 100; ++i) {
            std::memcpy(message.data(), &i, sizeof i);
            if (i == 50) message[5 + length] = ' ';
            store.Append(message.data());
            if (length > 30000 && i > 52) break;
        }
        store.InsertNull(0);
        EXPECT_TRUE(store.Value(0, 0).IsNull() && store.Value(0, 1).IsNull());
        for (int i = 1; i < store.Count(); ++i) {
            ASSERT_EQ(store.Value(i, 0).ToInt(), i - 1);
            ASSERT_EQ(store.Layout().Text(store.Row(i), 1).size(), i > 50 ? length - 1 : length);
        }
        store.SetValues(3, {Variant::Null(), Variant(u"é"_s)});
        store.CopyRow(4, store, 3);
        EXPECT_TRUE(store.Value(4, 0).IsNull());
        EXPECT_EQ(store.Value(4, 1), Variant(u"é"_s));
    }
}

TEST(WireTime, EveryDayAndMomentComesBack) {
    for (int32_t day = -678575; day <= 2973483; day += 7) {
        for (const uint32_t ticks : {0u, 1u, 432'000'001u, kTicksPerDay - 1}) {
            const WireStamp stamp{day, ticks};
            ASSERT_EQ(ToWire(FromWire(stamp)), stamp) << day << ' ' << ticks;
        }
    }
    EXPECT_EQ(FromWire({51544, 432'000'000}), JoinDateTime(EncodeDate(2000, 1, 1), EncodeTime(12, 0, 0)));
    EXPECT_EQ(ToWire(JoinDateTime(EncodeDate(1899, 12, 29), EncodeTime(6, 0, 0))),
              (WireStamp{15017, 216'000'000}));
}

}  // namespace
