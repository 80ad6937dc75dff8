#include "forms/base/UWaitScreen.h"

#include "platform/ui/Palette.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kClientWidth = 433;
constexpr int kClientHeight = 149;
constexpr int kTextLeft = 72;
const UnicodeString kResources = u":/fichario"_s;  // the package's own pictures

}  // namespace

TFrmWaitScreen::TFrmWaitScreen(TComponent* AOwner) : TForm(AOwner) {
    SetBorderStyle(bsDialog);
    SetBorderIcons(0);
    SetPosition(poMainFormCenter);
}

void TFrmWaitScreen::CreateControls() {
    TForm::CreateControls();
    SetCaption(u"Aguarde..."_s);
    SetColor(Cores::Trabalho);
    QFont font(u"Verdana"_s);
    font.setPointSize(Font().pointSize());
    SetFont(font);
    SetClientWidth(kClientWidth);
    SetClientHeight(kClientHeight);
    Image1 = NewControl<TImage>(this, this, u"Image1"_s, QRect(8, 8, 48, 48));
    Image1->SetResource(kResources, u"IMG_AGUARDE"_s);
    Label1 = NewControl<TLabel>(this, this, u"Label1"_s, QRect(kTextLeft, 24, 10, 16));
    Label1->SetCaption(u"Por favor, aguarde…"_s);
    Label2 = NewControl<TLabel>(this, this, u"Label2"_s,
                                QRect(kTextLeft, 64, kClientWidth - kTextLeft - 16, kClientHeight - 80));
    Label2->SetAutoSize(false);
    Label2->SetWordWrap(true);
    OnCloseQuery = [this](TComponent* sender, bool& canClose) { FormCloseQuery(sender, canClose); };
    OnClose = [this](TComponent* sender, TCloseAction& action) { FormClose(sender, action); };
}

void TFrmWaitScreen::SetText(const UnicodeString& text) {
    Label2->SetCaption(text);
    Widget()->repaint();
}

void TFrmWaitScreen::FormCloseQuery(TComponent*, bool& CanClose) {
    CanClose = Tag() == 1;
}

void TFrmWaitScreen::FormClose(TComponent*, TCloseAction& Action) {
    Action = caFree;
}
