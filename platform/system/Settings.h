// Named settings of the user and of the machine, outside of any program's folder: what other systems keep in
// a registry.
//
//     WriteSetting(rkCurrentUser, u"Software\\Comercial"_s, u"Impressora"_s, u"Balcão"_s);
//
// Two INI files, one section for each path: fichario/registro.ini in the user's configuration folder
// ($XDG_CONFIG_HOME or ~/.config) and in the machine's (/etc).
#pragma once

#include <optional>

#include "platform/rtl/Types.h"

enum TRootKey { rkCurrentUser, rkLocalMachine };

bool SettingsPathExists(TRootKey root, const UnicodeString& path);
// Nothing when path or name is missing.
std::optional<UnicodeString> ReadSetting(TRootKey root, const UnicodeString& path, const UnicodeString& name);
// Makes the path when missing. EInOutError; EConvertError for a name that an INI file cannot hold.
void WriteSetting(TRootKey root, const UnicodeString& path, const UnicodeString& name,
                  const UnicodeString& value);
