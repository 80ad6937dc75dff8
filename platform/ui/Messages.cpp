#include "platform/ui/Messages.h"

#include <QCoreApplication>
#include "platform/ui/Form.h"
#include "platform/ui/FormEvents.h"

namespace {

class TPosted : public QEvent {
  public:
    explicit TPosted(const TMessage& message) : QEvent(MessageEventType()), Message(message) {}
    TMessage Message;
};

}  // namespace

QEvent::Type MessageEventType() {
    static const auto type = QEvent::Type(QEvent::registerEventType());
    return type;
}

TMessage MessageOf(const QEvent& event) {
    return static_cast<const TPosted&>(event).Message;
}

void PostMessage(TForm* form, int msg, intptr_t wParam, intptr_t lParam) {
    if (form) QCoreApplication::postEvent(form->Widget(), new TPosted({msg, wParam, lParam, 0}));
}
