// Fields of numbers: whole, floating and exact decimal.
//
//     static_cast<TNumericField*>(total)->SetDisplayFormat(u"#,##0.00"_s);
#pragma once
#include "platform/data/fields/BaseField.h"

// What all numbers share: what the column cannot hold is an EConvertError, and formats. A format is a mask of
// FormatFloat with up to three sections; without one the number shows as it is, with FormatSettings' decimal
// separator.
class TNumericField : public TField {
  public:
    UnicodeString DisplayFormat() const { return FDisplayFormat; }
    void SetDisplayFormat(const UnicodeString& mask);
    // The mask for typing; empty: the plain number.
    UnicodeString EditFormat() const { return FEditFormat; }
    void SetEditFormat(const UnicodeString& mask);

  protected:
    using TField::TField;
    ~TNumericField() override = default;
    TAlignment DefaultAlignment() const override { return taRightJustify; }
    UnicodeString FormatValue(const Variant& value, bool display) const override;
    // The number by the mask.
    virtual UnicodeString ByMask(const UnicodeString& mask, const Variant& value) const;
    // The nearest whole number. EConvertError.
    int64_t WholeOf(const Variant& value) const;
    // Whether it is a number that the column can hold.
    bool Fits(double number) const;

  private:
    UnicodeString FDisplayFormat, FEditFormat;
};

// Whole numbers of 16 (ftSmallint) and 32 bits (ftInteger).
class TIntegerField : public TNumericField {
  public:
    explicit TIntegerField(TComponent* owner, TFieldType type = ftInteger) : TNumericField(owner, type) {}

  protected:
    ~TIntegerField() override = default;
    Variant Convert(const Variant& value) const override;
    Variant ConvertText(const UnicodeString& text) const override;
};

// Whole numbers of 64 bits.
class TLargeintField : public TNumericField {
  public:
    explicit TLargeintField(TComponent* owner) : TNumericField(owner, ftLargeint) {}

  protected:
    ~TLargeintField() override = default;
    Variant Convert(const Variant& value) const override;
    Variant ConvertText(const UnicodeString& text) const override;
    int DefaultWidth() const override { return 15; }
};

// FLOAT and DOUBLE PRECISION columns.
class TFloatField : public TNumericField {
  public:
    explicit TFloatField(TComponent* owner) : TNumericField(owner, ftFloat) {}

  protected:
    ~TFloatField() override = default;
    Variant Convert(const Variant& value) const override;
    Variant ConvertText(const UnicodeString& text) const override;
};

// NUMERIC and DECIMAL columns: exact decimals, which never pass through a double on their way between text,
// field and database. A value with more places than the column has is rounded half away from zero.
class TBCDField : public TNumericField {
  public:
    explicit TBCDField(TComponent* owner) : TNumericField(owner, ftBCD) {}

  protected:
    ~TBCDField() override = default;
    Variant Convert(const Variant& value) const override;
    Variant ConvertText(const UnicodeString& text) const override;
    UnicodeString ByMask(const UnicodeString& mask, const Variant& value) const override;

  private:
    bool FitsUnscaled(const Decimal& number) const;
};
