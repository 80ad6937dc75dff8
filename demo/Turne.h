// The tour: every screen of Comercial in its interesting states, written to PNG files for people to look at.
#pragma once

#include <QSize>

#include "platform/rtl/Types.h"

class TFrmPrincipal;

// Writes the pictures into `folder` (made when missing), with a main window of `size` pixels, and prints each
// one's path. Returns the program's exit code.
int WriteTour(TFrmPrincipal& main, const UnicodeString& folder, const QSize& size);
