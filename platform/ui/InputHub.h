// The one filter on the events of the application: keys, text of input methods, presses of the mouse, and the
// closed wait, during which nothing gets through.
#pragma once
#include <deque>
#include <QObject>
#include "platform/ui/KeyHub.h"
#include "platform/ui/KeyStages.h"

class TInputHub : public QObject {
  public:
    TInputHub();
    ~TInputHub() override;

    // Queues a stroke.
    void Inject(const TShortCutKey& stroke);
    // Forgets the strokes that are queued.
    void DropInjected() { FInjected.clear(); }

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;
    bool event(QEvent* event) override;

  private:
    bool FilterWindow(QWindow& window, QEvent& event);
    bool FilterWidget(QWidget& widget, QEvent& event);
    void DeliverInjected();

    TKeyStages FStages;
    std::deque<TShortCutKey> FInjected;
};
