// The two entry dialogs by keys only: a receipt from its first letter to its PDF, and the settings of the
// connection, whose server is a port that refuses.
#include <gtest/gtest.h>
#include <QPrinter>
#include <QTemporaryDir>

#include "demo/ConexaoRegras.h"
#include "demo/dados/Banco.h"
#include "demo/FrmPreviaRecibo.h"
#include "demo/FrmPrincipal.h"
#include "demo/FrmRecibo.h"
#include "platform/rtl/Files.h"
#include "platform/system/Paths.h"
#include "platform/ui/Application.h"
#include "platform/ui/ListBoxes.h"
#include "platform/ui/StdCtrls.h"
#include "tests/support/Screen.h"
#include "utils/Funcoes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kPergunta = MB_YESNO | MB_ICONQUESTION;
const UnicodeString kRecusado = u"Servidor não encontrado ou sem resposta (127.0.0.1/1)."_s;
const TDadosConexao kRecusa{u"127.0.0.1"_s, u"1"_s, u"/dados/loja.fdb"_s, u"ANA"_s, u"sênha;#"_s, {}};

class Entradas : public testing::Test {
  protected:
    void SetUp() override {
        SetProgramFolder(Folder.path());
        CriarBancoDeExemplo(Folder.filePath(u"c.fdb"_s), 60);
        Data->OpenDatabase(Folder.filePath(u"c.fdb"_s));
        Main = NewForm<TFrmPrincipal>(Application, Data);
        Settle();
    }
    void TearDown() override {
        Main->Free();
        Data->Free();
        SetProgramFolder({});
    }
    void Fill(const TStringArray& texts) {
        for (const UnicodeString& text : texts) {
            Press('A', ssCtrl);
            TypeText(text);
            Press(VK_RETURN);
            Settle();
        }
    }

    QTemporaryDir Folder;
    TDM_Comercial* Data = new TDM_Comercial(nullptr);
    TFrmPrincipal* Main = nullptr;
};

TEST_F(Entradas, ReceiptIsWrittenByKeys) {
    const UnicodeString path = Folder.filePath(u"r.pdf"_s), printed = Folder.filePath(u"i.pdf"_s);
    UnicodeString payer;
    ExpectModal([&](TForm* form) {
        ExpectModal([&](TForm* lookup) {
            EXPECT_FALSE(dynamic_cast<TFrmPesqPagador*>(lookup)->MainDS->DataSet()->IsEmpty());
            Press(VK_ESCAPE);
        });
        Press(VK_F2);
        TypeText(u"jo"_s);
        ExpectModal([&](TForm*) { Press(VK_RETURN); });
        Press(VK_F2);
        payer = Find<TEdit>(form, u"EdtPagador"_s)->Text();
        EXPECT_TRUE(payer.startsWith(u"Jo"_s)) << qPrintable(payer);
        Press(VK_RETURN);
        auto* words = Find<TLabel>(form, u"LbExtenso"_s);
        TypeText(u"1.000.000"_s);
        const UnicodeString limits =
            u"O recibo é escrito por extenso: o valor vai de R$ 0,01 a R$ 999.999,99."_s;
        EXPECT_EQ(words->Caption(), limits);
        ExpectBox(limits, u"Aviso"_s, MB_ICONWARNING);
        Press(VK_F12);
        Fill({u"1.121,05"_s, u"aluguel"_s, u"Londrina"_s});
        EXPECT_EQ(words->Caption(), u"Um Mil, Cento e Vinte e Um Reais e Cinco Centavos"_s);
        ExpectModal([&](TForm*) { Press(VK_ESCAPE); });
        Press(VK_F12);  // only looked at: what was typed stays
        EXPECT_TRUE(form->Visible());
        ExpectModal([&](TForm* shown) {
            auto* preview = dynamic_cast<TFrmPreviaRecibo*>(shown);
            preview->OnAskFile = [&](const UnicodeString&) { return path; };
            preview->OnAskPrinter = [&](QPrinter& printer) {
                printer.setOutputFileName(printed);
                return true;
            };
            Press('S', ssAlt);
            Press('I', ssAlt);
            Press('F', ssAlt);
        });
        Press(VK_F12);
    });
    Main->OpenRecibo();
    for (const UnicodeString& file : {path, printed})
        EXPECT_TRUE(ReadWholeFile(file).startsWith("%PDF")) << qPrintable(file);
}

TEST_F(Entradas, GivingUpAReceiptAsksOnceSomethingIsTyped) {
    ExpectModal([&](TForm*) { Press(VK_ESCAPE); });
    Main->OpenRecibo();
    ExpectModal([&](TForm*) {
        TypeText(u"Ana"_s);
        Press(VK_ESCAPE);
    });
    ExpectBox(u"Você tem certeza que deseja cancelar?"_s, u"Confirmação"_s, kPergunta, IDYES);
    Main->OpenRecibo();
}

