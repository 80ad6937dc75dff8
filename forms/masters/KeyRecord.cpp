#include "forms/masters/KeyRecord.h"

#include "db/Prefixos.h"
#include "platform/data/Field.h"
#include "platform/data/Query.h"
#include "platform/data/Sql.h"
#include "platform/rtl/DateTime.h"
#include "platform/rtl/FormatSettings.h"
#include "sql/parse/Clausulas.h"
#include "sql/parse/Onde.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A number that no generator gives.
UnicodeString NoRecord() {
    return u"-111"_s;
}

bool IsNumber(const TField& key) {
    return dynamic_cast<const TNumericField*>(&key) != nullptr;
}

UnicodeString DateText(const TField& key) {
    switch (key.DataType()) {
        case ftDate: return FormatDateTime(u"yyyy-MM-dd"_s, key.AsDateTime());
        case ftTime: return FormatDateTime(u"hh:nn:ss.zzz"_s, key.AsDateTime());
        case ftTimeStamp: return FormatDateTime(u"yyyy-MM-dd hh:nn:ss.zzz"_s, key.AsDateTime());
        default: return {};
    }
}

// A text column compared with a bare number would make the server convert every stored text.
UnicodeString NoRecordCondition(const TField& key) {
    if (IsNumber(key)) return u" = "_s + NoRecord();
    const bool text = dynamic_cast<const TStringField*>(&key) != nullptr;
    return text ? u" = "_s + QuoteLiteral(NoRecord()) : u" IS NULL"_s;
}

}  // namespace

UnicodeString KeyLiteral(const TField& key) {
    if (IsNumber(key)) return key.AsString().replace(FormatSettings.DecimalSeparator, u'.');
    const UnicodeString date = DateText(key);
    return QuoteLiteral(date.isEmpty() ? key.AsString() : date);
}

UnicodeString KeyWhere(const TDataSet& view, TFDQuery& own, bool newRecord) {
    own.Close();
    own.DescribeFields();
    UnicodeString where;
    for (const TField* key : view.Fields()) {
        if (!(key->ProviderFlags() & pfInKey)) continue;
        const UnicodeString condition = newRecord ? NoRecordCondition(*key) : u" = "_s + KeyLiteral(*key);
        AddWhereClause(where, GetFieldName(own.FieldByName(key->FieldName())) + condition);
    }
    return where;
}

void OpenWhere(TFDQuery& query, const UnicodeString& where) {
    query.Close();
    UnicodeString text = query.SQL()->Text();
    SetSQLWhere(text, where);
    query.SQL()->SetText(text);
    query.Open();
}
