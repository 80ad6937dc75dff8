// What is printed: the columns of a grid and its rows, read from the two files that a grid form writes.
//
//     const TRelatorio report = LerDefinicao(folder + "/repvwi.dat", folder + "/repvw.dat");
//     TTabela table(report, progress);
//
// The definition is an INI file: section INFORMATION with Name, Model (0 portrait, 1 landscape) and Count,
// and one section FIELD_nn for each column (FieldName, DisplayLabel, DisplayFormat, DisplayWidth, EditMask,
// Visible). The rows are a rows file of the data layer (platform/data/RowsFile.h).
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/data/DataTypes.h"
#include "platform/rtl/Types.h"
#include "platform/rtl/Variant.h"

class TRowsReader;

// One visible column, in the grid's order.
struct TColunaRelatorio {
    UnicodeString Titulo;
    UnicodeString Formato;  // of numbers and dates; empty: by kind
    UnicodeString Mascara;  // of texts; empty: none
    TFieldType Tipo = ftString;
    int Casas = 0;     // decimals of exact numbers
    int Largura = 10;  // in characters
    int Origem = 0;    // the value's place in a row of the file

    bool Numero() const;
    // Numbers with decimals and those with a format are added up: amounts and quantities are, codes are not.
    bool TemTotal() const;
};

// Told of the rows done so far and of all rows; answers false to stop, which raises EAbort.
using TAndamento = std::function<bool(int64_t feitas, int64_t total)>;

class TRelatorio {
  public:
    UnicodeString Nome;
    bool Paisagem = false;
    std::vector<TColunaRelatorio> Colunas;
    std::shared_ptr<TRowsReader> Arquivo;  // open while the report lives: a later print changes nothing
    int64_t Linhas = 0;

    // Calls `linha` with the visible columns' values of each row, in order. Exception for a damaged file,
    // EAbort.
    void ParaCadaLinha(const std::function<void(const std::vector<Variant>& valores)>& linha,
                       const TAndamento& andamento = {}) const;
};

// Reads the definition and the head of the rows file. EInOutError when one cannot be read; Exception, in
// Portuguese, when they do not belong together.
TRelatorio LerDefinicao(const UnicodeString& definicao, const UnicodeString& linhas);

// The format of exact decimals where the column has none: "#,##0.00" for two places.
UnicodeString FormatoDeCasas(int casas);

// A value as the report shows it: dates dd/mm/yyyy, numbers with comma decimals and points between
// thousands, by the column's format or mask where it has one; line breaks become blanks.
UnicodeString TextoDaCelula(const TColunaRelatorio& coluna, const Variant& valor);
