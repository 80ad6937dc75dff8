#include "platform/ui/KeyStages.h"

#include <QApplication>
#include <QMenuBar>
#include <QWindow>
#include "platform/ui/ActiveForms.h"
#include "platform/ui/Form.h"

namespace {

QWidget* TopLevelOf(const QWindow& window) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->windowHandle() == &window) return widget;
    }
    return nullptr;
}

// Null where the hub keeps out: menus, boxes, windows that are no forms.
TForm* FormAt(QWidget* target) {
    if (!target || qobject_cast<QMenuBar*>(QApplication::focusWidget())) return nullptr;
    return FormOf(target);
}

// The control that a stroke for `target` belongs to; null when it is the form's own.
TControl* ControlAt(QWidget* target) {
    TControl* control = target ? ControlOf(target) : nullptr;
    return dynamic_cast<TForm*>(control) ? nullptr : control;
}

// The menus of the window around the form.
std::vector<TShortCutSource*> SourcesAround(const TForm& form) {
    const TForm* main = TActiveForms::Instance().MainForm();
    return form.Embedded() && main ? main->ShortCutSources() : std::vector<TShortCutSource*>();
}

// The form's menus first, then those of the window around it.
std::vector<TShortCutSource*> SourcesFor(const TForm& form) {
    std::vector<TShortCutSource*> sources = form.ShortCutSources();
    const std::vector<TShortCutSource*> around = SourcesAround(form);
    sources.insert(sources.end(), around.begin(), around.end());
    return sources;
}

bool RunControlMnemonic(const TControl& container, QChar letter) {
    const std::vector<TControl*> controls = container.Controls();
    return std::any_of(controls.begin(), controls.end(), [&](TControl* control) {
        if (!control->Showing() || !control->Enabled()) return false;
        return control->RunMnemonic(letter) || RunControlMnemonic(*control, letter);
    });
}

// A letter of the form itself, its controls included, hides that of the window around it.
bool RunMnemonic(const TForm& form, QChar letter) {
    const auto runs = [letter](TShortCutSource* source) { return source->RunMnemonic(letter); };
    return std::ranges::any_of(form.ShortCutSources(), runs) || RunControlMnemonic(form, letter) ||
           std::ranges::any_of(SourcesAround(form), runs);
}

bool RunMenus(const TForm& form, int key, TShiftState shift) {
    for (TShortCutSource* source : SourcesFor(form)) {
        if (source->RunShortCut(key, shift)) return true;
        if (key == VK_F10 && shift == 0 && source->OpenMenu()) return true;
    }
    return false;
}

bool RunShortCuts(const TForm& form, const QKeyEvent& stroke) {
    TShortCutKey key{VirtualKeyOf(stroke), ShiftStateOf(stroke.modifiers())};
    bool handled = false;
    if (form.OnShortCut) form.OnShortCut(key, handled);
    if (handled) return true;
    if (key.Key && RunMenus(form, key.Key, key.Shift)) return true;
    const QChar letter = stroke.key() < 0x10000 ? QChar(ushort(stroke.key())) : QChar();
    return key.Shift == ssAlt && letter.isLetterOrNumber() && RunMnemonic(form, letter);
}

// Enter and Escape of a form's default and cancel buttons.
bool RunDialogKey(const TControl& container, int key) {
    const std::vector<TControl*> controls = container.Controls();
    return std::any_of(controls.begin(), controls.end(), [&](TControl* control) {
        if (!control->Showing() || !control->Enabled()) return false;
        return control->DialogKey(key) || RunDialogKey(*control, key);
    });
}

bool TakenByButton(const TForm& form, const TControl* control, int key) {
    if (key == VK_RETURN && control && control->WantsEnter()) return false;
    return (key == VK_RETURN || key == VK_ESCAPE) && RunDialogKey(form, key);
}

// One stage for form and control. `value` is the key or character; 0 ends it.
template <class T, class F>
void RunStage(TForm& form, const QPointer<QWidget>& target, T& value, F run) {
    if (form.KeyPreview() || !ControlAt(target)) run(form, value);
    if (!value) return;
    TControl* control = ControlAt(target);
    if (control) run(*control, value);
}

int KeyOfCharacter(WideChar character) {
    if (character == VK_RETURN || character == VK_BACK || character == VK_ESCAPE) return QtKeyOf(character);
    const QChar upper = QChar(character).toUpper();
    return upper.unicode() < 0x100 ? upper.unicode() : int(Qt::Key_unknown);
}

void SendCharacter(QWidget& target, WideChar character) {
    QKeyEvent stroke(QEvent::KeyPress, KeyOfCharacter(character), Qt::NoModifier, QString(QChar(character)));
    QApplication::sendEvent(&target, &stroke);
}

