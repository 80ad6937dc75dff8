// Icons out of files: .ico files, and the icons inside programs for Windows (.exe, .dll).
//
//     QImage icon = GetIconFromSize(u"/dados/sistema.exe"_s, 32);
//     if (icon.isNull()) …                                            // nothing to be had
#pragma once

#include <QImage>

#include "platform/rtl/Types.h"

// The file's first icon at `Size` × `Size` pixels (16 to 256): the picture of that size, else the next larger
// one, else the largest, scaled; of several of one size, the one with the most colours. A null image when the
// file cannot be read or holds no icon.
QImage GetIconFromSize(const UnicodeString& FileName, int Size);
