// The first icon group of a program for Windows, as the bytes of an .ico file.
//
//     QByteArray ico = IconFileOfProgram(file.readAll());
//
// Source of the layouts: "PE Format" (portable executable, .rsrc section) and the resource format of icon
// groups, as published for that system.
#pragma once

#include <QByteArray>

// Empty when `program` is no portable executable, has no icon, or is damaged. Never reads outside of it.
QByteArray IconFileOfProgram(const QByteArray& program);
