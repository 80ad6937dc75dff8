// The queued events of forms, between the parts of this folder.
#pragma once
#include <QEvent>
#include "platform/ui/Messages.h"

// A message of PostMessage, and what it holds.
QEvent::Type MessageEventType();
TMessage MessageOf(const QEvent& event);

// A closed form's turn to be freed.
QEvent::Type ReleaseEventType();
