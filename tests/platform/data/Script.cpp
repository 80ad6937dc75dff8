#include "tests/platform/data/Script.h"

#include "platform/rtl/DateText.h"

namespace {

constexpr qsizetype kLong = 100;

TBookmark g_mark;

const std::map<QString, std::function<void(TFDQuery&)>> kSteps = {
    {"open", &TFDQuery::Open},
    {"close", &TFDQuery::Close},
    {"describe", &TFDQuery::DescribeFields},
    {"refresh", &TFDQuery::Refresh},
    {"first", &TFDQuery::First},
    {"last", &TFDQuery::Last},
    {"next", &TFDQuery::Next},
    {"append", &TFDQuery::Append},
    {"insert", &TFDQuery::Insert},
    {"edit", &TFDQuery::Edit},
    {"post", &TFDQuery::Post},
    {"cancel", &TFDQuery::Cancel},
    {"delete", &TFDQuery::Delete},
    {"check", &TFDQuery::CheckBrowseMode},
    {"apply", &TFDQuery::ApplyUpdates},
    {"commit updates", &TFDQuery::CommitUpdates},
    {"cancel updates", &TFDQuery::CancelUpdates},
    {"mark", [](TFDQuery& q) { g_mark = q.GetBookmark(); }},
    {"to mark", [](TFDQuery& q) { q.GotoBookmark(g_mark); }},
    {"silence", &TFDQuery::DisableControls},
    {"sound", &TFDQuery::EnableControls}};

const std::map<QString, std::function<void(TFDConnection&)>> kTransactions = {
    {"start", &TFDConnection::StartTransaction},
    {"commit", &TFDConnection::Commit},
    {"rollback", &TFDConnection::Rollback}};

using TQuery = const TFDQuery&;

const std::map<QString, std::function<Variant(TQuery)>> kLooks = {
    {"state",
     [](TQuery q) {
         return QStringList{"inactive", "browse", "edit", "insert"}[q.State()];
     }},
    {"active", &TFDQuery::Active},
    {"empty", &TFDQuery::IsEmpty},
    {"bof", &TFDQuery::Bof},
    {"eof", &TFDQuery::Eof},
    {"all", &TFDQuery::AllFetched},
    {"modified", &TFDQuery::Modified},
    {"pending", &TFDQuery::UpdatesPending},
    {"rec", &TFDQuery::RecNo},
    {"marked", [](TQuery q) { return q.BookmarkValid(g_mark); }},
    {"rows", &TFDQuery::RowCount},
    {"fields", &TFDQuery::FieldCount},
    {"transaction", [](TQuery q) { return q.Connection()->InTransaction(); }},
    {"count", [](TQuery q) { return const_cast<TFDQuery&>(q).RecordCount(); }},
    {"params", [](TQuery q) { return const_cast<TFDQuery&>(q).Params().Count(); }}};

QString Flag(bool flag) {
    return flag ? "yes" : "no";
}

void SetField(TField& field, const QString& written) {
    const Variant value = ValueOf(written);
    switch (value.Kind()) {
        case vkInteger: return field.SetAsInteger(value.ToInt());
        case vkDecimal: return field.SetAsDecimal(value.ToDecimal());
        case vkDateTime: return field.SetAsDateTime(value.ToDateTime());
        case vkText: return field.SetAsString(value.ToText());
        default: return field.SetValue(value);
    }
}

QString FieldText(const TField& field) {
    if (field.IsNull()) return "null";
    const auto* blob = field.DataType() == ftBlob ? dynamic_cast<const TBlobField*>(&field) : nullptr;
    const QString text = blob ? QString::fromLatin1(blob->AsBytes().toHex()) : field.AsString();
    const bool alike = text.size() > kLong && text.count(text[0]) == text.size();
    return alike ? QString("%1 times %2").arg(text.size()).arg(text[0]) : text;
}

}  // namespace

Variant ValueOf(const QString& written) {
    const QString kind = written.section(' ', 0, 0), text = written.section(' ', 1);
    if (kind == "int") return text.toLongLong();
    if (kind == "float") return text.toDouble();
    if (kind == "money") return Currency::FromDouble(text.toDouble());
    if (kind == "decimal") return Decimal::Parse(text, u'.').value();
    if (kind == "day") return TDateTime(text.toDouble());
    if (kind == "moment") return StrToDateTime(text);
    if (kind == "time") return StrToTime(text);
    if (kind == "long") return QString(text.toInt(), u'é');
    if (kind == "all") {
        std::vector<Variant> values;
        for (const QString& value : text.split(';')) values.push_back(ValueOf(value));
        return Variant::Array(values);
    }
    if (kind == "bytes") return QByteArray(text.toInt(), '\0');
    return written == "null" ? Variant::Null() : Variant(written);
}

