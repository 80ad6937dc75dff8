#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include "platform/ui/OneLine.h"
#include "platform/ui/StdCtrls.h"

namespace {

constexpr int kNoLimit = 32767;

}  // namespace

TEdit::TEdit(TComponent* owner) : TWidget(owner) {
    setValidator(new TOneLine(this));
    connect(this, &QLineEdit::textChanged, this, [this] { CalledByQt(this, [this] { Change(); }); });
}

void TEdit::DoSetText(const UnicodeString& text) {
    if (text == this->text()) return;
    CallQt([&] { setText(text); });
}

// A read-only edit looks like what it is.
void TEdit::SetReadOnly(bool readOnly) {
    setReadOnly(readOnly);
    update();
}

void TEdit::SetMaxLength(int length) {
    FMaxLength = length;
    setMaxLength(length > 0 ? length : kNoLimit);
}

void TEdit::SetAlignment(TAlignment alignment) {
    setAlignment(alignment == taRightJustify ? Qt::AlignRight
                 : alignment == taCenter     ? Qt::AlignHCenter
                                             : Qt::AlignLeft);
}

void TEdit::Change() {
    if (OnChange) OnChange(this);
}

TMaskEdit::TMaskEdit(TComponent* owner) : TEdit(owner) {}

UnicodeString TMaskEdit::DoText() const {
    return FMask.IsEmpty() ? text() : FMask.Value(text());
}

void TMaskEdit::DoSetText(const UnicodeString& text) {
    TEdit::DoSetText(FMask.IsEmpty() ? text : FMask.Apply(text));
    if (!FMask.IsEmpty()) setCursorPosition(NextPlace(0));
}

void TMaskEdit::SetEditMask(const UnicodeString& mask) {
    if (mask == EditMask()) return;
    const UnicodeString value = Text();
    FMask = TEditMask(mask);
    if (!FMask.IsEmpty()) SetMaxLength(0);  // a limit shorter than the mask would cut its places off
    DoSetText(value);
}

// The first place at or after `position` (from 0) that takes a character; the length when there is none.
int TMaskEdit::NextPlace(int position) const {
    while (position < FMask.Length() && FMask.IsLiteral(position + 1)) ++position;
    return position;
}

// Letters that their place does not take are left out.
void TMaskEdit::TypeAt(const UnicodeString& letters) {
    if (hasSelectedText()) EraseAt(selectionStart(), selectionEnd(), selectionStart());
    UnicodeString all = text();
    int caret = cursorPosition();
    for (const QChar letter : letters) {
        const int place = NextPlace(caret);
        if (place >= std::min<qsizetype>(FMask.Length(), all.size())) break;
        const auto accepted = FMask.Accept(place + 1, letter.unicode());
        if (!accepted) continue;
        all[place] = QChar(*accepted);
        caret = NextPlace(place + 1);
    }
    if (all != text()) setText(all);
    setCursorPosition(caret);
}

void TMaskEdit::EraseAt(int from, int to, int caret) {
    UnicodeString all = text();
    for (int i = std::max(0, from); i < std::min(to, FMask.Length()); ++i) {
        if (!FMask.IsLiteral(i + 1)) all[i] = QChar(FMask.Blank());
    }
    if (all != text()) setText(all);
    setCursorPosition(caret);
}

bool TMaskEdit::EraseKey(const QKeyEvent& event) {
    const bool back = event.key() == Qt::Key_Backspace;
    if (!back && event.key() != Qt::Key_Delete) return false;
    if (hasSelectedText()) {
        EraseAt(selectionStart(), selectionEnd(), selectionStart());
    } else if (back) {
        int place = cursorPosition() - 1;
        while (place > 0 && FMask.IsLiteral(place + 1)) --place;
        if (place >= 0) EraseAt(place, place + 1, place);
    } else {
        const int place = NextPlace(cursorPosition());
        EraseAt(place, place + 1, place);
    }
    return true;
}

void TMaskEdit::Paste() {
    CallQt([this] { TypeAt(QApplication::clipboard()->text()); });
}

void TMaskEdit::keyPressEvent(QKeyEvent* event) {
    if (FMask.IsEmpty() || isReadOnly()) return TEdit::keyPressEvent(event);
    const WideChar character = CharacterOf(*event);
    if (event->matches(QKeySequence::Paste)) {
        Paste();
    } else if (event->matches(QKeySequence::Cut)) {
        copy();
        EraseAt(selectionStart(), selectionEnd(), selectionStart());
    } else if (character >= VK_SPACE) {
        TypeAt(QChar(character));
    } else if (!EraseKey(*event)) {
        TEdit::keyPressEvent(event);
    }
}

void TMaskEdit::inputMethodEvent(QInputMethodEvent* event) {
    if (FMask.IsEmpty() || isReadOnly()) return TEdit::inputMethodEvent(event);
    TypeAt(event->commitString());
    event->accept();
}
