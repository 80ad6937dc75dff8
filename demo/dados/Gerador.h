// Sample customers: the same seed gives the same customers, row by row, on every machine.
//
//     TGeradorDeClientes gerador;
//     for (int i = 0; i < 5000; ++i) insert(gerador.Proximo());
#pragma once

#include "demo/dados/Sorteio.h"
#include "platform/rtl/DateTime.h"
#include "platform/rtl/Types.h"

// One row of the table CLIENTE, without its key. A text with no value is empty.
struct TCliente {
    UnicodeString Nome;               // NM_CLI, 1 to 60 characters
    UnicodeString Fantasia;           // FANTASIA, at most 40; only companies have one
    UnicodeString Documento;          // NR_CPF: 11 digits (CPF) or 14 (CNPJ), with right check digits
    UnicodeString InscricaoEstadual;  // NR_INS_EST: digits valid for the state, or "ISENTO"
    UnicodeString UF;                 // NM_EST
    UnicodeString Cidade;             // CIDADE, a town of that state
    UnicodeString Email;              // E_MAIL, at most 60, in a domain kept for examples
    TDateTime Cadastro;               // DT_CAD, within the 15 years that end with the generator's last day
    int64_t LimiteEmCentavos = 0;     // VL_LIMITE x 100, from 0 to 9999999
    bool Ativo = true;                // TF_ATIVO; about one in ten is not
    bool Excluido = false;            // TF_DEL; about three in a hundred are

    bool operator==(const TCliente&) const = default;
};

class TGeradorDeClientes {
  public:
    static constexpr uint32_t kSemente = 20240229;

    // Draws from `semente`; the last day of registration is `ultimoDia`, 31 December 2025 when not given.
    explicit TGeradorDeClientes(uint32_t semente = kSemente);
    TGeradorDeClientes(uint32_t semente, TDateTime ultimoDia);

    // The next customer: about seven in ten are persons, the others companies.
    TCliente Proximo();

  private:
    void Pessoa(TCliente& cliente);
    void Empresa(TCliente& cliente);

    TSorteio FSorteio;
    TDateTime FUltimoDia;
};
