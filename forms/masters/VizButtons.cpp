// The view master's toolbar: its icons, and the buttons that a host adds, moves and removes.
#include "forms/masters/UViz_Master.h"
#include "platform/rtl/CodePage.h"
#include "utils/funcoes/Janelas.h"

int TFrmViz_Master::LoadIcon(const UnicodeString& IconName) {
    const UnicodeString wanted = LowerText(IconName);
    for (const auto& [name, index] : FIcons) {
        if (name == wanted) return index;
    }
    const int index = AddIcon(IconName, rtICO, true);
    FIcons.emplace_back(wanted, index);
    return index;
}

void TFrmViz_Master::LoadBitmaps() {
    FHeader.Load(Module->ModuleResources());
    for (const char16_t* name :
         {u"BTN_NOVO", u"BTN_ALTERAR", u"BTN_EXCLUIR", u"BTN_IMPRIMIR", u"BTN_BUSCAR"}) {
        AddIcon(QString::fromUtf16(name), rtPNG, false);
    }
}

TToolButton* TFrmViz_Master::CreateButton(const UnicodeString& Name, const UnicodeString& Caption,
                                          const UnicodeString& IconName, int Position,
                                          std::function<void(TComponent*)> OnClick) {
    const int image = LoadIcon(IconName);
    const TDrawLock lock(this);
    auto* button = new TToolButton(this);
    button->SetName(Name);
    button->SetCaption(Caption);
    button->SetImageIndex(image);
    button->OnClick = std::move(OnClick);
    if (TBButtons->ButtonCount() > 0) {
        const TToolButton* last = TBButtons->Buttons(TBButtons->ButtonCount() - 1);
        button->SetLeft(last->Left() + last->Width());
    }
    button->SetParent(TBButtons);
    InternalSetButtonPosition(button, Position);
    FixToolBarSize();
    return button;
}

void TFrmViz_Master::DestroyButton(const UnicodeString& Name) {
    for (int i = 0; i < TBButtons->ButtonCount(); ++i) {
        TToolButton* button = TBButtons->Buttons(i);
        if (button->Name() != Name) continue;
        for (TToolButton** own : {&BtnNovo, &BtnAlterar, &BtnExcluir, &BtnImprimir, &BtnBuscar}) {
            if (*own == button) *own = nullptr;
        }
        button->Free();
        break;
    }
    FixToolBarSize();
}

void TFrmViz_Master::SetButtonPosition(TToolButton* Button, int Position) {
    const TDrawLock lock(this);
    InternalSetButtonPosition(Button, Position);
    FixToolBarSize();
}

void TFrmViz_Master::InternalSetButtonPosition(TToolButton* Button, int Position) {
    if (Position < 0 || Position >= TBButtons->ButtonCount()) return;
    Button->SetLeft(TBButtons->Buttons(Position)->Left());
}
