#include "demo/dados/Esquema.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kEstados =
    u"CREATE TABLE UF (\n"
    u"  SG_UF CHAR(2) NOT NULL,\n"
    u"  NM_UF VARCHAR(40) NOT NULL COLLATE PT_BR,\n"
    u"  CONSTRAINT PK_UF PRIMARY KEY (SG_UF))"_s;

const UnicodeString kMunicipios =
    u"CREATE TABLE MUNICIPIO (\n"
    u"  CD_MUN INTEGER NOT NULL,\n"
    u"  NM_MUN VARCHAR(60) NOT NULL COLLATE PT_BR,\n"
    u"  SG_UF CHAR(2) NOT NULL,\n"
    u"  CONSTRAINT PK_MUNICIPIO PRIMARY KEY (CD_MUN),\n"
    u"  CONSTRAINT FK_MUNICIPIO_UF FOREIGN KEY (SG_UF) REFERENCES UF (SG_UF))"_s;

const UnicodeString kClientes =
    u"CREATE TABLE CLIENTE (\n"
    u"  CD_CLI INTEGER NOT NULL,\n"
    u"  NM_CLI VARCHAR(60) NOT NULL COLLATE PT_BR,\n"
    u"  FANTASIA VARCHAR(40) COLLATE PT_BR,\n"
    u"  NR_CPF VARCHAR(14),\n"
    u"  NR_INS_EST VARCHAR(20),\n"
    u"  NM_EST CHAR(2),\n"
    u"  CIDADE VARCHAR(40) COLLATE PT_BR,\n"
    u"  E_MAIL VARCHAR(60) COLLATE PT_BR,\n"
    u"  DT_CAD DATE,\n"
    u"  VL_LIMITE NUMERIC(15,2),\n"
    u"  TF_ATIVO CHAR(1) DEFAULT 'S' CHECK (TF_ATIVO IN ('S', 'N')),\n"
    u"  TF_DEL CHAR(1) DEFAULT 'N' CHECK (TF_DEL IN ('S', 'N')),\n"
    u"  CONSTRAINT PK_CLIENTE PRIMARY KEY (CD_CLI))"_s;

const UnicodeString kNumeracao =
    u"CREATE TRIGGER CLIENTE_BI FOR CLIENTE ACTIVE BEFORE INSERT POSITION 0 AS\n"
    u"BEGIN\n"
    u"  IF (NEW.CD_CLI IS NULL) THEN NEW.CD_CLI = GEN_ID(GEN_CLIENTE, 1);\n"
    u"END"_s;

// One index over a column and the key, which makes every order a total one.
UnicodeString Indice(const UnicodeString& tabela, const UnicodeString& coluna, const UnicodeString& chave) {
    return u"CREATE INDEX IX_%1_%2 ON %1 (%2, %3)"_s.arg(tabela, coluna, chave);
}

}  // namespace

TStringArray ComandosDasTabelas() {
    return {kEstados, kMunicipios, kClientes, u"CREATE SEQUENCE GEN_CLIENTE"_s, kNumeracao};
}

TStringArray ComandosDosIndices() {
    TStringArray comandos = {Indice(u"MUNICIPIO"_s, u"NM_MUN"_s, u"CD_MUN"_s)};
    for (const auto& coluna : {u"NM_CLI"_s, u"FANTASIA"_s, u"NR_CPF"_s, u"NM_EST"_s, u"CIDADE"_s, u"E_MAIL"_s,
                               u"DT_CAD"_s, u"VL_LIMITE"_s, u"TF_ATIVO"_s}) {
        comandos.push_back(Indice(u"CLIENTE"_s, coluna, u"CD_CLI"_s));
    }
    // A search by date compares CAST(DT_CAD AS DATE), which only an index over that same expression serves.
    comandos.push_back(u"CREATE INDEX IX_CLIENTE_DIA_CAD ON CLIENTE COMPUTED BY (CAST(DT_CAD AS DATE))"_s);
    return comandos;
}
