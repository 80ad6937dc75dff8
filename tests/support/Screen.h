// Hands and eyes for the tests of screens: keys and clicks go to the window as the user's would, boxes are
// announced before they come, and nothing sleeps.
//
//     Press(VK_INSERT);
//     TypeText(u"Maria"_s);
//     ExpectBox(u"Confirma os dados?"_s, u"Confirmação"_s, 36, IDYES);
//     Press(VK_F12);
//     EXPECT_TRUE(Until([&] { return !view->ChildForm(); }));
#pragma once

#include <functional>
#include <QPoint>

#include "platform/rtl/Types.h"
#include "platform/system/UserInterface.h"
#include "platform/ui/Keys.h"

class TComponent;
class TControl;
class TForm;
class QWidget;

// One key stroke, and a text letter by letter, sent to the window of the active form.
void Press(int key, TShiftState shift = 0);
void TypeText(const UnicodeString& text);
// A text as an input method commits it (letters typed with dead keys), to the widget that has the focus.
void CommitText(const UnicodeString& text);

// A click, or a double click, of the left button in the middle of a control; the other ones at a place of a
// widget.
void Click(TControl* control);
void DoubleClick(TControl* control);
void ClickAt(QWidget* widget, QPoint at);

// Presses the left button at `from`, moves in steps and releases it at `to`, in the widget's coordinates.
void Drag(QWidget* widget, QPoint from, QPoint to);

// A turn of the wheel over the middle of a widget: 120 for each notch, negative towards the user.
void Wheel(QWidget* widget, int turn);

// Lets the program go on until `done` is true, at most five seconds. Returns what `done` says in the end.
bool Until(const std::function<bool()>& done);

// Lets the program do what is waiting now.
void Settle();

// Announces the next message box: it must come with exactly these, and is answered with `answer`. A box that
// comes unannounced fails the test and is answered with No or Cancel; one that was announced and did not come
// fails it too.
void ExpectBox(const UnicodeString& text, const UnicodeString& caption, int flags, int answer = IDOK);

// Announces the next modal form: `act` runs once it is shown, and must bring it to an end. One that comes
// unannounced fails the test and is answered with Cancel.
void ExpectModal(const std::function<void(TForm* form)>& act);

// The control of that name among what a form (or any component) owns; fails the test when there is none.
template <class T>
T* Find(TComponent* owner, const UnicodeString& name);

TComponent* FindOwned(TComponent* owner, const UnicodeString& name);

template <class T>
T* Find(TComponent* owner, const UnicodeString& name) {
    return dynamic_cast<T*>(FindOwned(owner, name));
}

// Answers boxes and watches them, for the whole run.
void WatchScreen();
