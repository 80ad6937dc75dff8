#include "db/TextoFiltro.h"

#include <QStringBuilder>

#include "platform/rtl/CodePage.h"
#include "platform/rtl/Strings.h"
#include "sql/SQLParse.h"
#include "utils/funcoes/Texto.h"

using namespace Qt::Literals::StringLiterals;

namespace {

UnicodeString Parameter(size_t place) {
    return u":vDATA" % UnicodeString::number(place);
}

UnicodeString OnlyDate(const UnicodeString& name) {
    return u"CAST(" % name % u" AS DATE)";
}

// The content of a literal that stays on one line: CutWhere goes by lines, and a literal that it cut in two
// would let the next value become SQL.
UnicodeString Quoted(const UnicodeString& value) {
    return cvLitCriteria(value, u'\'')
        .replace(u'\r', u"'||ASCII_CHAR(13)||'"_s)
        .replace(u'\n', u"'||ASCII_CHAR(10)||'"_s);
}

// The user's * is the server's %.
UnicodeString BeginsWith(const TCampoFiltro& campo) {
    const UnicodeString pattern = UpperText(TrocaPorParams(Quoted(campo.Valor), u'*', u'%'));
    return campo.Nome % u" LIKE '" % pattern % u"%'";
}

UnicodeString ConditionOf(const TCampoFiltro& campo, size_t place) {
    switch (campo.Tipo) {
        case TTipoCampo::Texto: return BeginsWith(campo);
        case TTipoCampo::Data: return OnlyDate(campo.Nome) % u" = " % Parameter(place);
        case TTipoCampo::Numero: return campo.Nome % u" = " % Parameter(place);
        case TTipoCampo::Outro: return campo.Nome % u" = '" % UpperText(Quoted(campo.Valor)) % u'\'';
    }
    return {};
}

void AddConditions(TStrings& lines, const TTextoFiltro& filtro) {
    for (size_t i = 0; i < filtro.Campos.size(); ++i) {
        const QStringView opening = i == 0 ? u"WHERE " : u"AND ";
        lines.Add(opening % ConditionOf(filtro.Campos[i], i));
    }
}

void AddRange(TStrings& lines, const TCampoFiltro& campo) {
    if (campo.Tipo != TTipoCampo::Data && campo.Tipo != TTipoCampo::Numero) return;
    const UnicodeString name = campo.Tipo == TTipoCampo::Data ? OnlyDate(campo.Nome) : campo.Nome;
    lines.Add(u"WHERE " % name % u" >= " % Parameter(0));
    lines.Add(u"AND " % name % u" <= " % Parameter(1));
}

void AddOrder(TStrings& lines, const TTextoFiltro& filtro) {
    const bool both = !filtro.Ordem.isEmpty() && !filtro.Chaves.isEmpty();
    const UnicodeString order = filtro.Ordem % (both ? u", " : u"") % filtro.Chaves;
    if (!order.isEmpty()) lines.Add(u"ORDER BY " % order);
}

bool HoldsWhere(const UnicodeString& line) {
    return line.contains(u"WHERE", Qt::CaseInsensitive);
}

// Drops the last line that holds the letters WHERE, and all behind it.
void CutWhere(TStrings& lines) {
    int keep = lines.Count();
    for (int i = 0; i < lines.Count(); ++i) {
        if (HoldsWhere(lines.Strings(i))) keep = i;
    }
    while (lines.Count() > keep) lines.Delete(lines.Count() - 1);
}

}  // namespace

UnicodeString ComporFiltro(const UnicodeString& statement, const TTextoFiltro& filtro) {
    UnicodeString unordered = statement;
    SetSQLOrder(unordered, UnicodeString());
    TStringList lines;
    lines.SetText(unordered);
    CutWhere(lines);
    if (filtro.Faixa) {
        AddRange(lines, filtro.Campos.front());
    } else {
        AddConditions(lines, filtro);
    }
    if (!filtro.Condicao.isEmpty()) lines.Add(u" AND " % filtro.Condicao);
    AddOrder(lines, filtro);
    return lines.Text();
}
