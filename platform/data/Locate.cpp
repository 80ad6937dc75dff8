#include "platform/data/Locate.h"

#include <future>
#include <QStringList>
#include "platform/data/DataSet.h"
#include "platform/data/Field.h"
#include "platform/data/firebird/WireTime.h"
#include "platform/rtl/CodePage.h"
#include "platform/rtl/Exceptions.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

using FoldTable = std::array<uint8_t, 256>;

FoldTable MakeTable(bool folds) {
    FoldTable table;
    for (size_t i = 0; i < table.size(); ++i) {
        const char byte = static_cast<char>(i);
        const std::optional<AnsiString> lower = ToAnsiExact(LowerText(FromAnsi(QByteArrayView(&byte, 1))));
        table[i] = static_cast<uint8_t>(folds && lower && lower->size() == 1 ? lower->at(0) : byte);
    }
    return table;
}

const FoldTable& TableFor(bool folds) {
    static const FoldTable exact = MakeTable(false), folded = MakeTable(true);
    return folds ? folded : exact;
}

Variant ExactMoment(const Variant& value) {
    return value.Kind() == vkDateTime ? Variant(FromWire(ToWire(value.ToDateTime()))) : value;
}

}  // namespace

RowMatcher::RowMatcher(TLocateOptions options)
    : FFold(&TableFor(options & loCaseInsensitive)),
      FCase(options & loCaseInsensitive ? Qt::CaseInsensitive : Qt::CaseSensitive),
      FPartial(options & loPartialKey) {}

std::optional<RowMatcher> RowMatcher::Make(const TDataSet& dataSet, const RowLayout& layout,
                                           const UnicodeString& keyFields, const Variant& values,
                                           TLocateOptions options) {
    const QStringList names = keyFields.split(u';', Qt::SkipEmptyParts);
    const std::vector<Variant> list = values.IsArray() ? values.Elements() : std::vector<Variant>{values};
    if (names.isEmpty() || static_cast<size_t>(names.size()) != list.size()) {
        throw EDatabaseError(u"Locate needs one value for each key field"_s);
    }
    RowMatcher matcher(options);
    bool possible = true;
    for (size_t i = 0; i < list.size(); ++i) {
        const TField* field = dataSet.FieldByName(names[static_cast<qsizetype>(i)].trimmed());
        possible = matcher.Add(*field, layout, list[i]) && possible;
    }
    return possible ? std::optional(matcher) : std::nullopt;
}

// A partial key is a text, whatever the field's kind.
bool RowMatcher::Add(const TField& field, const RowLayout& layout, const Variant& value) {
    Key key;
    key.Column = field.Index();
    key.Field = &field;
    if (value.IsNull() || value.IsUnassigned()) {
        FKeys.push_back(key);
        return true;
    }
    try {
        if (FPartial || layout.IsText(key.Column)) return AddText(key, layout, value.ToText());
        key.Value = ExactMoment(field.Converted(value));
        if (value.IsNumber() && !(key.Value == value)) return false;  // it was rounded
    } catch (const EConvertError&) {
        return false;
    }
    FKeys.push_back(key);
    return true;
}

bool RowMatcher::AddText(Key key, const RowLayout& layout, const UnicodeString& text) {
    key.Compare = Way::Text;
    key.Text = text;
    if (layout.IsText(key.Column) && layout.Encoding(key.Column) == TextEncoding::Windows1252) {
        const std::optional<QByteArray> bytes = EncodeText(TextEncoding::Windows1252, text);
        if (!bytes) return false;
        key.Compare = Way::Bytes;
        key.Bytes = *bytes;
        for (char& byte : key.Bytes) byte = static_cast<char>((*FFold)[static_cast<uint8_t>(byte)]);
    }
    FKeys.push_back(key);
    return true;
}

bool RowMatcher::MatchesBytes(const Key& key, std::span<const uint8_t> text) const {
    const auto length = static_cast<size_t>(key.Bytes.size());
    if (FPartial ? text.size() < length : text.size() != length) return false;
    for (size_t i = 0; i < length; ++i) {
        if ((*FFold)[text[i]] != static_cast<uint8_t>(key.Bytes[static_cast<qsizetype>(i)])) return false;
    }
    return true;
}

bool RowMatcher::MatchesText(const Key& key, const UnicodeString& text) const {
    return FPartial ? text.startsWith(key.Text, FCase) : text.compare(key.Text, FCase) == 0;
}

bool RowMatcher::MatchesKey(const Key& key, const TDataSet& dataSet, const RowStore& rows, int row) const {
    const uint8_t* packed = rows.Row(row);
    const bool null = rows.Layout().IsNull(packed, key.Column);
    const bool wantsNull = key.Compare == Way::Value && key.Value.IsNull();
    if (null || wantsNull) return null && wantsNull;
    if (key.Compare == Way::Bytes) return MatchesBytes(key, rows.Layout().Text(packed, key.Column));
    try {
        const Variant value = dataSet.RowValue(row, key.Column);
        return key.Compare == Way::Text ? MatchesText(key, key.Field->TextOf(value)) : value == key.Value;
    } catch (const EUnreadableText&) {
        return false;
    }
}

bool RowMatcher::Matches(const TDataSet& dataSet, const RowStore& rows, int row) const {
    for (const Key& key : FKeys) {
        if (!MatchesKey(key, dataSet, rows, row)) return false;
    }
    return true;
}

// One text without a value of nothing, the usual case, over rows that memory is asked for in time. `stop`
// ends it early.
int RowMatcher::ScanBytes(const Key& key, const RowStore& rows, int from, int to,
                          const std::atomic<bool>& stop) const {
    constexpr int kAhead = 16;
    constexpr int kLook = 4096;
    for (int row = from; row < to; ++row) {
        if (row % kLook == 0 && stop.load(std::memory_order_relaxed)) return -1;
        if (row + kAhead < to) __builtin_prefetch(rows.Row(row + kAhead));
        if (MatchesBytes(key, rows.Layout().Text(rows.Row(row), key.Column))) return row;
    }
    return -1;
}

// Many rows are looked through from two places at once: one core does not get them out of memory in the time
// that a key stroke may take.
int RowMatcher::FindBytes(const Key& key, const RowStore& rows, int from) const {
    constexpr int kWorthTwo = 400'000;
    const int count = rows.Count();
    std::atomic<bool> stop = false;
    if (count - from < kWorthTwo) return ScanBytes(key, rows, from, count, stop);
    const int middle = from + (count - from) / 2;
    auto behind = std::async(std::launch::async, [&] { return ScanBytes(key, rows, middle, count, stop); });
    const int found = ScanBytes(key, rows, from, middle, std::atomic<bool>(false));
    stop = found >= 0;
    const int foundBehind = behind.get();
    return found >= 0 ? found : foundBehind;
}

int RowMatcher::Find(const TDataSet& dataSet, const RowStore& rows, int from) const {
    const Key& first = FKeys.front();
    if (FKeys.size() == 1 && first.Compare == Way::Bytes && !first.Bytes.isEmpty())
        return FindBytes(first, rows, from);
    for (int row = from; row < rows.Count(); ++row) {
        if (Matches(dataSet, rows, row)) return row;
    }
    return -1;
}

}  // namespace fichario
