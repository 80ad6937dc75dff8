#include "platform/rtl/FileDraft.h"

#include <fcntl.h>
#include <unistd.h>
#include <cerrno>
#include <cstdio>
#include <QFile>

#include "platform/rtl/Files.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// False leaves the cause in errno.
bool Flushed(const QByteArray& name) {
    const int file = open(name.constData(), O_RDONLY | O_CLOEXEC);
    if (file < 0) return false;
    const bool flushed = fsync(file) == 0;
    const int cause = errno;
    close(file);
    errno = cause;
    return flushed;
}

}  // namespace

TFileDraft::TFileDraft(const UnicodeString& path) : FPath(path), FName(path + u".novo"_s) {
    QFile::remove(FName);
}

TFileDraft::~TFileDraft() {
    QFile::remove(FName);
}

// QFile::rename does not replace a file, the system's own call does, at once.
void TFileDraft::Commit() {
    CheckFileFailure(FPath, foWrite);
    const QByteArray name = QFile::encodeName(FName);
    const bool placed =
        Flushed(name) && std::rename(name.constData(), QFile::encodeName(FPath).constData()) == 0;
    if (!placed) RaiseFileError(FPath, foWrite, errno);
}
