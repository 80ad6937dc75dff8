// Other programs: starting, waiting for, finding and ending them.
//
//     const int pid = StartProgram(JoinPath(ProgramFolder(), u"PartImport.exe"), {u"-impprt"_s});
//     UserInterface().WaitFor([&](int ms) { return HasEnded(pid, ms); });
//
// A program named X.exe is looked up as X.exe, then as X. Names of programs compare without folder, case and
// ".exe". No shell is ever involved, and no program inherits open files of this one: a tool that outlives the
// program would hold the database's locks.
#pragma once

#include <vector>

#include "platform/rtl/Types.h"

// Starts a program with its arguments and returns its process number. EOSError with the cause when it cannot
// be started; a name without a folder is searched in PATH.
int StartProgram(const UnicodeString& program, const TStringArray& arguments);

// Whether a program that this one has started has ended, waiting at most `milliseconds` for it. True for a
// process that is no child.
bool HasEnded(int pid, int milliseconds);

// Cuts a command line's arguments at blanks; double quotes hold blanks together, three make one.
TStringArray SplitArguments(const UnicodeString& commandLine);

// One running process: its number and the path of its program's file (its bare name where the path cannot be
// read).
struct TRunningProcess {
    int Pid;
    UnicodeString Path;
};
std::vector<TRunningProcess> RunningProcesses();

// Whether two names or paths of programs mean the same program.
bool SameProgram(QStringView a, QStringView b);

// Ends a process at once, without asking it. One that is gone or belongs to another user stays as it is.
void EndProcess(int pid);