void PassCharacter(TForm& form, const QPointer<QWidget>& target, WideChar& character) {
    RunStage(form, target, character, [](TControl& control, WideChar& key) { control.KeyPress(key); });
}

// The letters that the handlers let through; one that makes a handler throw is dropped.
QString PassText(TForm& form, const QPointer<QWidget>& target, const QString& text) {
    QString passed;
    for (const QChar letter : text) {
        WideChar character = 0;
        CalledByQt(&form, [&] {
            WideChar key = letter.unicode();
            PassCharacter(form, target, key);
            character = key;
        });
        if (character) passed += QChar(character);
        if (!target) break;
    }
    return passed;
}

}  // namespace

QWidget* StrokeTarget(const QWindow& window) {
    if (QWidget* popup = QApplication::activePopupWidget()) {
        return popup->focusWidget() ? popup->focusWidget() : popup;
    }
    QWidget* top = TopLevelOf(window);
    if (!top) return nullptr;
    if (QWidget* focus = top->focusWidget()) return focus;
    const TForm* active = TActiveForms::Instance().Active();
    return active && active->Widget()->window() == top ? active->Widget() : top;
}

bool TKeyStages::Announced(QWindow& window, QKeyEvent& stroke) {
    FTaken = 0;
    TForm* form = FormAt(StrokeTarget(window));
    if (!form) return true;
    bool taken = true;
    if (form->Enabled()) CalledByQt(form, [&] { taken = RunShortCuts(*form, stroke); });
    if (!taken && !QApplication::activePopupWidget()) return true;
    if (taken) FTaken = stroke.key();
    stroke.accept();
    return false;
}

bool TKeyStages::Pressed(QWindow& window, QKeyEvent& stroke) {
    if (FTaken && std::exchange(FTaken, 0) == stroke.key()) return false;
    QWidget* target = StrokeTarget(window);
    TForm* form = FormAt(target);
    if (!form) return true;
    if (!form->Enabled()) return false;
    const QPointer<QWidget> kept = target;
    bool goesOn = false;
    CalledByQt(form, [&] { goesOn = PassStroke(*form, *target, stroke); });
    if (!goesOn || !kept) return false;
    if (StrokeTarget(window) == kept) return PassToList(*kept, stroke);
    QKeyEvent copy(QEvent::KeyPress, stroke.key(), stroke.modifiers(), stroke.text(), stroke.isAutoRepeat());
    QApplication::sendEvent(kept, &copy);
    return false;
}

// A control's list chooses and closes already when a stroke is announced, before any handler has seen it. So
// it hears of the stroke only now; answers whether it is still there for the stroke itself.
bool TKeyStages::PassToList(QWidget& target, const QKeyEvent& stroke) {
    const QPointer<QWidget> list = QApplication::activePopupWidget();
    if (!list) return true;
    QKeyEvent announced(QEvent::ShortcutOverride, stroke.key(), stroke.modifiers(), stroke.text());
    QApplication::sendEvent(&target, &announced);
    return list && list->isVisible();
}

// A changed character goes to the control as a stroke of its own.
bool TKeyStages::PassStroke(TForm& form, QWidget& target, QKeyEvent& stroke) {
    const QPointer<QWidget> kept = &target;
    const QPointer<QWidget> window = form.Widget();
    int key = VirtualKeyOf(stroke);
    if (TakenByButton(form, ControlAt(kept), key)) return false;
    if (key) {
        const TShiftState shift = ShiftStateOf(stroke.modifiers());
        RunStage(form, kept, key, [shift](TControl& control, int& value) { control.KeyDown(value, shift); });
        if (!key || !window || !form.Visible()) return false;
    }
    const WideChar typed = CharacterOf(stroke);
    if (!typed) return true;
    WideChar character = typed;
    PassCharacter(form, kept, character);
    if (character == typed) return true;
    if (character && kept) SendCharacter(*kept, character);
    return false;
}

bool TKeyStages::Committed(QWidget& widget, QInputMethodEvent& event) {
    TForm* form = &event == FOwn || event.commitString().isEmpty() ? nullptr : FormAt(&widget);
    if (!form) return true;
    if (!form->Enabled()) return false;
    const QPointer<QWidget> target = &widget;
    const QString passed = PassText(*form, target, event.commitString());
    if (!target) return false;
    const TControl* control = ControlAt(target);
    const bool asKeys = control && control->Widget() == target && control->TextAsKeys();
    if (passed == event.commitString() && !asKeys) return true;
    QInputMethodEvent rest(event.preeditString(), event.attributes());
    rest.setCommitString(asKeys ? QString() : passed, event.replacementStart(), event.replacementLength());
    FOwn = &rest;
    QApplication::sendEvent(target, &rest);
    FOwn = nullptr;
    for (const QChar letter : asKeys ? passed : QString()) {
        if (target) SendCharacter(*target, letter.unicode());
    }
    return false;
}
