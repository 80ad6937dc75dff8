#include "platform/ui/StdCtrls.h"

#include <QPainter>
#include "platform/ui/Form.h"
#include "platform/ui/Mnemonic.h"
#include "platform/ui/Palette.h"
#include "platform/ui/Resources.h"

namespace {

Qt::Alignment QtAlignment(TAlignment alignment) {
    switch (alignment) {
        case taRightJustify: return Qt::AlignRight | Qt::AlignVCenter;
        case taCenter: return Qt::AlignHCenter | Qt::AlignVCenter;
        default: return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

}  // namespace

TLabel::TLabel(TComponent* owner) : TWidget(owner) {
    setAlignment(QtAlignment(taLeftJustify));
}

void TLabel::SetCaption(const UnicodeString& caption) {
    TWidget::SetCaption(caption);
    // Without a buddy the toolkit would show the "&".
    setBuddy(this);
    setText(caption);
    Fit();
}

void TLabel::SetFont(const QFont& font) {
    TWidget::SetFont(font);
    Fit();
}

void TLabel::SetAutoSize(bool autoSize) {
    FAutoSize = autoSize;
    Fit();
}

void TLabel::Fit() {
    if (!FAutoSize || wordWrap() || Align() != alNone) return;
    const QSize size = sizeHint();
    const int left = alignment() & Qt::AlignRight ? Left() + Width() - size.width() : Left();
    SetBounds(left, Top(), size.width(), size.height());
}

void TLabel::SetAlignment(TAlignment alignment) {
    setAlignment(QtAlignment(alignment));
}

void TLabel::SetWordWrap(bool wrap) {
    setWordWrap(wrap);
}

void TLabel::SetFocusControl(TControl* control) {
    FFocusControl = control;
    FFocusNotice =
        control ? control->AddFreeNotification([this] { FFocusControl = nullptr; }) : TFreeNotice();
    if (control && control->AccessibleName().isEmpty())
        control->SetAccessibleName(UnicodeString(Caption()).remove(u'&'));
}

bool TLabel::RunMnemonic(QChar letter) {
    if (!FFocusControl || !HasMnemonic(Caption(), letter) || !FFocusControl->CanFocus()) return false;
    FFocusControl->SetFocus();
    return true;
}

TPanel::TPanel(TComponent* owner) : TWidget(owner) {}

void TPanel::SetBorder(bool border) {
    FBorder = border;
    update();
}

void TPanel::SetCaption(const UnicodeString& caption) {
    TWidget::SetCaption(caption);
    if (AccessibleName().isEmpty()) SetAccessibleName(caption);
}

void TPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (FBorder) {
        painter.setPen(Cores::Fio);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (Caption().isEmpty()) return;
    painter.setPen(FontColor());
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, Caption());
}

TCheckBox::TCheckBox(TComponent* owner) : TWidget(owner) {}

void TCheckBox::SetCaption(const UnicodeString& caption) {
    TWidget::SetCaption(caption);
    setText(caption);
}

TCheckBoxState TCheckBox::State() const {
    return checkState() == Qt::PartiallyChecked ? cbGrayed : isChecked() ? cbChecked : cbUnchecked;
}

void TCheckBox::SetState(TCheckBoxState state) {
    setCheckState(state == cbGrayed    ? Qt::PartiallyChecked
                  : state == cbChecked ? Qt::Checked
                                       : Qt::Unchecked);
}

void TCheckBox::nextCheckState() {
    SetChecked(State() != cbChecked);
}

bool TCheckBox::RunMnemonic(QChar letter) {
    if (!HasMnemonic(Caption(), letter) || !CanFocus()) return false;
    SetFocus();
    click();
    return true;
}

TButton::TButton(TComponent* owner) : TWidget(owner) {
    setAutoDefault(true);
    resize(80, kEditHeight);
}

void TButton::SetCaption(const UnicodeString& caption) {
    TWidget::SetCaption(caption);
    setText(caption);
}

void TButton::SetDefault(bool isDefault) {
    setDefault(isDefault);
    update();
}

bool TButton::DialogKey(int key) {
    const bool mine = (key == VK_RETURN && isDefault()) || (key == VK_ESCAPE && FCancel);
    if (mine) click();
    return mine;
}

bool TButton::RunMnemonic(QChar letter) {
    if (!HasMnemonic(Caption(), letter) || !CanFocus()) return false;
    SetFocus();
    click();
    return true;
}

void TButton::DoClick() {
    TForm* form = Form();
    if (form && FModalResult) form->SetModalResult(FModalResult);
    TWidget::DoClick();
}

TMemo::TMemo(TComponent* owner) : TWidget(owner) {
    setTabChangesFocus(true);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { CalledByQt(this, [this] { Change(); }); });
}

UnicodeString TMemo::Text() const {
    return toPlainText().replace(u'\n', QStringLiteral("\r\n"));
}

void TMemo::SetText(const UnicodeString& text) {
    if (text == Text()) return;
    CallQt([&] { setPlainText(text); });
}

void TMemo::SetWordWrap(bool wrap) {
    setLineWrapMode(wrap ? WidgetWidth : NoWrap);
}

void TMemo::Change() {
    if (OnChange) OnChange(this);
}

void TMemo::keyPressEvent(QKeyEvent* event) {
    if (!FWantReturns && VirtualKeyOf(*event) == VK_RETURN) {
        event->ignore();
    } else {
        TWidget::keyPressEvent(event);
    }
}

TImage::TImage(TComponent* owner) : TWidget(owner) {}

void TImage::SetResource(const UnicodeString& folder, const UnicodeString& name) {
    SetIcon(folder.isEmpty() ? QIcon() : LoadIconResource(folder, name));
}

void TImage::SetIcon(const QIcon& icon) {
    FIcon = icon;
    update();
}

void TImage::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    FIcon.paint(&painter, rect());
}
