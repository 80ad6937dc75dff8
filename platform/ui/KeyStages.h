// The stages of one key stroke, and of a text of an input method, as the key hub runs them.
#pragma once
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>

class QWindow;
class TControl;
class TForm;

class TKeyStages {
  public:
    // Each answers whether the toolkit goes on with the event.

    // The stroke is announced to a window: short cuts and mnemonics.
    bool Announced(QWindow& window, QKeyEvent& stroke);
    // The stroke itself: key down and character.
    bool Pressed(QWindow& window, QKeyEvent& stroke);
    // An input method commits text to a widget.
    bool Committed(QWidget& widget, QInputMethodEvent& event);

  private:
    bool PassToList(QWidget& target, const QKeyEvent& stroke);
    bool PassStroke(TForm& form, QWidget& target, QKeyEvent& stroke);

    int FTaken = 0;                           // the toolkit's key of a stroke that a short cut took
    const QInputMethodEvent* FOwn = nullptr;  // sent by us
};

// The widget that a stroke of that window is for; null when it has none.
QWidget* StrokeTarget(const QWindow& window);
