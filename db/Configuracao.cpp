#include "db/Configuracao.h"

#include "platform/data/Connection.h"
#include "platform/rtl/CodePage.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/IniFile.h"
#include "platform/system/Paths.h"
#include "utils/funcoes/Senhas.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kSection = u"DATABASE"_s;
const UnicodeString kDefaultHost = u"localhost"_s;
const UnicodeString kDefaultPassword = u"pwdefault"_s;

UnicodeString FileName() {
    return JoinPath(ProgramFolder(), u"Config.ini");
}

// The section's values, of which a file that cannot be read has none.
class TSection {
  public:
    UnicodeString Read(const char16_t* key, const UnicodeString& missing) const {
        try {
            return TIniFile(FileName()).ReadString(kSection, key, missing);
        } catch (const EInOutError&) {
            return missing;
        }
    }
};

UnicodeString Or(const UnicodeString& value, const UnicodeString& instead) {
    return value.isEmpty() ? instead : value;
}

}  // namespace

void LoadConnection(TFDConnection* connection) {
    const TSection section;
    TStrings& params = *connection->Params();
    const TStringsUpdate update(params);
    params.Clear();
    params.Add(u"DriverID=FB"_s);
    params.Add(u"Server="_s + Or(section.Read(u"Host", kDefaultHost), kDefaultHost));
    params.Add(u"Protocol=TCPIP"_s);
    params.Add(u"Database="_s + section.Read(u"Path", ProgramFolder()) + u"\\"_s +
               section.Read(u"File", u"DATABASE.FDB"_s));
    params.Add(u"User_Name="_s + section.Read(u"User", u"SYSDBA"_s));
    const UnicodeString password = FromAnsi(DecriptPass(ToAnsi(section.Read(u"Password", {}))));
    params.Add(u"Password="_s + Or(password, kDefaultPassword));
    params.Add(u"RoleName="_s + section.Read(u"RoleName", {}));
    params.Add(u"CharacterSet=ISO8859_1"_s);
    params.Add(u"PageSize=16384"_s);
}

void SaveConnection(const UnicodeString& Host, const UnicodeString& Database, const UnicodeString& User,
                    const UnicodeString& Password, const UnicodeString& RoleName) {
    const qsizetype cut = std::max(Database.lastIndexOf(u'\\'), Database.lastIndexOf(u'/'));
    TIniFile file(FileName());
    const TIniUpdate update(file);
    file.WriteString(kSection, u"Host"_s, Host);
    file.WriteString(kSection, u"Path"_s, Database.left(std::max<qsizetype>(cut, 0)));
    file.WriteString(kSection, u"File"_s, Database.sliced(cut + 1));
    file.WriteString(kSection, u"User"_s, User);
    file.WriteString(kSection, u"Password"_s, FromAnsi(EncriptPass(ToAnsi(Password))));
    file.WriteString(kSection, u"RoleName"_s, RoleName);
}

bool HasConnection() {
    try {
        return TIniFile(FileName()).SectionExists(kSection);
    } catch (const EInOutError&) {
        return false;
    }
}
