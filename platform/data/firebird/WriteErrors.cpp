#include "platform/data/firebird/WriteErrors.h"

#include <algorithm>
#include <cmath>
#include "platform/data/firebird/ErrorCodes.h"
#include "platform/data/Sql.h"

using namespace Qt::Literals::StringLiterals;

namespace fichario {

namespace {

// %1: the fields.
struct Sentence {
    int64_t Code;
    QStringView OfOne, OfSeveral;
};

// Of a column whose domain has a rule of its own.
constexpr QStringView kRefused = u"Valor não permitido no campo %1.";

constexpr Sentence kSentences[] = {
    {kDuplicateKey, u"Já existe um registro com este valor no campo %1.",
     u"Já existe um registro com estes valores nos campos %1."},
    {kDuplicateIndex, u"Já existe um registro com este valor no campo %1.",
     u"Já existe um registro com estes valores nos campos %1."},
    {kNoTarget, u"O registro indicado no campo %1 não existe.",
     u"O registro indicado nos campos %1 não existe."},
    {kNotValid, u"Entre com um valor para o campo %1 antes de prosseguir.",
     u"Entre com um valor para os campos %1 antes de prosseguir."},
    {kOutOfRange, u"Número fora da faixa permitida no campo %1.",
     u"Números fora da faixa permitida nos campos %1."},
};

bool IsMissingValue(const EFDError& error) {
    return error.ServerText.contains(u"*** null ***");
}

bool IsBeyond(const WriteColumn& column) {
    return column.Write && column.Largest > 0 && column.Value.IsNumber() &&
           std::abs(column.Value.ToDouble()) > column.Largest;
}

// Which number it was is not told.
bool IsCause(const EFDError& error, const WriteColumn& column) {
    if (error.Has(kOutOfRange)) return IsBeyond(column);
    return std::find(error.Columns.begin(), error.Columns.end(), column.Name) != error.Columns.end();
}

// As in: "Pedido", "Item" e "Lote".
UnicodeString Quoted(TStringArray labels) {
    for (UnicodeString& label : labels) label = u'"' + label + u'"';
    const UnicodeString last = labels.back();
    labels.pop_back();
    return labels.empty() ? last : Joined(labels, u", "_s) + u" e "_s + last;
}

EFDError Lost(const std::vector<WriteColumn>& columns, const UnicodeString& fate) {
    TStringArray key;
    for (const WriteColumn& column : columns) {
        if (column.Key) key.push_back(column.Label + u' ' + column.OldValue.ToText());
    }
    return EFDError(u"O registro "_s + Joined(key, u", "_s) + u" foi "_s + fate, {kChangedByOthers});
}

}  // namespace

EFDError NamingFields(const EFDError& error, const UnicodeString& table,
                      const std::vector<WriteColumn>& columns) {
    if (!error.Table.isEmpty() && error.Table != table) return error;
    TStringArray labels;
    for (const WriteColumn& column : columns) {
        if (!column.Again && IsCause(error, column)) labels.push_back(column.Label);
    }
    if (labels.empty()) return error;
    if (error.Has(kNotValid) && !IsMissingValue(error))
        return error.Saying(kRefused.toString().arg(Quoted(labels)));
    for (const Sentence& sentence : kSentences) {
        if (!error.Has(sentence.Code)) continue;
        const QStringView text = labels.size() == 1 ? sentence.OfOne : sentence.OfSeveral;
        return error.Saying(text.toString().arg(Quoted(labels)));
    }
    return error;
}

EFDError DeletedByOthers(const std::vector<WriteColumn>& columns) {
    return Lost(columns, u"excluído por outro usuário."_s);
}

EFDError ChangedByOthers(const std::vector<WriteColumn>& columns, const TStringArray& labels) {
    const UnicodeString what = labels.empty() ? UnicodeString() : u" ("_s + Joined(labels, u", "_s) + u')';
    return Lost(columns, u"alterado por outro usuário"_s + what + u'.');
}

}  // namespace fichario
