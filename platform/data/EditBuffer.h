// The values set so far in the record being edited, by column.
#pragma once
#include <map>
#include "platform/rtl/Variant.h"

namespace fichario {

class EditBuffer {
  public:
    void Clear() {
        FValues.clear();
        FDefaults.clear();
    }

    // What has been set until now are a new record's defaults: they are written but count as no change.
    void TakeDefaults() { FDefaults = FValues; }

    const Variant* Find(int column) const { return Find(FValues, column); }
    const Variant* Default(int column) const { return Find(FDefaults, column); }
    void Set(int column, const Variant& value) { FValues[column] = value; }
    const std::map<int, Variant>& Values() const { return FValues; }

  private:
    static const Variant* Find(const std::map<int, Variant>& values, int column) {
        const auto found = values.find(column);
        return found == values.end() ? nullptr : &found->second;
    }

    std::map<int, Variant> FValues, FDefaults;
};

}  // namespace fichario
