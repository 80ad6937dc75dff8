#include "platform/ui/Application.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QPointer>
#include <QWidget>
#include "platform/ui/ActiveForms.h"
#include "platform/ui/Form.h"
#include "platform/ui/InputHub.h"

using namespace Qt::Literals::StringLiterals;

TApplication* Application = nullptr;

namespace {

constexpr int kWaitInSilence = 250;  // milliseconds
constexpr int kWaitStep = 15;

UnicodeString TextOf(const std::exception_ptr& exception) {
    try {
        std::rethrow_exception(exception);
    } catch (const EAbort&) {
        return {};
    } catch (const Exception& e) {
        return e.Message;
    } catch (const std::exception& e) {
        return UnicodeString::fromLocal8Bit(e.what());
    } catch (...) {
        return u"Erro desconhecido."_s;
    }
}

// What a press of the mouse did to the focus is told after the press: a box in the middle of it would swallow
// it.
void FocusChanged(QWidget* now) {
    TCallFrame frame(TCallFrame::Handler);
    try {
        TActiveForms::Instance().FocusMoved(now);
    } catch (...) {
        frame.Caught(true);
    }
}

}  // namespace

struct TApplication::THeldBack {
    QPointer<QObject> Context;
    std::function<void()> Run;
};

TApplication::TApplication()
    : TComponent(nullptr),
      FReceiver(std::make_unique<TInputHub>()),
      FFormerRoot(SetApplicationRoot(this)),
      FFormerInterface(InstallUserInterface(this)) {
    Application = this;
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(qApp, &QApplication::focusChanged, FReceiver.get(),
                     [](QWidget*, QWidget* now) { FocusChanged(now); });
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     FReceiver.get(), [this] { Idle(); });
}

TApplication::~TApplication() {
    while (!Forms().empty()) Forms().back()->Free();
    FreeOwned();
    InstallUserInterface(FFormerInterface);
    SetApplicationRoot(FFormerRoot);
    FReceiver.reset();
    Application = nullptr;
}

TForm* TApplication::MainForm() const {
    return TActiveForms::Instance().MainForm();
}

void TApplication::SetMainForm(TForm* form) {
    TActiveForms::Instance().SetMainForm(form);
}

TForm* TApplication::ActiveForm() const {
    return TActiveForms::Instance().Active();
}

const std::vector<TForm*>& TApplication::Forms() const {
    return TActiveForms::Instance().Forms();
}

void TApplication::ProcessMessages() {
    RunLoop([] { QCoreApplication::processEvents(); });
}

void TApplication::EnableMainForm(bool enabled) {
    if (TForm* main = MainForm()) main->SetEnabled(enabled);
}

void TApplication::BringToFront() {
    TForm* front = ActiveForm() ? ActiveForm() : MainForm();
    if (!front) return;
    QWidget* window = front->Widget()->window();
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->raise();
    window->activateWindow();
}

void TApplication::WaitFor(const std::function<bool(int milliseconds)>& doneWithin) {
    if (doneWithin(FWaiting ? 0 : kWaitInSilence)) return;
    struct TClosed {
        TApplication& Self;
        explicit TClosed(TApplication& self) : Self(self) {
            if (Self.FWaiting++ == 0) Self.FWaitCancelled = false;
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        }
        ~TClosed() {
            QCoreApplication::processEvents();  // what was typed under the hourglass is lost here
            QGuiApplication::restoreOverrideCursor();
            if (--Self.FWaiting == 0) Self.ReleaseHeldBack();
        }
    } closed(*this);
    RunLoop([&] {
        do {
            QCoreApplication::processEvents();
        } while (!doneWithin(kWaitStep));
    });
}

void TApplication::AfterWait(QObject* context, std::function<void()> later) {
    FHeldBack.push_back({context, std::move(later)});
}

void TApplication::ReleaseHeldBack() {
    for (const THeldBack& held : std::exchange(FHeldBack, {})) {
        if (held.Context) QMetaObject::invokeMethod(held.Context, held.Run, Qt::QueuedConnection);
    }
}

void TApplication::HandleException(std::exception_ptr exception) {
    try {
        std::rethrow_exception(exception);
    } catch (const EAbort&) {
        return;
    } catch (const Exception& e) {
        if (OnException) return OnException(e);
    } catch (...) {
        if (OnException) return OnException(Exception(TextOf(exception)));
    }
    MessageBox(TextOf(exception), u"Erro"_s, MB_OK | MB_ICONERROR);
}

void TApplication::QueueException(std::exception_ptr exception) {
    const UnicodeString text = TextOf(exception);
    for (const std::exception_ptr& queued : FQueued) {
        if (TextOf(queued) == text) return;
    }
    FQueued.push_back(exception);
    QMetaObject::invokeMethod(
        FReceiver.get(), [this] { ShowQueued(); }, Qt::QueuedConnection);
}

// The text stays queued while it is shown, so that a paint which fails again behind the box does not queue it
// anew.
void TApplication::ShowQueued() {
    if (FQueued.empty()) return;
    if (Waiting()) return AfterWait(FReceiver.get(), [this] { ShowQueued(); });
    RunLoop([this] { HandleException(FQueued.front()); });
    FQueued.pop_front();
}

int TApplication::Run() {
    if (TForm* main = MainForm()) main->Show();
    const int code = FTerminated ? 0 : RunLoop([] { return QCoreApplication::exec(); });
    if (TForm* main = MainForm()) main->Free();
    return code;
}

void TApplication::Terminate() {
    FTerminated = true;
    QCoreApplication::quit();
}

void TApplication::Idle() {
    if (OnIdle && !Waiting()) CalledByQt([this] { OnIdle(); });
}
