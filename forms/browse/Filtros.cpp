#include "forms/browse/Filtros.h"

#include <cmath>

#include "db/Prefixos.h"
#include "platform/rtl/Exceptions.h"
#include "platform/rtl/FormatSettings.h"
#include "utils/Funcoes.h"

using namespace Qt::Literals::StringLiterals;

const std::array<UnicodeString, kOperadores> Ope = {
    u"="_s,    u"<>"_s,           u">"_s,       u"<"_s,       u">="_s,         u"<="_s,
    u"LIKE"_s, u"LIKE '%' || "_s, u"BETWEEN"_s, u"IS NULL"_s, u"IS NOT NULL"_s};

const std::array<UnicodeString, kOperadores> OpeDesc = {u"="_s,     u"<>"_s,     u">"_s,          u"<"_s,
                                                        u">="_s,    u"<="_s,     u"Começa com"_s, u"Contém"_s,
                                                        u"Entre"_s, u"é Nulo"_s, u"Não é Nulo"_s};

const std::array<UnicodeString, 3> Ordem = {UnicodeString(), u"ASC"_s, u"DESC"_s};
const std::array<UnicodeString, 3> OrdDesc = {UnicodeString(), u"(Ascendente)"_s, u"(Descendente)"_s};

namespace {

const double kLastInstant = 1.0 - 1.0 / (24.0 * 60 * 60 * 10000);  // of a day, to the server's precision

bool Between(const TFiltro& filtro) {
    return filtro.Operador == Ope[kEntre];
}

bool TestsNull(const TFiltro& filtro) {
    return filtro.Operador.startsWith(u'I');
}

bool IsStamp(const TField& field) {
    return dynamic_cast<const TSQLTimeStampField*>(&field) != nullptr;
}

UnicodeString Condition(const TFiltro& filtro, int place) {
    const UnicodeString name = GetFieldName(filtro.Campo);
    const UnicodeString number = UnicodeString::number(place);
    if (Between(filtro))
        return u"("_s + name + u" BETWEEN :vFI_INI"_s + number + u" AND :vFI_FIN"_s + number + u")"_s;
    if (TestsNull(filtro)) return u"("_s + name + u" "_s + filtro.Operador + u")"_s;
    return u"("_s + name + u" "_s + filtro.Operador + u" :vFILTRO"_s + number + u")"_s;
}

Variant EndOfDay(const TFiltro& filtro, const Variant& value) {
    if (!IsStamp(*filtro.Campo) || value.Kind() != vkDateTime) return value;
    return TDateTime(DateOf(value.ToDateTime()).Value + kLastInstant);
}

// The server compares a pattern with the texts that it makes of numbers and dates itself.
UnicodeString PatternText(const TFiltro& filtro) {
    if (filtro.Valor1.Kind() == vkDateTime) return DateToNFeStr(filtro.Valor1.ToDateTime());
    const UnicodeString text = filtro.Valor1.ToText();
    const bool number = dynamic_cast<const TNumericField*>(filtro.Campo) != nullptr;
    return number ? TrocaPorParams(text, FormatSettings.DecimalSeparator, u'.') : text;
}

Variant SingleValue(const TFiltro& filtro) {
    if (filtro.Operador.startsWith(u'L')) return UnicodeString(PatternText(filtro) + u"%"_s);
    const bool endsPeriod = filtro.Operador == u"<="_s || filtro.Operador == u">"_s;
    return endsPeriod ? EndOfDay(filtro, filtro.Valor1) : filtro.Valor1;
}

// The server refuses numbers that the compared column cannot hold.
Variant ExactNumber(const UnicodeString& text, const TField& field) {
    const Variant value = Variant(text).ToDecimal();
    if (field.Largest() > 0 && std::abs(value.ToDouble()) > field.Largest())
        throw EConvertError(u"'"_s + text + u"' is out of range"_s);
    return value;
}

UnicodeString Quoted(const UnicodeString& text) {
    return u"'"_s + text + u"'"_s;
}

}  // namespace

