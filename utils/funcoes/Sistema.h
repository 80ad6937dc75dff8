// System helpers: settings outside of the program's files, the machine, and other programs.
//
//     OpenExec(JoinPath(ProgramFolder(), u"GridReport.exe"), u"-o5281"_s);      // returns at once
//     if (OpenExecAndWait(tool, u"-impprt 11222333000181"_s, SW_SHOWNORMAL) < 0) …
//
// Programs are started without a shell, named X.exe or X (platform/system/Processes.h); command-line texts
// are cut at blanks, double quotes hold blanks together.
#pragma once

#include "platform/rtl/Types.h"
#include "platform/rtl/Variant.h"
#include "platform/system/Settings.h"

// Asks a library for its version; kept for hosts that load libraries themselves.
using TVersaoDLL = int (*)();

// ---- settings: a root, a path, a name ----

// Whether the path exists, which is never made here, and holds the named value.
bool RegExists(TRootKey root, const UnicodeString& path, const UnicodeString& name);
// The value as a text; the empty text when it is missing.
Variant GetRegValue(TRootKey root, const UnicodeString& path, const UnicodeString& name);
// Writes the value as text and makes the path when missing. EInOutError.
void SetRegValue(TRootKey root, const UnicodeString& path, const UnicodeString& name, const Variant& value);

// ---- the machine ----

// The system's folder of programs' libraries, without a trailing separator.
UnicodeString GetSys32Dir();
// The machine's name; empty when the system does not tell.
UnicodeString GetComputerNameFunc();

// ---- other programs ----

// How a started program's window is to show; systems that leave it to the program ignore it.
enum TShowMode { SW_HIDE = 0, SW_SHOWNORMAL = 1, SW_SHOWMINIMIZED = 2, SW_SHOWMAXIMIZED = 3 };

// Whether a program of that name runs, and its process number (unchanged when not). Folder, case and ".exe"
// do not count.
bool FindProcess(const UnicodeString& exeName, int& processId);
// The number of the first process whose program is exactly that file, whatever the case; 0 when there is
// none.
int FindProcessEx(const UnicodeString& fullPath);
// Ends the first process of that name; nothing for an empty or unknown one. No failure is reported.
void KillProcess(const UnicodeString& exeName);
// The same by number; nothing for 0.
void KillProcessEx(int processId);

// Starts a program and returns at once. EOSError with the cause.
void OpenExec(const UnicodeString& exePath, const UnicodeString& parameters);
// Starts a program and waits until it has ended; meanwhile the windows paint but take no input. 0 when it was
// started, -1 when it could not be.
int OpenExecAndWait(const UnicodeString& exePath, const UnicodeString& parameters, int showMode);
