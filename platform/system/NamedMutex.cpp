#include "platform/system/NamedMutex.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <cerrno>
#include <QDir>
#include <QFile>

#include "platform/rtl/Files.h"
#include "platform/system/Paths.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr mode_t kRights = 0600;

// A folder of the user's own that the system empties by itself.
UnicodeString Folder() {
    const UnicodeString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!runtime.isEmpty() && QDir(runtime).exists()) return runtime;
    return JoinPath(QDir::tempPath(), u"fichario-%1"_s.arg(getuid()));
}

UnicodeString FileOf(const UnicodeString& name) {
    return JoinPath(Folder(), u"trava-"_s + QString::fromLatin1(name.toUtf8().toPercentEncoding()));
}

}  // namespace

TNamedMutex::TNamedMutex(const UnicodeString& name) {
    EnsureFolder(Folder());
    const UnicodeString file = FileOf(name);
    FHandle = open(QFile::encodeName(file).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, kRights);
    if (FHandle < 0) RaiseFileError(file, foWrite, errno);
}

TNamedMutex::~TNamedMutex() {
    close(FHandle);
}

bool TNamedMutex::TryLock() {
    return flock(FHandle, LOCK_EX | LOCK_NB) == 0;
}

void TNamedMutex::Unlock() {
    flock(FHandle, LOCK_UN);
}
