#include "platform/ui/RichEdit.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextList>
#include "platform/ui/Guard.h"
#include "platform/ui/Palette.h"
#include "platform/ui/RtfDocument.h"

TRichEdit::TRichEdit(TComponent* owner) : TWidget(owner) {
    setTabChangesFocus(true);
    setAcceptRichText(false);  // pasted text takes the looks at the caret
    connect(this, &QTextEdit::textChanged, this, [this] {
        CalledByQt(this, [this] {
            if (!FLoading) Change();
        });
    });
    const auto moved = [this] {
        CalledByQt(this, [this] {
            if (!FLoading && OnSelectionChange) OnSelectionChange(this);
        });
    };
    connect(this, &QTextEdit::cursorPositionChanged, this, moved);
    connect(this, &QTextEdit::selectionChanged, this, moved);
    connect(this, &QTextEdit::currentCharFormatChanged, this, moved);
}

QByteArray TRichEdit::Rtf() const {
    return SaveRtf(*document());
}

void TRichEdit::SetRtf(const QByteArray& rtf) {
    {
        const QScopedValueRollback loading(FLoading, true);
        CallQt([&] {
            setUndoRedoEnabled(false);  // undoing must not lead back to another record's text
            LoadRtf(*document(), rtf);
            setUndoRedoEnabled(true);
            moveCursor(QTextCursor::Start);
        });
    }
    if (OnSelectionChange) OnSelectionChange(this);
}

UnicodeString TRichEdit::Text() const {
    return toPlainText().replace(u'\n', QStringLiteral("\r\n"));
}

void TRichEdit::SetSelection(int start, int length) {
    QTextCursor cursor = textCursor();
    const int last = document()->characterCount() - 1;
    cursor.setPosition(std::clamp(start, 0, last));
    cursor.setPosition(std::clamp(start + length, 0, last), QTextCursor::KeepAnchor);
    CallQt([&] { setTextCursor(cursor); });
}

QTextCursor TRichEdit::SelectionStart() const {
    QTextCursor start = textCursor();
    start.setPosition(start.selectionStart());
    return start;
}

int TRichEdit::CaretLine() const {
    int line = 0;
    const QTextCursor start = SelectionStart();
    for (QTextBlock block = document()->begin(); block != start.block(); block = block.next())
        line += block.lineCount();
    const QTextLine at = start.block().layout()->lineForTextPosition(start.positionInBlock());
    return line + (at.isValid() ? at.lineNumber() : 0);
}

int TRichEdit::CaretLineStart() const {
    const QTextCursor start = SelectionStart();
    const QTextLine at = start.block().layout()->lineForTextPosition(start.positionInBlock());
    return start.block().position() + (at.isValid() ? at.textStart() : 0);
}

// The format at a caret is that of the letter before it, which a selection made backwards does not contain.
QTextCharFormat TRichEdit::Letters() const {
    QTextCursor cursor = textCursor();
    if (!cursor.hasSelection()) return currentCharFormat();
    cursor.setPosition(cursor.selectionEnd());
    return cursor.charFormat();
}

QColor TRichEdit::TextColor() const {
    const QTextCharFormat format = Letters();
    return format.hasProperty(QTextFormat::ForegroundBrush) ? format.foreground().color() : Cores::Texto;
}

void TRichEdit::Merge(const QTextCharFormat& format) {
    CallQt([&] { mergeCurrentCharFormat(format); });
}

void TRichEdit::SetBold(bool bold) {
    QTextCharFormat format;
    format.setFontWeight(bold ? QFont::Bold : QFont::Normal);
    Merge(format);
}

void TRichEdit::SetItalic(bool italic) {
    QTextCharFormat format;
    format.setFontItalic(italic);
    Merge(format);
}

void TRichEdit::SetUnderline(bool underline) {
    QTextCharFormat format;
    format.setFontUnderline(underline);
    Merge(format);
}

void TRichEdit::SetTextColor(const QColor& color) {
    QTextCharFormat format;
    format.setForeground(color);
    Merge(format);
}

TAlignment TRichEdit::ParagraphAlignment() const {
    const Qt::Alignment align = textCursor().blockFormat().alignment();
    return align & Qt::AlignRight ? taRightJustify : align & Qt::AlignHCenter ? taCenter : taLeftJustify;
}

void TRichEdit::SetParagraphAlignment(TAlignment alignment) {
    const Qt::Alignment align = alignment == taRightJustify ? Qt::AlignRight
                                : alignment == taCenter     ? Qt::AlignHCenter
                                                            : Qt::AlignLeft;
    CallQt([&] { setAlignment(align); });
}

bool TRichEdit::Bullets() const {
    return textCursor().currentList() != nullptr;
}

void TRichEdit::SetBullets(bool bullets) {
    if (bullets == Bullets()) return;
    CallQt([&] {
        if (bullets) {
            textCursor().createList(QTextListFormat::ListDisc);
        } else {
            RemoveBullets();
        }
    });
}

// One paragraph at a time: each keeps its own alignment.
void TRichEdit::RemoveBullets() {
    QTextCursor all = textCursor();
    const int last = all.selectionEnd();
    all.beginEditBlock();
    for (QTextBlock block = SelectionStart().block(); block.isValid() && block.position() <= last;
         block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        format.setObjectIndex(-1);
        format.setIndent(0);
        QTextCursor(block).setBlockFormat(format);
    }
    all.endEditBlock();
}

void TRichEdit::Change() {
    if (OnChange) OnChange(this);
}

void TRichEdit::keyPressEvent(QKeyEvent* event) {
    if (!FWantReturns && VirtualKeyOf(*event) == VK_RETURN) {
        event->ignore();
    } else {
        TWidget::keyPressEvent(event);
    }
}

// ---- TDBRichEdit ----

TDBRichEdit::TDBRichEdit(TComponent* owner) : TRichEdit(owner), TDataAware(static_cast<TControl&>(*this)) {
    FLink.OnDataChange = [this] { ShowField(); };
    FLink.OnUpdateData = [this] { StoreField(); };
    FLink.OnEditingChange = [this] {
        setReadOnly(!FLink.CanModify());
        NameAfterField(*this);
    };
    setReadOnly(true);
}

TDBRichEdit::~TDBRichEdit() {
    FLink.SetDataSource(nullptr);
}

void TDBRichEdit::ShowField() {
    const bool filled = FLink.Active() && Field() && !Field()->IsNull();
    SetRtf(filled ? Field()->Value().ToBytes() : QByteArray());
}

// An emptied text is null in a blob.
void TDBRichEdit::StoreField() {
    const QByteArray rtf = Rtf();
    if (Field()->DataType() == ftBlob) {
        Field()->SetValue(rtf.isEmpty() ? Variant::Null() : Variant(rtf));
    } else {
        Field()->SetAsString(UnicodeString::fromLatin1(rtf));
    }
}

void TDBRichEdit::Change() {
    if (isReadOnly()) return;
    FLink.UserChanged();
    TRichEdit::Change();
}

void TDBRichEdit::DoExit() {
    FLink.Commit();
    TRichEdit::DoExit();
}
