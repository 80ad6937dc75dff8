// Fields of dates, times and time stamps. Values are TDateTime; no time zone is ever consulted.
#pragma once
#include "platform/data/fields/BaseField.h"

// What dates and times share: the display format, a pattern of FormatDateTime; empty: FormatSettings' own.
class TDateTimeField : public TField {
  public:
    UnicodeString DisplayFormat() const { return FDisplayFormat; }
    void SetDisplayFormat(const UnicodeString& pattern);

  protected:
    using TField::TField;
    ~TDateTimeField() override = default;
    UnicodeString FormatValue(const Variant& value, bool display) const override;
    Variant Convert(const Variant& value) const override;

  private:
    UnicodeString FDisplayFormat;
};

// DATE columns.
class TDateField : public TDateTimeField {
  public:
    explicit TDateField(TComponent* owner) : TDateTimeField(owner, ftDate) {}

  protected:
    ~TDateField() override = default;
    Variant ConvertText(const UnicodeString& text) const override;
};

// TIME columns.
class TTimeField : public TDateTimeField {
  public:
    explicit TTimeField(TComponent* owner) : TDateTimeField(owner, ftTime) {}

  protected:
    ~TTimeField() override = default;
    Variant ConvertText(const UnicodeString& text) const override;
};

// TIMESTAMP columns.
class TSQLTimeStampField : public TField {
  public:
    explicit TSQLTimeStampField(TComponent* owner) : TField(owner, ftTimeStamp) {}

    UnicodeString DisplayFormat() const { return FDisplayFormat; }
    void SetDisplayFormat(const UnicodeString& pattern);

  protected:
    ~TSQLTimeStampField() override = default;
    UnicodeString FormatValue(const Variant& value, bool display) const override;
    Variant Convert(const Variant& value) const override;
    Variant ConvertText(const UnicodeString& text) const override;
    int DefaultWidth() const override { return 18; }

  private:
    UnicodeString FDisplayFormat;
};
