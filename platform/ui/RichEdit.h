// Rich text: an edit whose letters and paragraphs have looks, and the same on a blob or text field that holds
// RTF.
//
//     edit->SetBold(true);                     // the selection, or what is typed next
//     edit->SetAlignment(taCenter);            // the paragraphs of the selection
//     edit->OnSelectionChange = [this](TComponent*) { ShowButtons(); };
#pragma once
#include <QTextEdit>
#include "platform/ui/Control.h"
#include "platform/ui/DataAware.h"

class TRichEdit : public TWidget<QTextEdit> {
  public:
    explicit TRichEdit(TComponent* owner);

    // The text as RTF (see RtfDocument.h); empty for an empty text. Setting it fires OnSelectionChange only,
    // and nothing typed before can be undone any more.
    QByteArray Rtf() const;
    void SetRtf(const QByteArray& rtf);
    // Plain text, lines ended by CR LF.
    UnicodeString Text() const;

    int SelStart() const { return textCursor().selectionStart(); }
    int SelLength() const { return textCursor().selectionEnd() - SelStart(); }
    void SetSelection(int start, int length);
    // The line on screen that holds the selection's start, counted from 0, and the position of its first
    // letter.
    int CaretLine() const;
    int CaretLineStart() const;

    // Letters: of the selection, or of what is typed next. Reading tells of the selection's end.
    bool Bold() const { return Letters().fontWeight() >= QFont::Bold; }
    bool Italic() const { return Letters().fontItalic(); }
    bool Underline() const { return Letters().fontUnderline(); }
    QColor TextColor() const;
    void SetBold(bool bold);
    void SetItalic(bool italic);
    void SetUnderline(bool underline);
    void SetTextColor(const QColor& color);

    // Paragraphs that the selection touches. Reading tells of the caret's.
    TAlignment ParagraphAlignment() const;
    void SetParagraphAlignment(TAlignment alignment);
    bool Bullets() const;
    void SetBullets(bool bullets);

    bool WantReturns() const { return FWantReturns; }
    void SetWantReturns(bool want) { FWantReturns = want; }
    bool WantsEnter() const override { return FWantReturns; }

    std::function<void(TComponent* sender)> OnChange;
    // The caret moved, the selection or the looks at the caret changed.
    std::function<void(TComponent* sender)> OnSelectionChange;

  protected:
    ~TRichEdit() override = default;
    virtual void Change();
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QTextCharFormat Letters() const;
    QTextCursor SelectionStart() const;
    void Merge(const QTextCharFormat& format);
    void RemoveBullets();

    bool FWantReturns = true;
    bool FLoading = false;
};

// On a field that holds RTF: a binary or text blob, or a long text.
class TDBRichEdit : public TRichEdit, public TDataAware {
  public:
    explicit TDBRichEdit(TComponent* owner);
    using TDataAware::ReadOnly;
    using TDataAware::SetReadOnly;

  protected:
    ~TDBRichEdit() override;
    void DoExit() override;
    void Change() override;

  private:
    void ShowField();
    void StoreField();
};
