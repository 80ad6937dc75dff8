// Where a company's registration data comes from.
//
//     const std::unique_ptr<TFonte> source = CriarFonte(LerAjustes(path));
//     const std::optional<TEmpresa> company = source->Buscar(u"11222333000181"_s);
#pragma once

#include <memory>
#include <optional>

#include "platform/rtl/Types.h"

struct TEmpresa {
    UnicodeString CNPJ, Razao, Fantasia, Endereco, Numero, Complemento, CEP, Bairro, Cidade, Estado;
};

class TFonte {
  public:
    virtual ~TFonte() = default;
    // The company of that CNPJ (14 digits); nothing when the source does not know it. Exception with a
    // Portuguese sentence when the source cannot be read or does not answer in time.
    virtual std::optional<TEmpresa> Buscar(const UnicodeString& cnpj) = 0;
};

// PartImport.ini beside the program, section BUSCA: Fonte (CSV or HTTP), Arquivo (of companies, a path from
// the program's folder), Endereco (of the service, with {cnpj} for the number), Tempo (seconds).
struct TAjustes {
    UnicodeString Fonte = QStringLiteral("CSV");
    UnicodeString Arquivo = QStringLiteral("empresas.csv");
    UnicodeString Endereco = {};
    int Tempo = 10;
};
TAjustes LerAjustes(const UnicodeString& arquivo);

// Exception for a source that is not known or lacks its address.
std::unique_ptr<TFonte> CriarFonte(const TAjustes& ajustes);

// A file of companies: UTF-8 (or Windows-1252), semicolons, quotes where a value holds one, and a first line
// that names the columns: cnpj, razao, fantasia, endereco, numero, complemento, cep, bairro, cidade, estado.
std::unique_ptr<TFonte> FonteCsv(const UnicodeString& arquivo);

// A service that answers with a JSON object of those names; 404 means that it does not know the number.
std::unique_ptr<TFonte> FonteHttp(const UnicodeString& endereco, int segundos);

// The member of that column's name, in any case; null for another name.
UnicodeString* CampoDe(TEmpresa& empresa, const UnicodeString& coluna);
