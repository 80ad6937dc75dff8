// The white band at the top of a dialog: an icon, and a sentence that says what the dialog is for.
//
//     const TDialogBand band = NewDialogBand(*this, folder, u"BTN_BUSCAR"_s, u"Escolha o campo…"_s);
//     Image1 = band.Image;
//     const int top = TDialogBand::kHeight + 16;      // where the dialog's own controls begin
#pragma once
#include "platform/ui/StdCtrls.h"

struct TDialogBand {
    static constexpr int kHeight = 56;

    TImage* Image;  // named Image1
    TLabel* Text;
};

// Owned by `form` and aligned to its top; set the form's width before. `folder` is the resource folder of
// the icon, drawn at 24 × 24; an empty folder shows no icon. EResNotFound.
TDialogBand NewDialogBand(TForm& form, const UnicodeString& folder, const UnicodeString& icon,
                          const UnicodeString& text);
