// A clerk's day by key events only, checked over a second connection: twenty customers with mistakes on the
// way, a product's, one who is deleted and restored, and the list on paper.
#include <QFile>
#include <QProcess>

#include "demo/dados/Gerador.h"
#include "platform/data/DataSet.h"
#include "platform/ui/DBCtrls.h"
#include "tests/demo/Balcao.h"

namespace {

class Cadastro : public Balcao {
  protected:
    UnicodeString Active() { return Ficha()->ActiveControl()->Name(); }
    // The page "Cadastro" of a new customer from its first field on, then F12 is next.
    void Type(const TCliente& cliente) {
        Fill(cliente.Nome);
        Fill(cliente.Fantasia);
        Fill(cliente.Documento);
        Fill(cliente.Cidade);
        TypeText(cliente.UF);
        Press(VK_RETURN);
        Fill(cliente.InscricaoEstadual);
        Fill(cliente.Email);
    }
    UnicodeString Row(const UnicodeString& name) {
        return Stored(
            u"SELECT NM_CLI || '|' || COALESCE(FANTASIA, '') || '|' || NR_CPF || '|' || CIDADE || '|' || "
            u"NM_EST || '|' || "
            "NR_INS_EST || '|' || E_MAIL FROM CLIENTE WHERE CD_CLI = (SELECT MAX(CD_CLI) FROM CLIENTE "
            "WHERE NM_CLI = '%1')"_s.arg(UnicodeString(name).replace(u'\'', u"''"_s)));
    }
    // A script in the printing program's place that prints into a file at once.
    void InstallPrinter() {
        QFile script(Folder.filePath(u"GridReport.exe"_s));
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nexec '" GRIDREPORT "' --pasta '" + Folder.path().toUtf8() + "' --salvar '" +
                     Folder.path().toUtf8() + "/lista.pdf'\n");
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
};

const UnicodeString kNome = u"Entre com um valor para o campo \"Nome\" antes de prosseguir."_s;
const UnicodeString kCPF = u"Número de CPF inválido! Entre com um CPF válido antes de prosseguir."_s;
const UnicodeString kCNPJ = u"Número de CNPJ inválido! Entre com um CNPJ válido antes de prosseguir."_s;
const UnicodeString kDocumento =
    u"Número de CPF ou CNPJ inválido! Entre com um CNPJ válido antes de prosseguir."_s;
const UnicodeString kInscricao =
    u"Inscrição Estadual inválida! Entre com uma Inscrição Estadual válido antes de prosseguir."_s;

struct TErro {
    int Cliente;  // whose turn it is
    UnicodeString TCliente::*Campo;
    const char16_t* Errado;
    const UnicodeString& Mensagem;
    const char16_t* Controle;
};

const TErro kErros[] = {{0, &TCliente::Nome, u"   ", kNome, u"DbNM_CLI"},
                        {1, &TCliente::Documento, u"12345678900", kCPF, u"DbNR_CPF"},
                        {4, &TCliente::Documento, u"5299822472x", kCPF, u"DbNR_CPF"},
                        {7, &TCliente::Documento, u"11222333000182", kCNPJ, u"DbNR_CPF"},
                        {11, &TCliente::Documento, u"123456789012", kDocumento, u"DbNR_CPF"},
                        {15, &TCliente::InscricaoEstadual, u"110042490115", kInscricao, u"DbNR_INS_EST"}};

TCliente Empresa(TGeradorDeClientes& gerador) {
    TCliente cliente;
    do {
        cliente = gerador.Proximo();
    } while (cliente.Documento.size() != 14);
    return cliente;
}

TEST_F(Cadastro, TwentyCustomersWithMistakesOnTheWay) {
    ASSERT_TRUE(QFile::copy(QStringLiteral(INSCEST_LIBRARY), Folder.filePath(u"libDllInscE32.so"_s)));
    OpenList('C');
    TGeradorDeClientes gerador(4711);
    const int before = Stored(u"SELECT COUNT(*) FROM CLIENTE"_s).toInt();
    for (int i = 0; i < 20; ++i) {
        TCliente right = i == 15 ? Empresa(gerador) : gerador.Proximo();
        if (i == 15) right.UF = u"SP"_s, right.InscricaoEstadual = u"110042490114"_s;
        SCOPED_TRACE(right.Nome.toStdString());
        const auto* error = std::find_if(std::begin(kErros), std::end(kErros),
                                         [i](const TErro& e) { return e.Cliente == i; });
        TCliente typed = right;
        if (error != std::end(kErros)) typed.*error->Campo = UnicodeString::fromUtf16(error->Errado);
        Press(VK_INSERT);
        ASSERT_TRUE(Ficha());
        Type(typed);
        if (error != std::end(kErros)) {
            Refused(error->Mensagem);
            EXPECT_EQ(Active(), UnicodeString::fromUtf16(error->Controle));
            Fill(right.*error->Campo);
        }
        Confirm();
        EXPECT_EQ(Row(right.Nome), (QStringList{right.Nome, right.Fantasia, right.Documento, right.Cidade,
                                                right.UF, right.InscricaoEstadual, right.Email}
                                        .join(u'|')));
        if (HasFailure()) return;
    }
    EXPECT_EQ(Stored(u"SELECT COUNT(*) FROM CLIENTE"_s).toInt(), before + 20);
}

TEST_F(Cadastro, AProductNeedsAPriceAndAUnit) {
    OpenList('R');
    Press(VK_INSERT);
    Fill(u"Porta de pinho"_s);
    Press(VK_RETURN);
    Press(VK_RETURN);
    Fill(u"0"_s);
    Fill(u"2,5"_s);
    Fill(u"7,12345"_s);
    Refused(u"Entre com um valor para o campo \"Unidade\" antes de prosseguir."_s);
    EXPECT_EQ(Active(), u"DbUNIDADE");
    TypeText(u"u"_s);
    Refused(u"Entre com um valor para o campo \"Preço de venda\" antes de prosseguir."_s);
    EXPECT_EQ(Active(), u"DbVL_VENDA");
    Fill(u"189,9"_s);
    Confirm();
    EXPECT_EQ(Stored(u"SELECT VL_VENDA || '|' || QT_ESTOQUE || '|' || PESO || '|' || UNIDADE FROM PRODUTO "
                     u"WHERE NM_PRO = "
                     "'Porta de pinho'"_s),
              u"189.90|2.500|7.123000000000000|UN");
}

TEST_F(Cadastro, ADeletedCustomerIsRestored) {
    OpenList('C');
    const UnicodeString key = Current(u"CD_CLI"_s);
    const UnicodeString mark = u"SELECT TF_DEL FROM CLIENTE WHERE CD_CLI = "_s + key;
    Click(Lista()->BtnExcluir);
    ExpectBox(u"Tem certeza que deseja excluir esse registro?"_s, u"Confirmação"_s, kPergunta, IDYES);
    Press(VK_F12);
    ASSERT_TRUE(FichaClosed());
    EXPECT_EQ(Stored(mark), u"S");
    Lista()->ExibirRegistrosExcludos1->Click();
    Search(Second->ExecSQLScalar(u"SELECT NM_CLI FROM CLIENTE WHERE CD_CLI = "_s + key).ToText());
    ASSERT_EQ(Current(u"CD_CLI"_s), key);
    ExpectBox(
        u"Para efetuar alguma alteração, você deve restaurar o registro. Deseja restaurar o registro selecionado?"_s,
        u"Confirmação"_s, kPergunta, IDYES);
    Click(Find<TControl>(Lista(), u"BtnRestaurar"_s));
    ASSERT_TRUE(Ficha());
    Press(VK_F12);
    ASSERT_TRUE(FichaClosed());
    EXPECT_EQ(Stored(mark), u"N");
    ExpectBox(u"O registro selecionado não está excluído."_s, u"Informação"_s, 64);
    Click(Find<TControl>(Lista(), u"BtnRestaurar"_s));
    Lista()->ExibirRegistrosExcludos1->Click();
    EXPECT_FALSE(Lista()->FindComponent(u"BtnRestaurar"_s));
}

TEST_F(Cadastro, APriceIsWorkedOutFromItsCost) {
    OpenList('R');
    Press(VK_RETURN);
    Find<TControl>(Ficha(), u"DbVL_VENDA"_s)->SetFocus();
    ExpectModal([this](TForm*) {
        Fill(u"100"_s);
        Fill(u"100"_s);
        ExpectBox(u"Com esse custo e esses percentuais não há preço de venda."_s, u"Aviso"_s, kAviso);
        Press(VK_F12);
        for (const UnicodeString& text : {u"100"_s, u"18x"_s, u"12"_s, u"20.0"_s}) Fill(text);
        Press(VK_F12);
    });
    Press(VK_F2);
    EXPECT_EQ(Ficha()->MainDS->DataSet()->FieldByName(u"VL_VENDA"_s)->DisplayText(), u"200,00");
    Press(VK_F12);
    ASSERT_TRUE(FichaClosed());
}

TEST_F(Cadastro, TheListIsPrintedAndReadsAsItStands) {
    InstallPrinter();
    OpenList('V');
    Click(Lista()->BtnImprimir);
    const UnicodeString pdf = Folder.filePath(u"lista.pdf"_s);
    ASSERT_TRUE(Until([&] { return QFile::exists(pdf); }));
    QProcess reader;
    reader.start(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s});
    ASSERT_TRUE(reader.waitForFinished());
    const UnicodeString text = UnicodeString::fromUtf8(reader.readAllStandardOutput());
    EXPECT_TRUE(text.contains(u"Vendedores"_s) && text.contains(u"Página 1 de 1"_s)) << text.toStdString();
    TDataSet* sellers = Lista()->MainDS->DataSet();
    for (sellers->First(); !sellers->Eof(); sellers->Next()) {
        EXPECT_TRUE(text.contains(Current(u"NM_VEN"_s))) << Current(u"NM_VEN"_s).toStdString();
        EXPECT_TRUE(text.contains(sellers->FieldByName(u"PR_COMISSAO"_s)->DisplayText()));
    }
}

}  // namespace
