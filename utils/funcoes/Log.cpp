#include "utils/funcoes/Log.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <QFile>

#include "platform/rtl/CodePage.h"
#include "platform/rtl/DateTime.h"
#include "platform/rtl/Files.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/system/Paths.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr mode_t kRights = 0644;

UnicodeString Folder(TDateTime when) {
    const UnicodeString year = JoinPath(JoinPath(ProgramFolder(), u"Logs"), FormatDateTime(u"yyyy", when));
    return JoinPath(year, FormatDateTime(u"mm", when));
}

UnicodeString FileName(TDateTime when) {
    return JoinPath(Folder(when), FormatDateTime(u"dd", when) + u".log"_s);
}

// The day's file, open and locked against other writers; both end with the scope.
class TLogFile {
  public:
    explicit TLogFile(const UnicodeString& name) : FName(name) {
        CheckFileFailure(name, foWrite);
        FHandle =
            open(QFile::encodeName(name).constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, kRights);
        if (FHandle < 0) RaiseFileError(name, foWrite, errno);
        while (flock(FHandle, LOCK_EX) != 0 && errno == EINTR) {
        }
    }
    ~TLogFile() { close(FHandle); }
    TLogFile(const TLogFile&) = delete;
    TLogFile& operator=(const TLogFile&) = delete;

    void Append(const QByteArray& line) {
        struct stat before = {};
        fstat(FHandle, &before);
        qsizetype done = 0;
        while (done < line.size()) {
            const ssize_t written = write(FHandle, line.constData() + done, size_t(line.size() - done));
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) TakeBack(before.st_size, errno);
            done += written;
        }
    }

  private:
    [[noreturn]] void TakeBack(off_t size, int error) {
        static_cast<void>(!ftruncate(FHandle, size));
        RaiseFileError(FName, foWrite, error);
    }

    UnicodeString FName;
    int FHandle;
};

}  // namespace

UnicodeString LogFileName() {
    return FileName(Now());
}

void Log(const UnicodeString& message) {
    const TDateTime when = Now();
    EnsureFolder(Folder(when));
    TLogFile file(FileName(when));
    file.Append(ToAnsi(FormatDateTime(u"dd/mm/yyyy hh:nn:ss", when) + u": "_s + message + u"\r\n"_s));
}