void EscolherOperador(TFiltro& filtro, int indice) {
    filtro.Operador = Ope.at(size_t(indice));
    filtro.OperDesc = OpeDesc.at(size_t(indice));
}

void EscolherOrdem(TFiltro& filtro, int indice) {
    filtro.Ordem = ::Ordem.at(size_t(indice));
    filtro.OrdDesc = ::OrdDesc.at(size_t(indice));
    filtro.TemOrdem = indice > 0;
}

int ValoresDoOperador(int indice) {
    return indice == kEntre ? 2 : indice > kEntre ? 0 : 1;
}

Variant StrToVarType(const UnicodeString& texto, const TField& campo) {
    switch (campo.DataType()) {
        case ftSmallint:
        case ftInteger:
        case ftLargeint:
        case ftBCD: return ExactNumber(texto, campo);
        case ftFloat: return StrToFloat(texto);
        case ftDate:
        case ftTime:
        case ftTimeStamp:
        case ftBoolean: return campo.Converted(Variant(texto));
        default: return texto;
    }
}

UnicodeString FormataValor(const Variant& valor, TFieldType tipo) {
    if (valor.IsNull() || valor.IsUnassigned()) return {};
    switch (tipo) {
        case ftDate: return Quoted(DateToStr(valor.ToDateTime()));
        case ftTimeStamp: return Quoted(DateTimeToStr(valor.ToDateTime()));
        default: return valor.Kind() == vkText ? Quoted(valor.ToText()) : valor.ToText();
    }
}

UnicodeString TextoDoFiltro(const TFiltro& filtro) {
    const TFieldType type = filtro.Campo->DataType();
    UnicodeString line = u"\""_s + filtro.DisplayText + u"\" "_s + filtro.OperDesc + u" "_s +
                         FormataValor(filtro.Valor1, type);
    if (Between(filtro)) line += u" e "_s + FormataValor(filtro.Valor2, type);
    return line + u" "_s + filtro.OrdDesc;
}

UnicodeString CondicaoDosFiltros(const UnicodeString& base, const std::vector<TFiltro>& filtros) {
    UnicodeString clause = base.isEmpty() ? UnicodeString() : u" WHERE "_s + base;
    for (size_t i = 0; i < filtros.size(); ++i) {
        clause += (clause.isEmpty() ? u" WHERE "_s : u" AND "_s) + Condition(filtros[i], int(i));
    }
    return clause;
}

UnicodeString OrdemDosFiltros(const std::vector<TFiltro>& filtros) {
    UnicodeString clause;
    for (const TFiltro& filtro : filtros) {
        if (!filtro.TemOrdem) continue;
        clause += (clause.isEmpty() ? u"ORDER BY "_s : u", "_s) + GetFieldName(filtro.Campo) + u" "_s +
                  filtro.Ordem;
    }
    return clause;
}

std::vector<std::pair<UnicodeString, Variant>> ParametrosDosFiltros(const std::vector<TFiltro>& filtros) {
    std::vector<std::pair<UnicodeString, Variant>> result;
    for (size_t i = 0; i < filtros.size(); ++i) {
        const TFiltro& filtro = filtros[i];
        const UnicodeString number = UnicodeString::number(i);
        if (Between(filtro)) {
            result.emplace_back(u"vFI_INI"_s + number, filtro.Valor1);
            result.emplace_back(u"vFI_FIN"_s + number, EndOfDay(filtro, filtro.Valor2));
        } else if (!TestsNull(filtro)) {
            result.emplace_back(u"vFILTRO"_s + number, SingleValue(filtro));
        }
    }
    return result;
}

void JuntarFiltro(std::vector<TFiltro>& filtros, const TFiltro& filtro) {
    for (TFiltro& earlier : filtros) {
        if (filtro.TemOrdem && earlier.Campo == filtro.Campo) EscolherOrdem(earlier, 0);
    }
    filtros.push_back(filtro);
}
