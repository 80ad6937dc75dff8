// A rich text frame: a tool bar for looks above an edit on a field that holds RTF.
//
//     auto* frame = new TFrameRichText(this);
//     frame->SetParent(page);
//     frame->SetBounds(16, 16, 560, 260);
//     frame->Editor->SetDataSource(MainDS);
//     frame->Editor->SetDataField(u"OBS"_s);
//
// Keys, in the text: Ctrl+B, I, U for bold, italic, underline; Ctrl+L, E, R for left, centre, right;
// Ctrl+Shift+L for bullets, Ctrl+Shift+C for the colours. A read-only text keeps its looks.
#pragma once

#include <functional>

#include "platform/ui/RichEdit.h"
#include "platform/ui/StdCtrls.h"
#include "platform/ui/ToolBar.h"

class TImageList;

class TFrameRichText : public TPanel {
  public:
    // `owner` is the form; it owns the frame and its controls.
    explicit TFrameRichText(TComponent* owner);

    TImageList* ToolbarImages = nullptr;
    TToolBar* StandardToolBar = nullptr;
    TComboBox* ColorBox1 = nullptr;
    TToolButton* BoldButton = nullptr;
    TToolButton* ItalicButton = nullptr;
    TToolButton* UnderlineButton = nullptr;
    TToolButton* ToolButton3 = nullptr;  // separators
    TToolButton* LeftAlign = nullptr;
    TToolButton* CenterAlign = nullptr;
    TToolButton* RightAlign = nullptr;
    TToolButton* ToolButton7 = nullptr;
    TToolButton* BulletsButton = nullptr;
    TToolButton* ToolButton11 = nullptr;
    TDBRichEdit* Editor = nullptr;

    // The line that holds the selection's start, and the position of its first letter; kept by
    // UpdateCursorPos.
    int CursorLine() const { return FCursorLine; }
    int CursorLineStart() const { return FCursorLineStart; }
    void UpdateCursorPos();

    void BoldButtonClick(TComponent* Sender);
    void ItalicButtonClick(TComponent* Sender);
    void UnderlineButtonClick(TComponent* Sender);
    void LeftAlignClick(TComponent* Sender);
    void CenterAlignClick(TComponent* Sender);
    void RightAlignClick(TComponent* Sender);
    void BulletsButtonClick(TComponent* Sender);
    void ColorBox1Change(TComponent* Sender);
    void EditorSelectionChange(TComponent* Sender);

  protected:
    ~TFrameRichText() override = default;

  private:
    using THandler = void (TFrameRichText::*)(TComponent*);
    TToolButton* AddButton(const UnicodeString& name, const UnicodeString& hint, const UnicodeString& icon,
                           THandler click);
    TToolButton* AddSeparator(const UnicodeString& name);
    void CreateBar(TComponent* owner);
    void CreateColors(TComponent* owner);
    void CreateEditor(TComponent* owner);
    void Change(const std::function<void()>& change);
    void Align(TAlignment alignment);
    TToolButton* ButtonOfKey(int key, TShiftState shift) const;
    void EditorKeyDown(int& key, TShiftState shift);

    bool FUpdating = false;  // the buttons are being set from the text
    int FCursorLine = 0;
    int FCursorLineStart = 0;
};
