#include "utils/funcoes/Sistema.h"

#include <unistd.h>
#include <QFileInfo>
#include <thread>

#include "platform/rtl/Exceptions.h"
#include "platform/system/Processes.h"
#include "platform/system/UserInterface.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr size_t kLongestName = 255;
constexpr int kForever = 1 << 30;  // milliseconds

// Without the ".exe" that a program's file need not have here.
bool SamePath(const UnicodeString& running, const UnicodeString& wanted) {
    const bool sameFolder =
        QFileInfo(running).path().compare(QFileInfo(wanted).path(), Qt::CaseInsensitive) == 0;
    return sameFolder && SameProgram(running, wanted);
}

}  // namespace

bool RegExists(TRootKey root, const UnicodeString& path, const UnicodeString& name) {
    return ReadSetting(root, path, name).has_value();
}

Variant GetRegValue(TRootKey root, const UnicodeString& path, const UnicodeString& name) {
    return ReadSetting(root, path, name).value_or(UnicodeString());
}

void SetRegValue(TRootKey root, const UnicodeString& path, const UnicodeString& name, const Variant& value) {
    WriteSetting(root, path, name, value.ToText());
}

UnicodeString GetSys32Dir() {
    return u"/usr/lib"_s;
}

UnicodeString GetComputerNameFunc() {
    char name[kLongestName + 1] = {};
    if (gethostname(name, kLongestName) != 0) return {};
    return QString::fromLocal8Bit(name).trimmed();
}

bool FindProcess(const UnicodeString& exeName, int& processId) {
    for (const TRunningProcess& process : RunningProcesses()) {
        if (!SameProgram(process.Path, exeName)) continue;
        processId = process.Pid;
        return true;
    }
    return false;
}

int FindProcessEx(const UnicodeString& fullPath) {
    for (const TRunningProcess& process : RunningProcesses()) {
        if (SamePath(process.Path, fullPath)) return process.Pid;
    }
    return 0;
}

void KillProcess(const UnicodeString& exeName) {
    int pid = 0;
    if (!exeName.isEmpty() && FindProcess(exeName, pid)) KillProcessEx(pid);
}

void KillProcessEx(int processId) {
    if (processId != 0) EndProcess(processId);
}

// Somebody has to take the ended program's exit code.
void OpenExec(const UnicodeString& exePath, const UnicodeString& parameters) {
    const int pid = StartProgram(exePath, SplitArguments(parameters));
    std::thread([pid] { HasEnded(pid, kForever); }).detach();
}

int OpenExecAndWait(const UnicodeString& exePath, const UnicodeString& parameters, int) {
    int pid = 0;
    try {
        pid = StartProgram(exePath, SplitArguments(parameters));
    } catch (const EOSError&) {
        return -1;
    }
    UserInterface().WaitFor([pid](int milliseconds) { return HasEnded(pid, milliseconds); });
    return 0;
}
