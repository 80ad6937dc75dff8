// Tells which rows hold given values, over the packed rows: a text is compared as its bytes stand, none is
// decoded.
#pragma once
#include <array>
#include <atomic>
#include <optional>
#include <vector>
#include "platform/data/DataTypes.h"
#include "platform/data/firebird/RowStore.h"

class TDataSet;
class TField;

namespace fichario {

class RowMatcher {
  public:
    // The arguments of TDataSet::Locate. Nothing when no row can match: a value cannot be one of its field.
    // EDatabaseError for an unknown field or too few or too many values.
    static std::optional<RowMatcher> Make(const TDataSet& dataSet, const RowLayout& layout,
                                          const UnicodeString& keyFields, const Variant& values,
                                          TLocateOptions options);

    // The first matching row from `from` on among those that are here; -1 when none is.
    int Find(const TDataSet& dataSet, const RowStore& rows, int from) const;

  private:
    using FoldTable = std::array<uint8_t, 256>;
    enum class Way { Bytes, Text, Value };

    struct Key {
        int Column = 0;
        const TField* Field = nullptr;
        Way Compare = Way::Value;
        QByteArray Bytes;    // Way::Bytes: folded
        UnicodeString Text;  // Way::Text
        Variant Value = Variant::Null();
    };

    explicit RowMatcher(TLocateOptions options);
    bool Add(const TField& field, const RowLayout& layout, const Variant& value);
    bool AddText(Key key, const RowLayout& layout, const UnicodeString& text);
    bool MatchesBytes(const Key& key, std::span<const uint8_t> text) const;
    bool MatchesText(const Key& key, const UnicodeString& text) const;
    int ScanBytes(const Key& key, const RowStore& rows, int from, int to,
                  const std::atomic<bool>& stop) const;
    int FindBytes(const Key& key, const RowStore& rows, int from) const;
    bool MatchesKey(const Key& key, const TDataSet& dataSet, const RowStore& rows, int row) const;
    bool Matches(const TDataSet& dataSet, const RowStore& rows, int row) const;

    std::vector<Key> FKeys;
    const FoldTable* FFold;
    Qt::CaseSensitivity FCase;
    bool FPartial;
};

}  // namespace fichario
