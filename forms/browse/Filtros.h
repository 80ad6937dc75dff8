// The filters that a user collects in the filter dialog: their texts, their values, and the clauses and
// parameters that they become. Decided here, without a screen.
//
//     TFiltro filtro{.Campo = nome, .DisplayText = u"Nome"_s};
//     EscolherOperador(filtro, 6);                                  // LIKE, "Começa com"
//     filtro.Valor1 = StrToVarType(u"ma"_s, *nome);
//     TextoDoFiltro(filtro)                                         // "Nome" Começa com 'ma'
//     CondicaoDosFiltros({}, {filtro})                              // " WHERE (NM LIKE :vFILTRO0)"
#pragma once
#include <array>
#include <utility>
#include <vector>

#include "platform/data/Field.h"

struct TFiltro {
    TField* Campo = nullptr;
    UnicodeString DisplayText = {};  // the field's label
    UnicodeString Operador = {};     // of Ope
    UnicodeString OperDesc = {};     // of OpeDesc
    Variant Valor1 = {};
    Variant Valor2 = {};  // between only
    UnicodeString Ordem = {};
    UnicodeString OrdDesc = {};
    bool TemOrdem = false;  // the filter also sorts by its field
};

// Operators, index-aligned with the dialog's list: as SQL has them, and as the user reads them.
inline constexpr int kOperadores = 11;
inline constexpr int kEntre = 8;
extern const std::array<UnicodeString, kOperadores> Ope;
extern const std::array<UnicodeString, kOperadores> OpeDesc;

// Directions of an ordering: none, ascending, descending.
extern const std::array<UnicodeString, 3> Ordem;
extern const std::array<UnicodeString, 3> OrdDesc;

// Sets operator or direction by its index in the tables; a direction other than 0 is an ordering.
void EscolherOperador(TFiltro& filtro, int indice);
void EscolherOrdem(TFiltro& filtro, int indice);

// How many values an operator takes: 0 (null tests), 1 or 2 (between).
int ValoresDoOperador(int indice);

// What the user typed, as a value of the field's type: whole numbers, exact decimals and floating numbers by
// the formats of the program, dates and times likewise; all else stays text. EConvertError.
Variant StrToVarType(const UnicodeString& texto, const TField& campo);

// A value for display: texts and dates in single quotes, other values as they are.
UnicodeString FormataValor(const Variant& valor, TFieldType tipo);

// One line of the list of filters.
UnicodeString TextoDoFiltro(const TFiltro& filtro);

// The WHERE clause, beginning with a blank: `base` (a condition, may be empty) and every filter, with
// parameters numbered by the filter's place. Empty without any.
UnicodeString CondicaoDosFiltros(const UnicodeString& base, const std::vector<TFiltro>& filtros);

// "ORDER BY …" by the filters that order, in their order; empty without one.
UnicodeString OrdemDosFiltros(const std::vector<TFiltro>& filtros);

// The parameters of CondicaoDosFiltros and their values. A whole day is meant by a date that ends a period of
// a time stamp field, so its last instant is given: "<=", ">" and the end of between.
std::vector<std::pair<UnicodeString, Variant>> ParametrosDosFiltros(const std::vector<TFiltro>& filtros);

// Appends a filter. A field is ordered by once: the ordering of an earlier filter of the same field ends when
// the new one has an ordering.
void JuntarFiltro(std::vector<TFiltro>& filtros, const TFiltro& filtro);
