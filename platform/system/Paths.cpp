#include "platform/system/Paths.h"

#include <cerrno>
#include <filesystem>
#include <QDir>
#include "platform/rtl/Files.h"

namespace {

UnicodeString& FolderForTests() {
    static UnicodeString folder;
    return folder;
}

// The kernel's link to the running executable.
UnicodeString ExecutableFolder() {
    return QString::fromStdString(std::filesystem::read_symlink("/proc/self/exe").parent_path().string());
}

UnicodeString UserDataRoot() {
    const QString configured = qEnvironmentVariable("XDG_DATA_HOME");
    // A relative path in the variable is to be ignored (XDG).
    return QDir::isAbsolutePath(configured) ? configured : QDir::homePath() + QStringLiteral("/.local/share");
}

}  // namespace

UnicodeString ProgramFolder() {
    return FolderForTests().isEmpty() ? ExecutableFolder() : FolderForTests();
}

void SetProgramFolder(const UnicodeString& folder) {
    FolderForTests() = folder;
}

UnicodeString JoinPath(QStringView folder, QStringView name) {
    const QChar separator = QDir::separator();
    if (folder.isEmpty() || name.isEmpty()) return folder.isEmpty() ? name.toString() : folder.toString();
    while (folder.endsWith(separator)) folder.chop(1);
    while (name.startsWith(separator)) name = name.sliced(1);
    return folder.toString() + separator + name.toString();
}

UnicodeString UserDataFolder(QStringView program) {
    return JoinPath(UserDataRoot(), program);
}

void EnsureFolder(const UnicodeString& path) {
    CheckFileFailure(path, foCreateFolder);
    errno = 0;
    if (!path.isEmpty() && !QDir().mkpath(path))
        RaiseFileError(path, foCreateFolder, errno != 0 ? errno : EIO);
}
