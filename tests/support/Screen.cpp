#include "tests/support/Screen.h"

#include <gtest/gtest.h>
#include <deque>
#include <QApplication>
#include <QElapsedTimer>
#include <QInputMethodEvent>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include "platform/ui/Application.h"
#include "platform/ui/Control.h"
#include "platform/ui/Form.h"

namespace {

constexpr int kPatienceMs = 5000;
constexpr int kDragSteps = 4;

struct TExpected {
    TBox Box;
    int Answer;
};

std::deque<TExpected>& Announced() {
    static std::deque<TExpected> announced;
    return announced;
}

std::deque<std::function<void(TForm*)>>& AnnouncedForms() {
    static std::deque<std::function<void(TForm*)>> announced;
    return announced;
}

int Refusal(int flags) {
    switch (flags & MB_TYPEMASK) {
        case MB_YESNO: return IDNO;
        case MB_OK: return IDOK;
        default: return IDCANCEL;
    }
}

int Answer(const TBox& box) {
    if (Announced().empty()) {
        ADD_FAILURE() << "unannounced box: " << qPrintable(box.Text);
        return Refusal(box.Flags);
    }
    const TExpected expected = Announced().front();
    Announced().pop_front();
    EXPECT_EQ(box.Text.toStdString(), expected.Box.Text.toStdString());
    EXPECT_EQ(box.Caption.toStdString(), expected.Box.Caption.toStdString());
    EXPECT_EQ(box.Flags, expected.Box.Flags);
    return expected.Answer;
}

void MeetModal(TForm* form) {
    if (AnnouncedForms().empty()) {
        ADD_FAILURE() << "unannounced modal form: " << qPrintable(form->Caption());
        form->SetModalResult(IDCANCEL);
        return;
    }
    const auto act = AnnouncedForms().front();
    AnnouncedForms().pop_front();
    act(form);
}

class TBoxWatch : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override {
        Announced().clear();
        AnnouncedForms().clear();
    }
    void OnTestEnd(const testing::TestInfo&) override {
        for (const TExpected& missing : Announced()) {
            ADD_FAILURE() << "announced box that did not come: " << qPrintable(missing.Box.Text);
        }
        if (!AnnouncedForms().empty()) ADD_FAILURE() << "announced modal form that did not come";
    }
};

QWindow* KeyWindow() {
    const TForm* form = Application->ActiveForm();
    return form ? form->Widget()->window()->windowHandle() : QGuiApplication::focusWindow();
}

}  // namespace

void Press(int key, TShiftState shift) {
    QWindow* window = KeyWindow();
    if (!window) {
        ADD_FAILURE() << "no window to type into";
        return;
    }
    QTest::keyClick(window, QtKeyOf(key), ModifiersOf(shift));
    Settle();
}

void TypeText(const UnicodeString& text) {
    for (const QChar letter : text) {
        QWindow* window = KeyWindow();
        if (!window) return;
        QTest::sendKeyEvent(QTest::Click, window, Qt::Key(letter.toUpper().unicode()), QString(letter),
                            Qt::NoModifier);
        Settle();
    }
}

void CommitText(const UnicodeString& text) {
    QWidget* focus = QApplication::focusWidget();
    if (!focus) {
        ADD_FAILURE() << "no widget to type into";
        return;
    }
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(focus, &event);
    Settle();
}

void ClickAt(QWidget* widget, QPoint at) {
    QTest::mouseClick(widget->window()->windowHandle(), Qt::LeftButton, {},
                      widget->mapTo(widget->window(), at));
    Settle();
}

void Click(TControl* control) {
    ClickAt(control->Widget(), control->Widget()->rect().center());
}

void DoubleClick(TControl* control) {
    QWidget* widget = control->Widget();
    QTest::mouseDClick(widget->window()->windowHandle(), Qt::LeftButton, {},
                       widget->mapTo(widget->window(), widget->rect().center()));
    Settle();
}

void Drag(QWidget* widget, QPoint from, QPoint to) {
    QWidget* top = widget->window();
    QWindow* window = top->windowHandle();
    const QPoint start = widget->mapTo(top, from);
    const QPoint end = widget->mapTo(top, to);
    QTest::mousePress(window, Qt::LeftButton, {}, start);
    for (int step = 1; step <= kDragSteps; ++step) {
        QTest::mouseMove(window, start + (end - start) * step / kDragSteps);
    }
    QTest::mouseRelease(window, Qt::LeftButton, {}, end);
    Settle();
}

void Wheel(QWidget* widget, int turn) {
    const QPointF at = widget->rect().center();
    QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, turn}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

bool Until(const std::function<bool()>& done) {
    QElapsedTimer waited;
    waited.start();
    while (!done() && waited.elapsed() < kPatienceMs) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return done();
}

void Settle() {
    for (int i = 0; i < 5; ++i) Application->ProcessMessages();
}

void ExpectBox(const UnicodeString& text, const UnicodeString& caption, int flags, int answer) {
    Announced().push_back({{text, caption, flags}, answer});
}

void ExpectModal(const std::function<void(TForm* form)>& act) {
    AnnouncedForms().push_back(act);
}

TComponent* FindOwned(TComponent* owner, const UnicodeString& name) {
    TComponent* found = owner->FindComponent(name);
    if (!found) ADD_FAILURE() << "no component named " << qPrintable(name);
    return found;
}

void WatchScreen() {
    Application->OnMessageBox = Answer;
    Application->OnModal = MeetModal;
    testing::UnitTest::GetInstance()->listeners().Append(new TBoxWatch);
}
