// Lays labelled data-aware controls on a page, left to right and row by row, so that captions stand above
// their edits on one baseline and every edit has the same height.
//
//     TFicha ficha(this, page, MainDS);
//     ficha.Edit(u"NM_CLI"_s, 380);              // caption: the field's DisplayLabel
//     ficha.Edit(u"FANTASIA"_s, 240);
//     ficha.NewRow();
//     ficha.Combo(u"NM_EST"_s, {u"SP"_s, u"RJ"_s}, 70);
//
// Controls are made in the order of the calls, which is the order of the keyboard and of the required-field
// check.
#pragma once

#include <functional>
#include <QRect>

#include "platform/rtl/Types.h"

class TButton;
class TComponent;
class TControl;
class TDataSource;
class TDBCheckBox;
class TDBComboBox;
class TDBEdit;
class TDBLookupComboBox;

class TFicha {
  public:
    // `owner` is the form that will own the controls, `page` their parent; `source` must have its dataset
    // already.
    TFicha(TComponent* owner, TControl* page, TDataSource* source);

    // A labelled edit of `width` pixels on `fieldName`. A field that does not exist raises the dataset's
    // error.
    TDBEdit* Edit(const UnicodeString& fieldName, int width);

    // The same, of which the user can only read and copy.
    TDBEdit* ReadOnlyEdit(const UnicodeString& fieldName, int width);

    // A labelled list of `items` to choose from.
    TDBComboBox* Combo(const UnicodeString& fieldName, const TStringArray& items, int width);

    // A labelled choice of one row of `list`: the field takes its `keyField`, the user sees its `listField`.
    TDBLookupComboBox* LookupCombo(const UnicodeString& fieldName, TDataSource* list,
                                   const UnicodeString& keyField, const UnicodeString& listField, int width);

    // A check box that stores 'S' and 'N'; its caption stands beside it, on the line of the edits.
    TDBCheckBox* Check(const UnicodeString& fieldName, int width);

    // A small button right after the control placed last (`edit`), for a lookup search: F2 in the edit does
    // the same as the button, where Tab does not stop.
    TButton* Lookup(TDBEdit* edit, const std::function<void()>& search);

    // A captioned area over whole rows for a control that the ficha does not make; goes on below it.
    QRect Area(const UnicodeString& caption, int width, int height);

    // Goes on below, at the left margin.
    void NewRow();

  private:
    void Caption(const UnicodeString& caption, int width);
    template <class T>
    T* Place(T* control, const UnicodeString& fieldName, int width, bool labelled);

    TComponent* FOwner;
    TControl* FPage;
    TDataSource* FSource;
    int FLeft;
    int FTop;
};
