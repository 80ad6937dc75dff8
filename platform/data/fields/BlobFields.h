// Fields of blobs. The content is read from the database when it is first asked for.
#pragma once
#include "platform/data/fields/BaseField.h"

// Any bytes. Shown as "(BLOB)", empty when null.
class TBlobField : public TField {
  public:
    explicit TBlobField(TComponent* owner, TFieldType type = ftBlob) : TField(owner, type) {}

    // The content; empty when null. EFDError when it cannot be read.
    QByteArray AsBytes() const;
    void SetAsBytes(const QByteArray& bytes);

  protected:
    ~TBlobField() override = default;
    Variant Convert(const Variant& value) const override;
    Variant ConvertText(const UnicodeString& text) const override;
    UnicodeString FormatValue(const Variant& value, bool display) const override;
};

// Text blobs. Read and written as text.
class TMemoField : public TBlobField {
  public:
    explicit TMemoField(TComponent* owner) : TBlobField(owner, ftMemo) {}

  protected:
    ~TMemoField() override = default;
    Variant Convert(const Variant& value) const override;
    Variant ConvertText(const UnicodeString& text) const override;
    UnicodeString FormatValue(const Variant& value, bool display) const override;
};
