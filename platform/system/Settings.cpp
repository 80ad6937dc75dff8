#include "platform/system/Settings.h"

#include <QDir>
#include <QFileInfo>

#include "platform/rtl/IniFile.h"
#include "platform/system/Paths.h"

using namespace Qt::Literals::StringLiterals;

namespace {

UnicodeString FileOf(TRootKey root) {
    const UnicodeString own = qEnvironmentVariable("XDG_CONFIG_HOME");
    const UnicodeString user = own.isEmpty() ? JoinPath(QDir::homePath(), u".config") : own;
    return JoinPath(JoinPath(root == rkCurrentUser ? user : u"/etc"_s, u"fichario"), u"registro.ini");
}

}  // namespace

bool SettingsPathExists(TRootKey root, const UnicodeString& path) {
    return TIniFile(FileOf(root)).SectionExists(path);
}

std::optional<UnicodeString> ReadSetting(TRootKey root, const UnicodeString& path,
                                         const UnicodeString& name) {
    const TIniFile file(FileOf(root));
    if (!file.ValueExists(path, name)) return std::nullopt;
    return file.ReadString(path, name, {});
}

void WriteSetting(TRootKey root, const UnicodeString& path, const UnicodeString& name,
                  const UnicodeString& value) {
    const UnicodeString fileName = FileOf(root);
    EnsureFolder(QFileInfo(fileName).absolutePath());
    TIniFile(fileName).WriteString(path, name, value);
}
