// The named parameters of a statement.
//
//     query->ParamByName(u"DESDE"_s)->SetAsDate(EncodeDate(2024, 1, 31));
//
// The kind that the caller sets is the kind the server gets: a floating number compared with a whole column
// keeps its decimals. Text set for a number or date parameter is read by FormatSettings.
#pragma once
#include <memory>
#include <vector>
#include "platform/data/DataTypes.h"
#include "platform/rtl/Currency.h"
#include "platform/rtl/DateTime.h"
#include "platform/rtl/Types.h"
#include "platform/rtl/Variant.h"

class TFDParam {
  public:
    explicit TFDParam(UnicodeString name) : FName(std::move(name)) {}

    const UnicodeString& Name() const { return FName; }
    // The kind sent to the server; ftUnknown: the value's own. Setting it converts a value that is already
    // there when the statement runs.
    TFieldType DataType() const { return FDataType; }
    void SetDataType(TFieldType type) { FDataType = type; }

    const Variant& Value() const { return FValue; }
    void SetValue(const Variant& value) { FValue = value; }
    bool IsNull() const { return FValue.IsNull() || FValue.IsUnassigned(); }
    // Makes the value null and keeps the kind.
    void Clear() { FValue = Variant::Null(); }

    // Each setter also sets DataType. Getters give the empty text and 0 for null.
    UnicodeString AsString() const { return FValue.ToText(); }
    void SetAsString(const UnicodeString& text);
    int AsInteger() const;
    void SetAsInteger(int value);
    int64_t AsLargeInt() const;
    void SetAsLargeInt(int64_t value);
    double AsFloat() const;
    void SetAsFloat(double value);
    Currency AsCurrency() const;
    void SetAsCurrency(Currency value);
    TDateTime AsDate() const { return AsDateTime(); }
    void SetAsDate(TDateTime value);
    TDateTime AsDateTime() const;
    void SetAsDateTime(TDateTime value);
    bool AsBoolean() const;
    void SetAsBoolean(bool value);

  private:
    void Set(TFieldType type, const Variant& value);

    UnicodeString FName;
    TFieldType FDataType = ftUnknown;
    Variant FValue = Variant::Null();
};

class TFDParams {
  public:
    int Count() const { return static_cast<int>(FParams.size()); }
    TFDParam* operator[](int index) const { return FParams[static_cast<size_t>(index)].get(); }
    // Upper and lower case are the same. EDatabaseError "Parameter 'X' not found".
    TFDParam* ParamByName(const UnicodeString& name) const;
    // Null when there is none.
    TFDParam* FindParam(const UnicodeString& name) const;
    // Takes over the names of a new statement; parameters of the same name keep object, kind and value.
    void SetNames(const TStringArray& names);

  private:
    std::vector<std::unique_ptr<TFDParam>> FParams;
};
