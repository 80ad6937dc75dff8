#include "platform/data/firebird/SameValue.h"

#include "platform/data/firebird/Metadata.h"
#include "platform/data/Sql.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

// A parameter holds as many characters over a connection in UTF-8.
constexpr int kMostCharacters = 8191;

const UnicodeString kSame = u" IS NOT DISTINCT FROM "_s;

UnicodeString SameBytes(const UnicodeString& name, const UnicodeString& text, const UnicodeString& bytes) {
    return u"CAST(%1 AS %3)%4CAST(CAST(? AS %2) AS %3)"_s.arg(name, text, bytes, kSame);
}

bool IsExact(const TextFacts& text) {
    return text.Set.isEmpty() || (text.Stored == TextFacts::Kind::Char && !text.Collated);
}

}  // namespace

UnicodeString SameValue(const UnicodeString& column, const TableColumn* facts) {
    const UnicodeString name = QuoteIdentifier(column);
    if (!facts || IsExact(facts->Text)) return name + kSame + u'?';
    const TextFacts& text = facts->Text;
    if (text.Stored == TextFacts::Kind::Blob || text.Characters > kMostCharacters) {
        return SameBytes(name, u"BLOB SUB_TYPE TEXT CHARACTER SET "_s + text.Set, u"BLOB SUB_TYPE BINARY"_s);
    }
    const QStringView kind = text.Stored == TextFacts::Kind::Char ? u"CHAR" : u"VARCHAR";
    return SameBytes(name, u"%1(%2) CHARACTER SET %3"_s.arg(kind).arg(text.Characters).arg(text.Set),
                     u"VARCHAR(%1) CHARACTER SET OCTETS"_s.arg(text.Characters * text.BytesPerCharacter));
}

}  // namespace fichario
