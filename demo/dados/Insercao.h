// The prepared insertion of rows into a table of the sample database.
//
//     TInsercao insercao(connection, u"UF"_s, {u"SG_UF"_s, u"NM_UF"_s});
//     insercao.Inserir({u"SP"_s, u"São Paulo"_s});
#pragma once

#include <vector>

#include "platform/rtl/Types.h"
#include "platform/rtl/Variant.h"

class TFDConnection;
class TFDQuery;

class TInsercao {
  public:
    // Raises EFDError when the table or a column does not exist.
    TInsercao(TFDConnection& connection, const UnicodeString& tabela, const TStringArray& colunas);
    ~TInsercao();
    TInsercao(const TInsercao&) = delete;
    TInsercao& operator=(const TInsercao&) = delete;

    // One value for each column, in their order. Raises EFDError.
    void Inserir(const std::vector<Variant>& valores);

  private:
    TFDQuery* FQuery;
};

// Nothing for an empty text.
Variant NuloSeVazio(const UnicodeString& texto);
