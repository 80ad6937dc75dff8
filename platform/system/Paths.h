// Where things lie on disk. Paths use the platform's separator.
//
//     UnicodeString config = JoinPath(ProgramFolder(), u"Config.ini");
#pragma once
#include <QStringView>
#include "platform/rtl/Types.h"

// The folder of the running executable, without a trailing separator, or the one a test has set.
UnicodeString ProgramFolder();

// Sets what ProgramFolder answers; empty gives the executable's folder back.
void SetProgramFolder(const UnicodeString& folder);

// Both with exactly one separator between them; an empty part adds none.
UnicodeString JoinPath(QStringView folder, QStringView name);

// The folder where a program keeps what belongs to the user alone, not made yet: $XDG_DATA_HOME/<program>, or
// ~/.local/share/<program> (XDG Base Directory Specification 0.8).
UnicodeString UserDataFolder(QStringView program);

// Makes the folder and those above it where missing. Throws EInOutError with the cause.
void EnsureFolder(const UnicodeString& path);
