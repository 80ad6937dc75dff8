// Data-aware choices: a list of texts, and yes or no.
#pragma once
#include "platform/ui/DataAware.h"
#include "platform/ui/StdCtrls.h"

// The field's text among Items. A text that Items lacks shows as no choice.
class TDBComboBox : public TComboBox, public TDataAware {
  public:
    explicit TDBComboBox(TComponent* owner);

  protected:
    ~TDBComboBox() override;
    void DoExit() override;
    void Change() override;

  private:
    void ShowField();
};

// Checked and unchecked are two values of the field; any other value, null included, shows as neither.
class TDBCheckBox : public TCheckBox, public TDataAware {
  public:
    explicit TDBCheckBox(TComponent* owner);

    // The stored values, "S" and "N" at first. A boolean field takes true and false instead.
    const UnicodeString& ValueChecked() const { return FValueChecked; }
    const UnicodeString& ValueUnchecked() const { return FValueUnchecked; }
    void SetValueChecked(const UnicodeString& value);
    void SetValueUnchecked(const UnicodeString& value);

  protected:
    ~TDBCheckBox() override;
    void DoExit() override;

  private:
    void ShowField();
    void WriteField();

    UnicodeString FValueChecked = QStringLiteral("S");
    UnicodeString FValueUnchecked = QStringLiteral("N");
};
