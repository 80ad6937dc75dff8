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

const UnicodeString kVendedores =
    u"CREATE TABLE VENDEDOR (\n"
    u"  CD_VEN INTEGER NOT NULL,\n"
    u"  NM_VEN VARCHAR(60) NOT NULL COLLATE PT_BR,\n"
    u"  NR_CPF VARCHAR(14),\n"
    u"  DT_ADM DATE,\n"
    u"  PR_COMISSAO NUMERIC(5,2),\n"
    u"  CONSTRAINT PK_VENDEDOR PRIMARY KEY (CD_VEN))"_s;

const UnicodeString kProdutos =
    u"CREATE TABLE PRODUTO (\n"
    u"  CD_PRO INTEGER NOT NULL,\n"
    u"  NM_PRO VARCHAR(60) NOT NULL COLLATE PT_BR,\n"
    u"  REFERENCIA VARCHAR(20) COLLATE PT_BR,\n"
    u"  UNIDADE VARCHAR(3) NOT NULL,\n"
    u"  VL_VENDA NUMERIC(15,2) NOT NULL,\n"
    u"  QT_ESTOQUE NUMERIC(15,3),\n"
    u"  PESO DOUBLE PRECISION,\n"
    u"  OBS BLOB SUB_TYPE TEXT,\n"
    u"  TF_DEL CHAR(1) DEFAULT 'N' CHECK (TF_DEL IN ('S', 'N')),\n"
    u"  CONSTRAINT PK_PRODUTO PRIMARY KEY (CD_PRO))"_s;

const UnicodeString kPedidos =
    u"CREATE TABLE PEDIDO (\n"
    u"  CD_PED INTEGER NOT NULL,\n"
    u"  DT_PED DATE NOT NULL,\n"
    u"  CD_CLI INTEGER NOT NULL,\n"
    u"  CD_VEN INTEGER NOT NULL,\n"
    u"  VL_TOTAL NUMERIC(15,2),\n"
    u"  OBS VARCHAR(200),\n"
    u"  TF_DEL CHAR(1) DEFAULT 'N' CHECK (TF_DEL IN ('S', 'N')),\n"
    u"  CONSTRAINT PK_PEDIDO PRIMARY KEY (CD_PED),\n"
    u"  CONSTRAINT FK_PEDIDO_CLIENTE FOREIGN KEY (CD_CLI) REFERENCES CLIENTE (CD_CLI),\n"
    u"  CONSTRAINT FK_PEDIDO_VENDEDOR FOREIGN KEY (CD_VEN) REFERENCES VENDEDOR (CD_VEN))"_s;

const UnicodeString kItens =
    u"CREATE TABLE ITEM_PEDIDO (\n"
    u"  CD_PED INTEGER NOT NULL,\n"
    u"  NR_ITEM INTEGER NOT NULL,\n"
    u"  CD_PRO INTEGER NOT NULL,\n"
    u"  QT_ITEM NUMERIC(15,3) NOT NULL CHECK (QT_ITEM > 0),\n"
    u"  VL_UNIT NUMERIC(15,2) NOT NULL,\n"
    u"  VL_ITEM NUMERIC(15,2) NOT NULL,\n"
    u"  CONSTRAINT PK_ITEM_PEDIDO PRIMARY KEY (CD_PED, NR_ITEM),\n"
    u"  CONSTRAINT FK_ITEM_PEDIDO FOREIGN KEY (CD_PED) REFERENCES PEDIDO (CD_PED) ON DELETE CASCADE,\n"
    u"  CONSTRAINT FK_ITEM_PRODUTO FOREIGN KEY (CD_PRO) REFERENCES PRODUTO (CD_PRO))"_s;

const UnicodeString kUsuarios =
    u"CREATE TABLE USUARIO (\n"
    u"  NM_USU VARCHAR(20) NOT NULL COLLATE PT_BR,\n"
    u"  SENHA CHAR(32) NOT NULL,\n"
    u"  DIREITOS VARCHAR(200),\n"
    u"  CONSTRAINT PK_USUARIO PRIMARY KEY (NM_USU))"_s;

// A generator for the table's key, and the trigger that numbers what comes without one.
TStringArray Numeracao(const UnicodeString& tabela, const UnicodeString& chave) {
    return {u"CREATE SEQUENCE GEN_"_s + tabela,
            u"CREATE TRIGGER %1_BI FOR %1 ACTIVE BEFORE INSERT POSITION 0 AS\n"
            "BEGIN\n"
            "  IF (NEW.%2 IS NULL) THEN NEW.%2 = GEN_ID(GEN_%1, 1);\n"
            "END"_s.arg(tabela, chave)};
}

// One index over a column and the key, which makes every order a total one.
UnicodeString Indice(const UnicodeString& tabela, const UnicodeString& coluna, const UnicodeString& chave) {
    return u"CREATE INDEX IX_%1_%2 ON %1 (%2, %3)"_s.arg(tabela, coluna, chave);
}

}  // namespace

TStringArray ComandosDasTabelas() {
    TStringArray comandos = {kEstados, kMunicipios, kClientes};
    for (const UnicodeString& comando : Numeracao(u"CLIENTE"_s, u"CD_CLI"_s)) comandos.push_back(comando);
    return comandos;
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

TStringArray ComandosDeVendas() {
    TStringArray comandos = {kVendedores, kProdutos, kPedidos, kItens, kUsuarios};
    const std::pair<UnicodeString, UnicodeString> chaves[] = {
        {u"VENDEDOR"_s, u"CD_VEN"_s}, {u"PRODUTO"_s, u"CD_PRO"_s}, {u"PEDIDO"_s, u"CD_PED"_s}};
    for (const auto& [tabela, chave] : chaves) {
        for (const UnicodeString& comando : Numeracao(tabela, chave)) comandos.push_back(comando);
    }
    for (const auto& coluna : {u"NM_PRO"_s, u"REFERENCIA"_s, u"VL_VENDA"_s})
        comandos.push_back(Indice(u"PRODUTO"_s, coluna, u"CD_PRO"_s));
    for (const auto& coluna : {u"DT_PED"_s, u"VL_TOTAL"_s})
        comandos.push_back(Indice(u"PEDIDO"_s, coluna, u"CD_PED"_s));
    comandos.push_back(u"CREATE INDEX IX_PEDIDO_DIA ON PEDIDO COMPUTED BY (CAST(DT_PED AS DATE))"_s);
    return comandos;
}
