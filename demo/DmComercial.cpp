#include "demo/DmComercial.h"

#include "db/UDBUtils.h"
#include "demo/dados/Banco.h"
#include "demo/Diario.h"
#include "platform/data/Field.h"

using namespace Qt::Literals::StringLiterals;

TDM_Comercial::TDM_Comercial(TComponent* AOwner)
    : TDM_Base(AOwner, nullptr), FConnection(new TFDConnection(this)) {
    FConnection->OnLost = [](TFDCustomConnection*) { Anotar(u"A conexão com o servidor foi perdida."_s); };
}

void TDM_Comercial::OpenDatabase(const UnicodeString& path) {
    ApontarConexao(*FConnection, path);
    FConnection->Open();
}

void TDM_Comercial::OpenConfigured() {
    LoadConnection(FConnection);
    FConnection->Open();
}

TFDQuery* TDM_Comercial::NewQuery(TComponent* owner, const UnicodeString& sql) const {
    auto* query = new TFDQuery(owner);
    query->SetConnection(FConnection);
    query->SQL()->SetText(sql);
    query->DescribeFields();
    return query;
}

void Label(TDataSet* dataset, const UnicodeString& fieldName, const UnicodeString& caption) {
    dataset->FieldByName(fieldName)->SetDisplayLabel(caption);
}

void LabelAll(TDataSet* dataset, std::initializer_list<TFieldCaption> captions) {
    for (const TFieldCaption& caption : captions) {
        TField* field = dataset->FindField(UnicodeString::fromUtf16(caption.Field));
        if (field) field->SetDisplayLabel(UnicodeString::fromUtf16(caption.Caption));
    }
}
