// The values set so far in the record being edited, by column.
#pragma once
#include <optional>
#include <vector>
#include "platform/data/DataTypes.h"
#include "platform/data/firebird/WriteColumn.h"

namespace fichario {

class EditBuffer {
  public:
    using Values = std::vector<std::optional<Variant>>;

    void Clear() {
        FValues.clear();
        FBefore.clear();
        FTurns.clear();
        Doubtful.reset();
    }

    // What has been set until now are a new record's defaults: they are written but count as no change.
    void TakeDefaults() { FBefore = FValues; }
    // What the row holds of a column before it is set, when it cannot be asked for later.
    void KeepBefore(int column, Variant&& value) { Put(FBefore, column, std::move(value)); }

    // The record as it was written when the connection was lost during its commit: it may be stored so.
    std::optional<std::vector<WriteColumn>> Doubtful;

    // Null when the column has not been set.
    const Variant* Find(int column) const { return Find(FValues, column); }
    // What a value must differ from to count as changed; null: what the row holds.
    const Variant* Before(int column) const { return Find(FBefore, column); }
    void Set(int column, Variant&& value) {
        Put(FValues, column, std::move(value));
        FTurns.resize(FValues.size());
        FTurns[static_cast<size_t>(column)] = ++FTurn;
    }
    // Higher, the later the column was set; 0: not set.
    int Turn(int column) const {
        const auto index = static_cast<size_t>(column);
        return index < FTurns.size() ? FTurns[index] : 0;
    }
    // All columns up to this one at most have been set.
    int End() const { return static_cast<int>(FValues.size()); }

  private:
    static const Variant* Find(const Values& values, int column) {
        const auto index = static_cast<size_t>(column);
        return index < values.size() && values[index] ? &*values[index] : nullptr;
    }

    static void Put(Values& values, int column, Variant&& value) {
        const auto index = static_cast<size_t>(column);
        if (index >= values.size()) values.resize(index + 1);
        values[index] = std::move(value);
    }

    Values FValues, FBefore;
    std::vector<int> FTurns;
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
