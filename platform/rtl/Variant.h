// A value of any type a field or parameter can have.
//
//     Variant code = 42, name = u"Ana"_s, nothing = Variant::Null();
//     if (code == Variant(u"42"_s)) ...           // true: text is converted to compare with a number
//
// A fresh Variant is unassigned. Null is the database's null. The conversions throw EConvertError when the
// value cannot be that type; null becomes only the empty text, unassigned becomes 0, false and the empty
// text.
#pragma once
#include <concepts>
#include <cstdint>
#include <utility>
#include <variant>
#include <vector>
#include "platform/rtl/Currency.h"
#include "platform/rtl/DateTime.h"
#include "platform/rtl/Decimal.h"
#include "platform/rtl/Types.h"

// In the order of the alternatives inside Variant.
enum TVariantKind {
    vkUnassigned,
    vkNull,
    vkBoolean,
    vkInteger,
    vkFloat,
    vkCurrency,
    vkDecimal,
    vkDateTime,
    vkText,
    vkBytes,
    vkArray
};

class Variant {
  public:
    Variant() = default;
    Variant(bool value) : FValue(value) {}
    template <std::integral T>
    Variant(T value) : FValue(static_cast<int64_t>(value)) {}
    Variant(double value) : FValue(value) {}
    Variant(Currency value) : FValue(value) {}
    Variant(const Decimal& value) : FValue(value) {}
    Variant(TDateTime value) : FValue(value) {}
    Variant(UnicodeString value) : FValue(std::move(value)) {}
    Variant(QByteArray value) : FValue(std::move(value)) {}
    template <typename T>
    Variant(const T* pointer) = delete;  // a pointer would silently become a boolean

    static Variant Null();
    static Variant Array(std::vector<Variant> values);

    TVariantKind Kind() const { return static_cast<TVariantKind>(FValue.index()); }
    bool IsNull() const { return Kind() == vkNull; }
    bool IsUnassigned() const { return Kind() == vkUnassigned; }
    bool IsArray() const { return Kind() == vkArray; }

    // Boolean, integer, float, money or decimal.
    bool IsNumber() const { return Kind() >= vkBoolean && Kind() <= vkDecimal; }

    // Numbers and dates in the formats of FormatSettings, booleans as "True" and "False", bytes read in the
    // system code page. An array throws.
    UnicodeString ToText() const&;
    UnicodeString ToText() &&;
    // The text itself, without a conversion. REQUIRES Kind() == vkText.
    const UnicodeString& Text() const { return As<UnicodeString>(); }

    // Whole numbers; fractions are rounded to the nearest, ties to even. ToInt also throws beyond 32 bits.
    int ToInt() const;
    int64_t ToInt64() const;

    double ToDouble() const { return static_cast<double>(ToExtended()); }
    long double ToExtended() const;
    Currency ToCurrency() const;

    // A float becomes the decimal of its 15 significant digits.
    Decimal ToDecimal() const;

    TDateTime ToDateTime() const;

    // A number other than 0; texts "True", "False" (any case) and numbers.
    bool ToBool() const;

    // Text becomes bytes of the system code page.
    QByteArray ToBytes() const;

    // The elements of an array; throws EConvertError when it is none.
    const std::vector<Variant>& Elements() const;

  private:
    struct TNull {};
    using TArray = std::vector<Variant>;

    std::variant<std::monostate, TNull, bool, int64_t, double, Currency, Decimal, TDateTime, UnicodeString,
                 QByteArray, TArray>
        FValue;

    template <typename T>
    const T& As() const {
        return std::get<T>(FValue);
    }
    friend bool operator==(const Variant& a, const Variant& b);
};

// Never throws. Numbers of all kinds and dates compare by value, text with text exactly, text with a number
// or a date after conversion (unequal when that fails), arrays element by element; null equals only null,
// unassigned only unassigned.
bool operator==(const Variant& a, const Variant& b);
