#include "platform/data/firebird/DatabaseName.h"

namespace fichario {

UnicodeString NameForServer(const UnicodeString& name) {
    if (name.startsWith(u'/')) return UnicodeString(name).replace(u'\\', u'/');
    const bool alias = name.startsWith(u'\\') && name.count(u'\\') == 1 && !name.contains(u'/');
    return alias ? name.sliced(1) : name;
}

}  // namespace fichario
