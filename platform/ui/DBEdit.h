// Data-aware texts: one line, many lines, and one that only shows.
#pragma once
#include "platform/ui/DataAware.h"
#include "platform/ui/StdCtrls.h"

// One line, with the edit mask of its field. With the focus it shows the value as it is typed, otherwise as
// people read it.
class TDBEdit : public TMaskEdit, public TDataAware {
  public:
    explicit TDBEdit(TComponent* owner);
    using TDataAware::ReadOnly;
    using TDataAware::SetReadOnly;

  protected:
    ~TDBEdit() override;
    void DoEnter() override;
    void DoExit() override;
    void Change() override;

  private:
    void ShowField();
    // What the field gets: the mask's value. EConvertError while the mask is only partly filled.
    UnicodeString TypedText() const;
    bool FShowing = false;
};

// Many lines.
class TDBMemo : public TMemo, public TDataAware {
  public:
    explicit TDBMemo(TComponent* owner);
    using TDataAware::ReadOnly;
    using TDataAware::SetReadOnly;

  protected:
    ~TDBMemo() override;
    void DoExit() override;
    void Change() override;

  private:
    void ShowField();
    bool FShowing = false;
};

// A label that shows the field's text.
class TDBText : public TLabel, public TDataAware {
  public:
    explicit TDBText(TComponent* owner);

  protected:
    ~TDBText() override;
};
