// The values set so far in the record being edited, by column.
#pragma once
#include <algorithm>
#include <optional>
#include <vector>
#include "platform/data/DataTypes.h"
#include "platform/data/firebird/WriteColumn.h"

namespace fichario {

class EditBuffer {
  public:
    // The room stays for the next record.
    void Clear() {
        for (size_t i = 0; i < FEnd; ++i) FSlots[i].Value.reset();
        FEnd = 0;
        FBefore.clear();
        Doubtful.reset();
    }

    // What has been set until now are a new record's defaults: they are written but count as no change.
    void TakeDefaults() {
        FBefore.clear();
        for (size_t i = 0; i < FEnd; ++i) FBefore.push_back(FSlots[i].Value);
    }
    // What the row holds of a column before it is set, when it cannot be asked for later.
    void KeepBefore(int column, Variant&& value) {
        const auto index = static_cast<size_t>(column);
        if (index >= FBefore.size()) FBefore.resize(index + 1);
        FBefore[index] = std::move(value);
    }

    // The record as it was written when the connection was lost during its commit: it may be stored so.
    std::optional<std::vector<WriteColumn>> Doubtful;

    // Null when the column has not been set.
    const Variant* Find(int column) const {
        const auto index = static_cast<size_t>(column);
        return index < FEnd && FSlots[index].Value ? &*FSlots[index].Value : nullptr;
    }
    // What a value must differ from to count as changed; null: what the row holds.
    const Variant* Before(int column) const {
        const auto index = static_cast<size_t>(column);
        return index < FBefore.size() && FBefore[index] ? &*FBefore[index] : nullptr;
    }
    void Set(int column, Variant&& value) {
        const auto index = static_cast<size_t>(column);
        if (index >= FSlots.size()) FSlots.resize(index + 1);
        FEnd = std::max(FEnd, index + 1);
        FSlots[index].Value = std::move(value);
        FSlots[index].Turn = ++FTurn;
    }
    // Higher, the later the column was set; 0: not set.
    int Turn(int column) const { return Find(column) ? FSlots[static_cast<size_t>(column)].Turn : 0; }
    // All columns up to this one at most have been set.
    int End() const { return static_cast<int>(FEnd); }

  private:
    struct Slot {
        std::optional<Variant> Value;
        int Turn = 0;
    };

    std::vector<Slot> FSlots;  // those behind FEnd are empty
    size_t FEnd = 0;
    std::vector<std::optional<Variant>> FBefore;
    int FTurn = 0;
};

// A record that is being typed, kept while its post may still be undone with its transaction.
struct TypedRecord {
    TDataSetState State = dsBrowse;  // dsEdit or dsInsert; else nothing is being typed
    int Row = -1, RowBefore = -1;
    int Result = 0;  // which of the dataset's results the row is of
    EditBuffer Edits;
    std::vector<Variant> Before;  // the row without the edits
};

}  // namespace fichario
