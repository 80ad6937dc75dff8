#include "forms/base/UFrameRichText.h"

#include <QScopedValueRollback>

#include "platform/ui/ImageList.h"
#include "platform/ui/Palette.h"
#include "platform/ui/Resources.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kBarHeight = 32;
constexpr int kIcon = 16;
constexpr int kColorsWidth = 120;
const UnicodeString kResources = u":/fichario"_s;  // the package's own pictures

struct TNamedColor {
    const char16_t* Name;
    QColor Color;
};

const std::array<TNamedColor, 8> kColors = {{{u"Preto", Cores::Texto},
                                             {u"Cinza", QColor(0x70, 0x70, 0x70)},
                                             {u"Vermelho", QColor(0xB3, 0x26, 0x1E)},
                                             {u"Laranja", QColor(0xC4, 0x62, 0x10)},
                                             {u"Verde", QColor(0x1E, 0x7B, 0x34)},
                                             {u"Azul", QColor(0x1F, 0x5F, 0xA8)},
                                             {u"Roxo", QColor(0x6A, 0x3F, 0xA0)},
                                             {u"Marrom", QColor(0x7A, 0x4A, 0x21)}}};

// A colour that is none of the box's shows no choice.
int IndexOf(const QColor& color) {
    for (size_t i = 0; i < kColors.size(); ++i) {
        if (kColors[i].Color.rgb() == color.rgb()) return int(i);
    }
    return -1;
}

QIcon Swatch(const QColor& color) {
    QPixmap pixmap(kIcon, kIcon);
    pixmap.fill(color);
    return pixmap;
}

}  // namespace

TFrameRichText::TFrameRichText(TComponent* owner) : TPanel(owner) {
    CreateBar(owner);
    CreateColors(owner);
    CreateEditor(owner);
}

void TFrameRichText::CreateBar(TComponent* owner) {
    ToolbarImages = new TImageList(owner, kIcon, kIcon);
    StandardToolBar = new TToolBar(owner);
    StandardToolBar->SetParent(this);
    StandardToolBar->SetAlign(alTop);
    StandardToolBar->SetHeight(kBarHeight);
    StandardToolBar->SetShowCaptions(false);
    StandardToolBar->SetImages(ToolbarImages);
    StandardToolBar->SetAccessibleName(u"Formatação"_s);
    BoldButton =
        AddButton(u"BoldButton"_s, u"Negrito (Ctrl+B)"_s, u"TXT_NEGRITO"_s, &TFrameRichText::BoldButtonClick);
    ItalicButton = AddButton(u"ItalicButton"_s, u"Itálico (Ctrl+I)"_s, u"TXT_ITALICO"_s,
                             &TFrameRichText::ItalicButtonClick);
    UnderlineButton = AddButton(u"UnderlineButton"_s, u"Sublinhado (Ctrl+U)"_s, u"TXT_SUBLINHADO"_s,
                                &TFrameRichText::UnderlineButtonClick);
    ToolButton3 = AddSeparator(u"ToolButton3"_s);
    LeftAlign = AddButton(u"LeftAlign"_s, u"Alinhar à esquerda (Ctrl+L)"_s, u"TXT_ESQUERDA"_s,
                          &TFrameRichText::LeftAlignClick);
    CenterAlign = AddButton(u"CenterAlign"_s, u"Centralizar (Ctrl+E)"_s, u"TXT_CENTRO"_s,
                            &TFrameRichText::CenterAlignClick);
    RightAlign = AddButton(u"RightAlign"_s, u"Alinhar à direita (Ctrl+R)"_s, u"TXT_DIREITA"_s,
                           &TFrameRichText::RightAlignClick);
    ToolButton7 = AddSeparator(u"ToolButton7"_s);
    BulletsButton = AddButton(u"BulletsButton"_s, u"Marcadores (Ctrl+Shift+L)"_s, u"TXT_MARCADORES"_s,
                              &TFrameRichText::BulletsButtonClick);
    ToolButton11 = AddSeparator(u"ToolButton11"_s);
}

TToolButton* TFrameRichText::AddButton(const UnicodeString& name, const UnicodeString& hint,
                                       const UnicodeString& icon, THandler click) {
    auto* button = new TToolButton(StandardToolBar->Owner());
    button->SetName(name);
    button->SetStyle(tbsCheck);
    button->SetHint(hint);
    button->SetAccessibleName(hint.section(u" ("_s, 0, 0));
    button->SetImageIndex(ToolbarImages->Add(LoadIconResource(kResources, icon)));
    button->OnClick = [this, click](TComponent* sender) { (this->*click)(sender); };
    button->SetParent(StandardToolBar);
    return button;
}

TToolButton* TFrameRichText::AddSeparator(const UnicodeString& name) {
    auto* separator = new TToolButton(StandardToolBar->Owner());
    separator->SetName(name);
    separator->SetStyle(tbsSeparator);
    separator->SetParent(StandardToolBar);
    return separator;
}

