// The basic types of the package under the names every room uses.
//
//     UnicodeString name = QStringLiteral("Fichário");
//     WideChar first = name[0].unicode();
//
// Public functions that speak of a position in a text count from 1; inside, code uses QStringView and counts
// from 0.
#pragma once
#include <QByteArray>
#include <QString>
#include <vector>

// Text in UTF-16.
using UnicodeString = QString;

// One UTF-16 unit.
using WideChar = char16_t;

// Bytes in the system code page, see CodePage.h.
using AnsiString = QByteArray;

using TStringArray = std::vector<UnicodeString>;
using TIntegerArray = std::vector<int>;
