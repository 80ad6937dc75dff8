#include "forms/base/DialogBand.h"

#include "platform/ui/Form.h"
#include "platform/ui/Palette.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kMargin = 16;
constexpr int kIcon = 24;
constexpr int kTextLeft = kMargin + kIcon + 12;

}  // namespace

TDialogBand NewDialogBand(TForm& form, const UnicodeString& folder, const UnicodeString& icon,
                          const UnicodeString& text) {
    auto* panel =
        NewControl<TPanel>(&form, &form, u"PnFaixa"_s, QRect(0, 0, form.ClientWidth(), TDialogBand::kHeight));
    panel->SetAlign(alTop);
    panel->SetColor(Cores::Trabalho);
    TDialogBand band;
    band.Image = NewControl<TImage>(&form, panel, u"Image1"_s,
                                    QRect(kMargin, (TDialogBand::kHeight - kIcon) / 2, kIcon, kIcon));
    band.Image->SetResource(folder, icon);
    band.Text = NewControl<TLabel>(
        &form, panel, u"LbDescriaco"_s,
        QRect(kTextLeft, 4, panel->Width() - kTextLeft - kMargin, TDialogBand::kHeight - 8));
    band.Text->SetWordWrap(true);
    band.Text->SetAutoSize(false);
    band.Text->SetCaption(text);
    return band;
}