void SetParam(TFDParam& param, const QString& written) {
    const QString kind = written.section(' ', 0, 0), text = written.section(' ', 1);
    const Variant value = ValueOf(written);
    if (kind == "int") return param.SetAsInteger(value.ToInt());
    if (kind == "large") return param.SetAsLargeInt(text.toLongLong());
    if (kind == "float") return param.SetAsFloat(value.ToDouble());
    if (kind == "money") return param.SetAsCurrency(value.ToCurrency());
    if (kind == "moment") return param.SetAsDateTime(value.ToDateTime());
    if (kind == "date") return param.SetAsDate(StrToDateTime(text));
    if (kind == "bool") return param.SetAsBoolean(text == "yes");
    if (kind == "null") return param.Clear();
    if (kind == "as-date") param.SetDataType(ftDate);
    if (kind == "as-date" || kind == "value") return param.SetValue(text);
    if (value.Kind() != vkText) return param.SetValue(value);
    param.SetAsString(value.ToText());
}

void ScriptTest::Begin() {
    TearDown();
    ++FCase;
    FQuery = FBefore = nullptr;
    FOther = nullptr;
    SetUp();
}

void ScriptTest::Prepare(const QString& sql) {
    FBefore = std::exchange(FQuery, Query(sql));
}

void ScriptTest::DoOne(const QString& step) {
    const auto known = kSteps.find(step);
    if (known != kSteps.end()) return known->second(*FQuery);
    const auto transaction = kTransactions.find(step);
    if (transaction != kTransactions.end()) return transaction->second(*FConnection);
    const QString verb = step.section(' ', 0, 0), rest = step.section(' ', 1);
    if (verb == "row") return FQuery->MoveToRow(rest.toInt());
    if (verb == "text") return FQuery->SQL()->SetText(rest);
    SetField(*FQuery->FieldByName(step.section('=', 0, 0)), step.section('=', 1));
}

void ScriptTest::Do(const QStringList& steps) {
    try {
        for (const QString& step : steps) DoOne(step);
    } catch (const EFDError& e) {
        throw Exception((e.ConnectionUsable ? "" : "lost: ") + e.Message);
    }
}

QString ScriptTest::Seen(const QString& what) const {
    if (what.startsWith(u"closed ")) return Flag(FQuery->FieldByName(what.mid(7))->ReadOnly());
    const auto look = kLooks.find(what);
    if (look == kLooks.end()) return FieldText(*FQuery->FieldByName(what));
    const Variant seen = look->second(*FQuery);
    return seen.Kind() == vkBoolean ? Flag(seen.ToBool()) : seen.ToText();
}

QString ScriptTest::Rows(const QStringList& fields) {
    QStringList rows;
    for (FQuery->First(); !FQuery->Eof(); FQuery->Next()) {
        QStringList row;
        for (const QString& field : fields) row << Seen(field);
        rows << row.join('=');
    }
    return rows.join(' ');
}

QString ScriptTest::Answer(TFDConnection& connection, const QStringList& arguments) {
    const auto transaction = kTransactions.find(arguments[0]);
    if (transaction != kTransactions.end()) return transaction->second(connection), QString();
    const bool gives = arguments[0].startsWith("SELECT") || arguments[0].contains(" RETURNING ");
    if (gives || arguments[0].startsWith("EXECUTE PROCEDURE"))
        return connection.ExecSQLScalar(arguments[0]).ToText();
    std::vector<Variant> values;
    for (const QString& argument : arguments.sliced(1)) values.push_back(ValueOf(argument));
    const int changed = connection.ExecSQL(arguments[0], values);
    return changed > 0 ? QString::number(changed) : QString();
}

void ScriptTest::Run(const char* table, std::map<QString, TTextFunction> more) {
    more.merge(std::map<QString, TTextFunction>{
        {"Case", [&](const QStringList&) { return Begin(), QString(); }},
        {"Query", [&](const QStringList& a) { return Prepare(a[0]), QString(); }},
        {"Open", [&](const QStringList& a) { return Prepare(a[0]), FQuery->Open(), QString(); }},
        {"Param",
         [&](const QStringList& a) { return SetParam(*FQuery->ParamByName(a[0]), a[1]), QString(); }},
        {"Swap", [&](const QStringList&) { return std::swap(FQuery, FBefore), QString(); }},
        {"Do", [&](const QStringList& a) { return Do(a), QString(); }},
        {"Move", [&](const QStringList& a) { return QString::number(FQuery->MoveBy(a[0].toInt())); }},
        {"Fetch", [&](const QStringList& a) { return QString::number(FQuery->FetchMore(a[0].toInt())); }},
        {"Locate", [&](const QStringList& a) { return Flag(FQuery->Locate(a[0], ValueOf(a[1]))); }},
        {"See",
         [&](const QStringList& a) {
             QStringList seen;
             for (const QString& what : a) seen << Seen(what);
             return seen.join("; ");
         }},
        {"Required", [&](const QStringList& a) { return Flag(FQuery->FieldByName(a[0])->Required()); }},
        {"Rows", [&](const QStringList& a) { return Rows(a); }},
        {"Sql", [&](const QStringList& a) { return Answer(*FConnection, a); }},
        {"Other", [&](const QStringList& a) {
             if (!FOther) FOther = Connect();
             return Answer(*FOther, a);
         }}});
    CheckTextTable(QString(DATA_TESTS "/tables/%1.txt").arg(table), more);
}
