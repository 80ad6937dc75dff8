#include "platform/ui/InputHub.h"

#include <QApplication>
#include <QWindow>
#include "platform/ui/ActiveForms.h"
#include "platform/ui/Application.h"
#include "platform/ui/Form.h"

namespace {

TInputHub* hub = nullptr;

QEvent::Type InjectedEventType() {
    static const auto type = QEvent::Type(QEvent::registerEventType());
    return type;
}

bool IsInput(QEvent::Type type) {
    switch (type) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::Shortcut:
        case QEvent::InputMethod:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TabletPress:
        case QEvent::Drop:
        case QEvent::Close: return true;
        default: return false;
    }
}

// All that a closed wait hears.
void NoteEscape(const QEvent& event) {
    if (event.type() != QEvent::KeyPress && event.type() != QEvent::ShortcutOverride) return;
    if (static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape) Application->CancelWait();
}

QWindow* WindowForStrokes() {
    if (QWindow* window = QGuiApplication::focusWindow()) return window;
    const TForm* active = TActiveForms::Instance().Active();
    return active ? active->Widget()->window()->windowHandle() : nullptr;
}

QString TextOfStroke(const TShortCutKey& stroke) {
    if (stroke.Key >= VK_F1 || stroke.Shift & (ssAlt | ssCtrl)) return {};
    const QChar letter = QChar(ushort(stroke.Key));
    if (stroke.Key <= VK_SPACE) return letter;
    return letter.isLetterOrNumber() ? QString(stroke.Shift & ssShift ? letter : letter.toLower())
                                     : QString();
}

void SendStroke(QWindow* window, const TShortCutKey& stroke) {
    const QPointer<QWindow> kept = window;
    const Qt::Key key = QtKeyOf(stroke.Key);
    for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, ModifiersOf(stroke.Shift), TextOfStroke(stroke));
        if (type == QEvent::ShortcutOverride) event.ignore();
        if (kept) QCoreApplication::sendEvent(kept, &event);
    }
}

}  // namespace

TInputHub::TInputHub() {
    hub = this;
    qApp->installEventFilter(this);
}

TInputHub::~TInputHub() {
    hub = nullptr;
}

void TInputHub::Inject(const TShortCutKey& stroke) {
    FInjected.push_back(stroke);
    QCoreApplication::postEvent(this, new QEvent(InjectedEventType()));
}

bool TInputHub::event(QEvent* event) {
    if (event->type() != InjectedEventType()) return QObject::event(event);
    if (Application->Waiting()) {
        Application->AfterWait(this, [this] { DeliverInjected(); });
    } else {
        DeliverInjected();
    }
    return true;
}

void TInputHub::DeliverInjected() {
    if (FInjected.empty()) return;
    const TShortCutKey stroke = FInjected.front();
    FInjected.pop_front();
    if (QWindow* window = WindowForStrokes()) SendStroke(window, stroke);
}

bool TInputHub::eventFilter(QObject* receiver, QEvent* event) {
    if (Application->Waiting() && IsInput(event->type())) {
        NoteEscape(*event);
        return true;
    }
    if (receiver->isWindowType()) return FilterWindow(static_cast<QWindow&>(*receiver), *event);
    return receiver->isWidgetType() && FilterWidget(static_cast<QWidget&>(*receiver), *event);
}

bool TInputHub::FilterWindow(QWindow& window, QEvent& event) {
    switch (event.type()) {
        case QEvent::ShortcutOverride: return !FStages.Announced(window, static_cast<QKeyEvent&>(event));
        case QEvent::KeyPress: return !FStages.Pressed(window, static_cast<QKeyEvent&>(event));
        case QEvent::MouseButtonPress: TActiveForms::Instance().TakeRefusal(); return false;
        default: return false;
    }
}

// The toolkit moves the focus before the widget hears of the press.
bool TInputHub::FilterWidget(QWidget& widget, QEvent& event) {
    switch (event.type()) {
        case QEvent::InputMethod: return !FStages.Committed(widget, static_cast<QInputMethodEvent&>(event));
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            if (TActiveForms::Instance().TakeRefusal()) return true;
            CalledByQt([&] { TActiveForms::Instance().MousePressed(&widget); });
            return false;
        default: return false;
    }
}

void InjectKey(int key, TShiftState shift) {
    if (hub) hub->Inject({key, shift});
}

void DropInjectedKeys() {
    if (hub) hub->DropInjected();
}