TEST_F(Entradas, WhoEntersIsNotedAndProposedNextTime) {
    qputenv("XDG_CONFIG_HOME", Folder.path().toLocal8Bit());
    const auto proposed = [](TForm* form) { return Find<TComboBox>(form, u"CbUsuario"_s)->Text(); };
    ExpectModal([&](TForm* form) {
        EXPECT_EQ(proposed(form), u"Gerente");
        TypeText(u"V"_s);
        Press(VK_RETURN);
        TypeText(u"x"_s);
        ExpectBox(u"Usuário ou senha inválidos."_s, u"Aviso"_s, MB_ICONWARNING);
        Press(VK_F12);
        Press(VK_BACK);
        Press(VK_F12);
    });
    EXPECT_TRUE(Main->Identifica());
    const QByteArray diary = ReadWholeFile(LogFileName());
    EXPECT_TRUE(diary.contains("Entrada de Vendedor recusada em ") && diary.contains("Vendedor entrou em "));
    ExpectModal([&](TForm* form) {
        EXPECT_EQ(proposed(form), u"Vendedor");
        Press(VK_ESCAPE);
    });
    EXPECT_FALSE(Main->Identifica());
}

TEST(Recibo, SaysItsSentence) {
    const TRecibo recibo{u"Ana"_s, *LeValor(u"2.000,5"_s), u"aluguel."_s, u"Londrina"_s,
                         EncodeDate(2024, 3, 7)};
    EXPECT_EQ(TextoDoRecibo(recibo),
              u"Recebi(emos) de Ana a importância de R$\u00A02.000,50 (Dois Mil Reais e Cinquenta Centavos), "
              "referente a aluguel, de que dou(damos) plena quitação."_s);
    EXPECT_EQ(CidadeEData(recibo), u"Londrina, 7 de março de 2024"_s);
    for (const UnicodeString& wrong : {u"1,234"_s, u"-1"_s, u"1.23"_s, u"0"_s, u"999999999999"_s, u","_s})
        EXPECT_FALSE(RecusaDoValor(wrong).isEmpty()) << qPrintable(wrong);
}

TEST(Conexao, RefusesWhatCouldNotBeReadBack) {
    EXPECT_FALSE(CriticaConexao(kRecusa));
    const std::pair<UnicodeString TDadosConexao::*, UnicodeString> cases[] = {
        {&TDadosConexao::Servidor, {}},
        {&TDadosConexao::Servidor, u"a/2"_s},
        {&TDadosConexao::Porta, u"65536"_s},
        {&TDadosConexao::Banco, u"/loja.fdb"_s},
        {&TDadosConexao::Banco, u"C:\\dados\\"_s},
        {&TDadosConexao::Senha, u"пароль"_s},
        {&TDadosConexao::Senha, UnicodeString(100, u'x')},
        {&TDadosConexao::Porta, u"$BEA"_s}};
    for (const auto& [campo, valor] : cases) {
        TDadosConexao dados = kRecusa;
        dados.*campo = valor;
        const auto recusa = CriticaConexao(dados);
        EXPECT_TRUE(recusa && recusa->Campo == campo) << qPrintable(valor);
    }
}

TEST_F(Entradas, ConnectionIsTestedBeforeItIsSaved) {
    ExpectModal([&](TForm* form) {
        EXPECT_EQ(Find<TEdit>(form, u"EdtSenha"_s)->displayText().count(u'●'), 9);
        Fill({kRecusa.Servidor, kRecusa.Porta, kRecusa.Banco, kRecusa.Usuario, kRecusa.Senha});
        ExpectBox(kRecusado, u"Erro"_s, MB_ICONERROR);
        Press('T', ssAlt);
        const UnicodeString question = kRecusado + u"\n\nDeseja gravar as configurações mesmo assim?"_s;
        ExpectBox(question, u"Confirmação"_s, kPergunta, IDNO);
        Press(VK_F12);
        EXPECT_NE(LeConexao(), kRecusa);
        ExpectBox(question, u"Confirmação"_s, kPergunta, IDYES);
        Press(VK_F12);
    });
    EXPECT_TRUE(Main->OpenConexao());
    EXPECT_EQ(LeConexao(), kRecusa);
    EXPECT_FALSE(ReadWholeFile(Folder.filePath(u"Config.ini"_s)).contains("nha;"));
}

TEST_F(Entradas, WhoCannotConnectMayRepairTheSettings) {
    GravaConexao(kRecusa);
    Data->Connection()->Close();
    const UnicodeString offer = kRecusado + u"\n\nDeseja configurar a conexão?"_s;
    ExpectBox(offer, u"Erro"_s, MB_YESNO | MB_ICONERROR, IDYES);
    ExpectModal([&](TForm*) { Press(VK_ESCAPE); });
    EXPECT_FALSE(Main->Conecta());
}

}  // namespace
