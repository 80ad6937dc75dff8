// A report as a file: PDF, CSV or XLSX. Each is written under another name and put in its place when it is
// complete; a stopped or failed one leaves nothing behind.
//
//     ExportarPdf(report, pages, "clientes.pdf", progress);
#pragma once

#include <optional>

#include "tools/gridreport/Pagina.h"

// `faixa`: these pages only. All raise EInOutError with the cause, and EAbort when `andamento` answers false.
void ExportarPdf(const TRelatorio& relatorio, const TPaginas& paginas, const UnicodeString& arquivo,
                 const TAndamento& andamento = {}, const std::optional<TFaixa>& faixa = {});

// UTF-8 with a mark, semicolons, a title line, CR LF; decimals with a comma and without points between
// thousands, dates dd/mm/yyyy, so that spreadsheets in Portuguese read numbers and dates as such. A cell with
// a semicolon, a quote or a line break stands in quotes.
void ExportarCsv(const TRelatorio& relatorio, const UnicodeString& arquivo, const TAndamento& andamento = {});

// One sheet: titles fixed at the top, numbers and dates as real ones, in the report's formats. What a sheet
// cannot hold as such (more than 15 digits, dates before March 1900) is written as text.
void ExportarXlsx(const TRelatorio& relatorio, const UnicodeString& arquivo,
                  const TAndamento& andamento = {});

// By the file's ending (.pdf, .csv, .xlsx, any case); Exception for another one.
void Exportar(const TRelatorio& relatorio, const TPaginas& paginas, const UnicodeString& arquivo,
              const TAndamento& andamento = {});
