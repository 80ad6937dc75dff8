// Fields: what the database describes, how values read, write and show.
#include "tests/platform/data/Script.h"

namespace {

const UnicodeString kAll = u"SELECT * FROM CLIENTE ORDER BY ID"_s;

TEST_F(ScriptTest, FieldsAreWhatTheirColumnsAre) {
    static const QStringList kinds{"unknown", "string", "char", "smallint", "integer", "large", "float",
                                   "decimal", "date",   "time", "stamp",    "boolean", "memo",  "blob"};
    FQuery = Open(kAll);
    for (TField* field : FQuery->Fields()) {
        auto* number = dynamic_cast<TNumericField*>(field);
        if (number && field->Index() > 0) number->SetDisplayFormat(u"#,##0.00"_s);
    }
    EXPECT_TRUE(dynamic_cast<TDateTimeField*>(FQuery->FieldByName(u"NASC"_s)));
    EXPECT_FALSE(dynamic_cast<TDateTimeField*>(FQuery->FieldByName(u"CRIADO"_s)));
    EXPECT_TRUE(dynamic_cast<TSQLTimeStampField*>(FQuery->FieldByName(u"CRIADO"_s)));
    const auto column = [&](const QStringList& a) {
        const TField* field = FQuery->FieldByName(a[0]);
        return kinds[field->DataType()] +
               u" %1 %2; %3"_s.arg(field->Size()).arg(field->AsString(), field->DisplayText());
    };
    const auto text = [&](const QStringList& a) {
        TField* field = FQuery->FieldByName(a[0]);
        FQuery->Edit();
        const UnicodeString before = field->AsString();
        const UnicodeString refused = MessageOf([&] { field->SetText(a[1]); });
        if (refused.isEmpty()) return field->IsNull() ? u"null"_s : field->AsString();
        throw Exception(field->AsString() == before ? refused : u"changed"_s);
    };
    const auto display = [&](const QStringList& a) {
        QString shown;
        for (const QString& name : a) shown += FQuery->FieldByName(name)->DisplayText();
        return shown;
    };
    const auto described = [&](const QStringList& a) {
        const TField* field = FQuery->FieldByName(a[0]);
        QStringList described{field->Origin(), field->BaseTable()};
        if (field->ProviderFlags() & pfInKey) described << "key";
        if (field->Required()) described << "required";
        return described.join(' ').trimmed();
    };
    Run("campos", {{"Column", column}, {"Text", text}, {"Display", display}, {"Described", described}});
}

TEST_F(DataTest, FieldsStayTheSameObjectsWithWhatTheHostSet) {
    TFDQuery* query = Query(u"SELECT ID, NM FROM CLIENTE"_s);
    query->DescribeFields();
    TField* id = query->FieldByName(u"ID"_s);
    TField* name = query->FieldByName(u"NM"_s);
    bool gone = false;
    const TFreeNotice notice = id->AddFreeNotification([&] { gone = true; });
    name->SetOrigin(u"#0"_s);
    name->SetDisplayLabel(u"Nome"_s);
    name->SetRequired(false);
    name->SetProviderFlags(pfInKey);
    name->SetTag(16706);
    query->Open();
    query->Close();
    query->SQL()->SetText(u"SELECT NM, CAST(1 AS VARCHAR(5)) ID, UF FROM CLIENTE"_s);
    query->Open();
    EXPECT_TRUE(gone) << "the type of ID changed";
    EXPECT_EQ(query->FieldByName(u"NM"_s), name);
    EXPECT_EQ(name->Index(), 0);
    EXPECT_EQ(name->Origin(), u"#0");
    EXPECT_EQ(name->DisplayLabel(), u"Nome");
    EXPECT_FALSE(name->Required());
    EXPECT_EQ(name->ProviderFlags(), pfInKey);
    EXPECT_EQ(name->Tag(), 16706);
    EXPECT_EQ(query->FieldByName(u"UF"_s)->DisplayLabel(), u"UF");
}

TEST_F(DataTest, ValidationSeesAndMayChangeTheNewValue) {
    TFDQuery* query = Open(kAll);
    TField* weight = query->FieldByName(u"PESO"_s);
    int validated = 0, changed = 0;
    weight->OnValidate = [&](TField* field) {
        if (++validated > 1) return;
        EXPECT_EQ(field->AsFloat(), 10.126);
        field->SetAsFloat(10.13);
    };
    weight->OnChange = [&](TField*) { ++changed; };
    query->Edit();
    weight->SetAsFloat(10.126);
    EXPECT_EQ(weight->AsFloat(), 10.13);
    EXPECT_EQ(weight->OldValue(), Variant(70.5));
    EXPECT_EQ(validated, 2);
    EXPECT_EQ(changed, 1);
    weight->OnValidate = [](TField*) { Abort(); };
    EXPECT_THROW(weight->SetAsFloat(1), EAbort);
    EXPECT_EQ(weight->AsFloat(), 10.13);
}

TEST_F(DataTest, GetAndSetTextEventsStandBetweenValueAndControl) {
    TFDQuery* query = Open(kAll);
    TField* state = query->FieldByName(u"UF"_s);
    state->OnGetText = [](TField* field, UnicodeString& text, bool display) {
        text = display ? u"Estado de "_s + field->AsString() : field->AsString().toLower();
    };
    state->OnSetText = [](TField* field, const UnicodeString& text) { field->SetAsString(text.toUpper()); };
    EXPECT_EQ(state->DisplayText(), u"Estado de SP");
    EXPECT_EQ(state->Text(), u"sp");
    EXPECT_EQ(MessageOf([&] { state->SetText(u"pr"_s); }), u"Dataset not in edit or insert mode");
    query->Edit();
    state->SetText(u"pr"_s);
    EXPECT_EQ(state->AsString(), u"PR");
    state->SetReadOnly(true);
    EXPECT_EQ(MessageOf([&] { state->SetAsString(u"x"_s); }), u"Field 'UF' cannot be modified");
}

}  // namespace
