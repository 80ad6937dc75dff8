#include "db/Filtro.h"

#include <QStringBuilder>
#include <QStringList>

#include "db/Prefixos.h"
#include "db/TextoFiltro.h"
#include "platform/data/Errors.h"
#include "platform/data/Field.h"
#include "platform/data/Query.h"
#include "platform/rtl/FormatSettings.h"
#include "platform/rtl/Strings.h"
#include "platform/rtl/Trim.h"

namespace {

TTipoCampo KindOf(const TField* field) {
    if (dynamic_cast<const TStringField*>(field)) return TTipoCampo::Texto;
    if (dynamic_cast<const TDateTimeField*>(field)) return TTipoCampo::Data;
    if (dynamic_cast<const TSQLTimeStampField*>(field)) return TTipoCampo::Data;
    if (dynamic_cast<const TNumericField*>(field)) return TTipoCampo::Numero;
    return TTipoCampo::Outro;
}

std::vector<TCampoFiltro> FilterFields(std::span<TField* const> fields,
                                       std::span<const UnicodeString> values) {
    std::vector<TCampoFiltro> result;
    for (size_t i = 0; i < fields.size(); ++i) {
        result.push_back({GetFieldName(fields[i]), KindOf(fields[i]), values[i]});
    }
    return result;
}

bool HidesDeleted(TDataSet* dataSet, bool showDeleted) {
    return !showDeleted && dataSet->FindField(QStringLiteral("TF_DEL"));
}

UnicodeString WithoutDeleted(const UnicodeString& condition) {
    const UnicodeString live = QStringLiteral("COALESCE(TF_DEL, 'N') = 'N' ");
    return Trim(condition).isEmpty() ? live : UnicodeString(condition % u" AND " % live);
}

UnicodeString KeyList(TDataSet* dataSet) {
    QStringList names;
    for (const TField* field : dataSet->Fields()) {
        if (field->ProviderFlags() & pfInKey) names << field->FieldName();
    }
    if (names.isEmpty()) throw Exception(QStringLiteral("Nenhuma chave primaria foi definida."));
    return names.join(u", ");
}

void SetFilterParameter(TFDCustomQuery* query, size_t place, const TCampoFiltro& campo) {
    if (campo.Tipo != TTipoCampo::Data && campo.Tipo != TTipoCampo::Numero) return;
    TFDParam* param = query->ParamByName(u"vDATA" % UnicodeString::number(place));
    if (campo.Tipo == TTipoCampo::Data) param->SetAsDate(StrToDate(campo.Valor));
    if (campo.Tipo == TTipoCampo::Numero) param->SetAsFloat(StrToFloat(campo.Valor));
}

TFDCustomQuery* QueryOf(TDataSet* dataSet) {
    auto* query = dynamic_cast<TFDCustomQuery*>(dataSet);
    if (!query) throw EDatabaseError(QStringLiteral("Filtro needs a query dataset."));
    return query;
}

void CheckEnough(size_t needed, size_t given, QStringView what) {
    if (given < needed) throw EDatabaseError(u"Filtro needs a value for each " % what % u'.');
}

template <class T>
std::span<const T> List(const T* first, int high) {
    return {first, static_cast<size_t>(high + 1)};
}

}  // namespace

void Filtro(TDataSet* dataSet, std::span<TField* const> fields, std::span<const UnicodeString> values,
            const UnicodeString& order, const UnicodeString& condition,
            std::span<const UnicodeString> paramNames, std::span<const Variant> paramValues, TKeyType keyType,
            bool showDeleted) {
    TFDCustomQuery* query = QueryOf(dataSet);
    CheckEnough(fields.size(), values.size(), u"field");
    CheckEnough(paramNames.size(), paramValues.size(), u"parameter");
    TTextoFiltro texto;
    texto.Campos = FilterFields(fields, values);
    texto.Faixa = fields.size() == 2 && fields[0] == fields[1];
    texto.Condicao = HidesDeleted(dataSet, showDeleted) ? WithoutDeleted(condition) : condition;
    texto.Ordem = order;
    if (keyType == ktFieldProviderFlag) texto.Chaves = KeyList(dataSet);

    const UnicodeString statement = ComporFiltro(query->SQL()->Text(), texto);
    query->Close();
    query->SQL()->SetText(statement);
    for (size_t i = 0; i < texto.Campos.size(); ++i) SetFilterParameter(query, i, texto.Campos[i]);
    for (size_t i = 0; i < paramNames.size(); ++i)
        query->ParamByName(paramNames[i])->SetValue(paramValues[i]);
    query->Open();
}

void Filtro(TDataSet* dataSet, TField* const* fields, int fieldsHigh, const UnicodeString* values,
            int valuesHigh, const UnicodeString& order, const UnicodeString& condition,
            const UnicodeString* paramNames, int paramNamesHigh, const Variant* paramValues,
            int paramValuesHigh, TKeyType keyType, bool showDeleted) {
    Filtro(dataSet, List(fields, fieldsHigh), List(values, valuesHigh), order, condition,
           List(paramNames, paramNamesHigh), List(paramValues, paramValuesHigh), keyType, showDeleted);
}