void TFrameRichText::CreateColors(TComponent* owner) {
    const int left = StandardToolBar->sizeHint().width() + 8;
    ColorBox1 = NewControl<TComboBox>(owner, StandardToolBar, u"ColorBox1"_s,
                                      QRect(left, (kBarHeight - kEditHeight) / 2, kColorsWidth, kEditHeight));
    for (size_t i = 0; i < kColors.size(); ++i) ColorBox1->Items()->Add(QString::fromUtf16(kColors[i].Name));
    for (size_t i = 0; i < kColors.size(); ++i) ColorBox1->setItemIcon(int(i), Swatch(kColors[i].Color));
    ColorBox1->SetItemIndex(0);
    ColorBox1->SetAccessibleName(u"Cor do texto"_s);
    ColorBox1->SetHint(u"Cor do texto (Ctrl+Shift+C)"_s);
    ColorBox1->setFocusPolicy(Qt::NoFocus);  // leaving the text stores it and loses the selection
    ColorBox1->OnChange = [this](TComponent* sender) { ColorBox1Change(sender); };
}

void TFrameRichText::CreateEditor(TComponent* owner) {
    Editor = new TDBRichEdit(owner);
    Editor->SetName(u"Editor"_s);
    Editor->SetParent(this);
    Editor->SetAlign(alClient);
    Editor->OnSelectionChange = [this](TComponent* sender) { EditorSelectionChange(sender); };
    Editor->OnKeyDown = [this](TComponent*, int& key, TShiftState shift) { EditorKeyDown(key, shift); };
    // A click on the bar stops here instead of giving the focus to the page below, as the toolkit would.
    StandardToolBar->setFocusProxy(Editor);
}

void TFrameRichText::EditorKeyDown(int& key, TShiftState shift) {
    if (shift == (ssCtrl | ssShift) && key == 'C') {
        key = 0;
        ColorBox1->showPopup();
    } else if (TToolButton* button = ButtonOfKey(key, shift)) {
        key = 0;
        button->Click();
    }
}

TToolButton* TFrameRichText::ButtonOfKey(int key, TShiftState shift) const {
    const struct {
        TShiftState Shift;
        int Key;
        TToolButton* Button;
    } keys[] = {{ssCtrl, 'B', BoldButton},
                {ssCtrl, 'I', ItalicButton},
                {ssCtrl, 'U', UnderlineButton},
                {ssCtrl, 'L', LeftAlign},
                {ssCtrl, 'E', CenterAlign},
                {ssCtrl, 'R', RightAlign},
                {ssCtrl | ssShift, 'L', BulletsButton}};
    for (const auto& each : keys) {
        if (each.Shift == shift && each.Key == key) return each.Button;
    }
    return nullptr;
}

// A button that could change nothing shows again what the text has.
void TFrameRichText::Change(const std::function<void()>& change) {
    if (FUpdating) return;
    if (!Editor->isReadOnly()) change();
    EditorSelectionChange(this);
}

void TFrameRichText::BoldButtonClick(TComponent*) {
    Change([this] { Editor->SetBold(BoldButton->Down()); });
}

void TFrameRichText::ItalicButtonClick(TComponent*) {
    Change([this] { Editor->SetItalic(ItalicButton->Down()); });
}

void TFrameRichText::UnderlineButtonClick(TComponent*) {
    Change([this] { Editor->SetUnderline(UnderlineButton->Down()); });
}

void TFrameRichText::Align(TAlignment alignment) {
    Change([&] { Editor->SetParagraphAlignment(alignment); });
}

void TFrameRichText::LeftAlignClick(TComponent*) {
    Align(taLeftJustify);
}

void TFrameRichText::CenterAlignClick(TComponent*) {
    Align(taCenter);
}

void TFrameRichText::RightAlignClick(TComponent*) {
    Align(taRightJustify);
}

void TFrameRichText::BulletsButtonClick(TComponent*) {
    Change([this] { Editor->SetBullets(BulletsButton->Down()); });
}

void TFrameRichText::ColorBox1Change(TComponent*) {
    const int chosen = ColorBox1->ItemIndex();
    if (chosen >= 0) Change([&] { Editor->SetTextColor(kColors[size_t(chosen)].Color); });
}

void TFrameRichText::EditorSelectionChange(TComponent*) {
    const QScopedValueRollback updating(FUpdating, true);
    BoldButton->SetDown(Editor->Bold());
    ItalicButton->SetDown(Editor->Italic());
    UnderlineButton->SetDown(Editor->Underline());
    BulletsButton->SetDown(Editor->Bullets());
    ColorBox1->SetItemIndex(IndexOf(Editor->TextColor()));
    const TAlignment alignment = Editor->ParagraphAlignment();
    LeftAlign->SetDown(alignment == taLeftJustify);
    CenterAlign->SetDown(alignment == taCenter);
    RightAlign->SetDown(alignment == taRightJustify);
    UpdateCursorPos();
}

void TFrameRichText::UpdateCursorPos() {
    FCursorLine = Editor->CaretLine();
    FCursorLineStart = Editor->CaretLineStart();
}
