// Fields of CHAR and VARCHAR columns, and of BOOLEAN ones.
#pragma once
#include "platform/data/fields/BaseField.h"

// Text. CHAR values come without their trailing blanks. Texts longer than Size are refused when the record is
// posted.
class TStringField : public TField {
  public:
    explicit TStringField(TComponent* owner, TFieldType type = ftString) : TField(owner, type) {}

    UnicodeString AsString() const override { return Value().ToText(); }

  protected:
    ~TStringField() override = default;
    Variant Convert(const Variant& value) const override;
    Variant ConvertText(const UnicodeString& text) const override;
    int DefaultWidth() const override;
};

// True and false; as text "Sim" and "Não" ("True", "False", "S", "N", "1" and "0" are understood as well).
class TBooleanField : public TField {
  public:
    explicit TBooleanField(TComponent* owner) : TField(owner, ftBoolean) {}

  protected:
    ~TBooleanField() override = default;
    Variant Convert(const Variant& value) const override;
    Variant ConvertText(const UnicodeString& text) const override;
    UnicodeString FormatValue(const Variant& value, bool display) const override;
    int DefaultWidth() const override { return 5; }
};
