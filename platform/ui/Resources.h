// Pictures of the program, by folder and name: in a folder of the program's resources or of the disk, the
// name in lower case is a file "<name>.svg", ".png" or ".ico".
//
//     SetIcon(LoadIconResource(u":/fichario"_s, u"BTN_NOVO_24"_s));
#pragma once
#include <QIcon>
#include <QPixmap>
#include <QSize>
#include "platform/rtl/Types.h"

bool HasResource(const UnicodeString& folder, const UnicodeString& name);

// Each throws EResNotFound ("Resource X not found.") when there is no such picture.
QIcon LoadIconResource(const UnicodeString& folder, const UnicodeString& name);
// `size`: logical pixels, empty for the picture's own; `ratio`: the screen's device pixels for each. A
// drawing is rendered at that size, so it is sharp; a photograph is scaled.
QPixmap LoadBitmapResource(const UnicodeString& folder, const UnicodeString& name, QSize size = {},
                           qreal ratio = 1);
// The picture's own size in logical pixels.
QSize ResourceSize(const UnicodeString& folder, const UnicodeString& name);
