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

// A number and texts: as one text the rows fill several chunks, as forty each row needs a chunk of its own.
TEST(RowStore, KeepsRowsOfAnyLength) {
    constexpr uint32_t kLength = 30000;
    for (const uint32_t texts : {1u, 40u}) {
        ColumnList columns(1 + texts);
        columns[0].NullOffset = 4;
        for (uint32_t i = 0; i < texts; ++i) {
            columns[i + 1].Kind = WireKind::Text;
            columns[i + 1].Length = kLength;
            columns[i + 1].Offset = 6 + i * kLength;
            columns[i + 1].NullOffset = 4;
        }
        RowStore store{RowLayout(columns)};
        std::vector<uint8_t> message(6 + texts * kLength, 'a');
        message[4] = message[5] = 0;
        const int last = static_cast<int>(texts);
        for (int32_t i = 0; i < 100; ++i) {
            std::memcpy(message.data(), &i, sizeof i);
            if (i == 50) message.back() = ' ';
            store.Append(message.data());
        }
        store.Fit();
        EXPECT_LT(store.Bytes(), 100 * (texts * kLength + 100) * 5 / 4) << "memory kept for nothing";
        store.InsertNull(0);
        EXPECT_TRUE(store.Value(0, 0).IsNull() && store.Value(0, last).IsNull());
        for (int i = 1; i < store.Count(); ++i) {
            ASSERT_EQ(store.Value(i, 0).ToInt(), i - 1);
            ASSERT_EQ(store.Layout().Text(store.Row(i), last).size(), i > 50 ? kLength - 1 : kLength);
        }
        std::vector<Variant> values(1 + texts, Variant::Null());
        values.back() = u"é"_s;
        store.SetValues(3, values);
        store.CopyRow(4, store, 3);
        EXPECT_TRUE(store.Value(4, 0).IsNull());
        EXPECT_EQ(store.Value(4, last), Variant(u"é"_s));
        store.SetOutdated(4);
        EXPECT_TRUE(store.IsOutdated(4) && !store.IsOutdated(3) && !store.IsOutdated(0));
        store.CopyRow(4, store, 3);
        EXPECT_FALSE(store.IsOutdated(4));
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

TEST(TextEncoding, NoCharacterIsLostInSilence) {
    for (const TextEncoding encoding : {TextEncoding::Windows1252, TextEncoding::Utf8}) {
        int held = 0;
        for (char32_t code = 1; code <= 0x10FFFF; code += code < 0x3000 ? 1 : 37) {
            const UnicodeString text = UnicodeString::fromUcs4(&code, 1);
            const auto bytes = EncodeText(encoding, text);
            ASSERT_EQ(FirstForeign(encoding, u"a"_s + text), bytes ? UnicodeString() : text)
                << static_cast<uint32_t>(code);
            if (!bytes) continue;
            ++held;
            ASSERT_EQ(DecodeText(encoding, *bytes), text) << static_cast<uint32_t>(code);
        }
        EXPECT_EQ(held == 255, encoding == TextEncoding::Windows1252);
    }
}

}  // namespace
