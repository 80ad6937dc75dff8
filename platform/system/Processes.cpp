#include "platform/system/Processes.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <thread>

#include "platform/rtl/CodePage.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/Files.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView kEnding = u".exe";
constexpr unsigned kCloseOnExec = 4;  // CLOSE_RANGE_CLOEXEC
constexpr int kFirstOwnFile = 3;      // after the three standard ones

UnicodeString BareName(QStringView path) {
    const qsizetype folder = std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\'));
    QStringView name = path.sliced(folder + 1);
    if (name.endsWith(kEnding, Qt::CaseInsensitive)) name.chop(kEnding.size());
    return LowerText(name);
}

UnicodeString Existing(const UnicodeString& program) {
    if (QFile::exists(program) || !program.endsWith(kEnding, Qt::CaseInsensitive)) return program;
    const UnicodeString bare = program.chopped(kEnding.size());
    return QFile::exists(bare) || !program.contains(u'/') ? bare : program;
}

// The program's file; a process of another user shows only its name.
UnicodeString PathOf(const QString& pid) {
    const UnicodeString folder = u"/proc/"_s + pid;
    const UnicodeString path = QFile::symLinkTarget(folder + u"/exe"_s);
    if (!path.isEmpty()) return path;
    QFile name(folder + u"/comm"_s);
    if (!name.open(QIODevice::ReadOnly)) return {};
    return QString::fromUtf8(name.readAll()).trimmed();
}

bool IsZombie(const QString& pid) {
    QFile status(u"/proc/"_s + pid + u"/stat"_s);
    if (!status.open(QIODevice::ReadOnly)) return true;
    const QByteArray text = status.readAll();
    return text.mid(text.lastIndexOf(')') + 2, 1) == "Z";
}

}  // namespace

int StartProgram(const UnicodeString& program, const TStringArray& arguments) {
    std::vector<QByteArray> texts = {QFile::encodeName(Existing(program))};
    for (const UnicodeString& argument : arguments) texts.push_back(argument.toLocal8Bit());
    std::vector<char*> pointers;
    for (QByteArray& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    syscall(SYS_close_range, kFirstOwnFile, ~0U, kCloseOnExec);
    pid_t pid = 0;
    const int error =
        posix_spawnp(&pid, texts.front().constData(), nullptr, nullptr, pointers.data(), environ);
    if (error != 0)
        throw EOSError(u"Não foi possível executar '%1': %2."_s.arg(program, SystemErrorText(error)), error);
    return pid;
}

bool HasEnded(int pid, int milliseconds) {
    using namespace std::chrono;
    const auto deadline = steady_clock::now() + std::chrono::milliseconds(milliseconds);
    for (;;) {
        const pid_t ended = waitpid(pid, nullptr, WNOHANG);
        if (ended == pid || (ended < 0 && errno == ECHILD)) return true;
        if (steady_clock::now() >= deadline) return false;
        std::this_thread::sleep_for(5ms);
    }
}

TStringArray SplitArguments(const UnicodeString& commandLine) {
    const QStringList parts = QProcess::splitCommand(commandLine);
    return {parts.begin(), parts.end()};
}

std::vector<TRunningProcess> RunningProcesses() {
    std::vector<TRunningProcess> result;
    for (const QString& name : QDir(u"/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        bool isPid = false;
        const int pid = name.toInt(&isPid);
        if (!isPid || IsZombie(name)) continue;
        const UnicodeString path = PathOf(name);
        if (!path.isEmpty()) result.push_back({pid, path});
    }
    return result;
}

bool SameProgram(QStringView a, QStringView b) {
    return BareName(a) == BareName(b);
}

void EndProcess(int pid) {
    kill(pid, SIGKILL);
}
