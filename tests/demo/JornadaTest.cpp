// The journey of a clerk, by key events only, checked over a second connection: find a customer, change it,
// include one, soft-delete it, find it again among the deleted.
#include "demo/FrmClientes.h"
#include "platform/data/DataSet.h"
#include "tests/demo/Balcao.h"

namespace {

class Jornada : public Balcao {
  protected:
    void IncludeCustomer();
    void FindAndChange();
    void CancelAChange();
    void DeleteAndFindAgain();
};

// Include: the required name is asked for, a wrong CPF refused, then the record is posted and stands in the
// grid.
void Jornada::IncludeCustomer() {
    Press(VK_INSERT);
    ASSERT_TRUE(Ficha());
    EXPECT_EQ(Ficha()->Caption(), u"Clientes [Incluindo]"_s);
    ExpectBox(u"Entre com um valor para o campo \"Nome\" antes de prosseguir."_s, u"Aviso"_s, kAviso);
    Press(VK_F12);
    TypeText(u"Zélia D'Ávila"_s);
    Press(VK_RETURN);
    Press(VK_RETURN);
    TypeText(u"12345678900"_s);
    ExpectBox(u"Número de CPF inválido! Entre com um CPF válido antes de prosseguir."_s, u"Aviso"_s, kAviso);
    Press(VK_F12);
    ASSERT_TRUE(Ficha());
    Press('A', ssCtrl);
    TypeText(u"52998224725"_s);
    ExpectBox(u"Confirma os dados?"_s, u"Confirmação"_s, kPergunta, IDYES);
    Press(VK_F12);
    ASSERT_TRUE(FichaClosed());
    EXPECT_EQ(Current(u"NM_CLI"_s), u"Zélia D'Ávila"_s);
    EXPECT_EQ(Stored(u"SELECT NR_CPF FROM CLIENTE WHERE NM_CLI = 'Zélia D''Ávila'"_s), u"52998224725"_s);
}

// Find it without accents and change it on the second page.
void Jornada::FindAndChange() {
    Search(u"zelia"_s);
    EXPECT_EQ(Current(u"NM_CLI"_s), u"Zélia D'Ávila"_s);
    Press(VK_RETURN);
    ASSERT_TRUE(Ficha());
    Press(VK_NEXT);
    Press(VK_RETURN);
    Press('A', ssCtrl);
    TypeText(u"1234,56"_s);
    Press(VK_F12);
    ASSERT_TRUE(FichaClosed());
    EXPECT_EQ(Stored(u"SELECT VL_LIMITE FROM CLIENTE WHERE NM_CLI STARTING WITH 'Zélia'"_s), u"1234,56"_s);
    EXPECT_EQ(Current(u"NM_CLI"_s), u"Zélia D'Ávila"_s);
}

// Escape asks before it drops a change, and No keeps what was typed.
void Jornada::CancelAChange() {
    Press(VK_RETURN);
    ASSERT_TRUE(Ficha());
    TypeText(u"Outro nome"_s);
    ExpectBox(u"Você tem certeza que deseja cancelar?"_s, u"Confirmação"_s, kPergunta, IDNO);
    Press(VK_ESCAPE);
    ASSERT_TRUE(Ficha());
    ExpectBox(u"Você tem certeza que deseja cancelar?"_s, u"Confirmação"_s, kPergunta, IDYES);
    Press(VK_ESCAPE);
    ASSERT_TRUE(FichaClosed());
    EXPECT_EQ(Stored(u"SELECT COUNT(*) FROM CLIENTE WHERE NM_CLI = 'Outro nome'"_s), u"0"_s);
}

// Delete: the row stays, marked, and leaves the grid until the deleted ones are shown.
void Jornada::DeleteAndFindAgain() {
    Click(Lista()->BtnExcluir);
    ASSERT_TRUE(Ficha());
    ExpectBox(u"Tem certeza que deseja excluir esse registro?"_s, u"Confirmação"_s, kPergunta, IDYES);
    Press(VK_F12);
    ASSERT_TRUE(FichaClosed());
    EXPECT_EQ(Stored(u"SELECT TF_DEL FROM CLIENTE WHERE NM_CLI STARTING WITH 'Zélia'"_s), u"S"_s);
    Search(u"zelia"_s);
    EXPECT_TRUE(Lista()->MainDS->DataSet()->IsEmpty());
    Lista()->ExibirRegistrosExcludos1->Click();
    Search(u"zelia"_s);
    EXPECT_EQ(Current(u"TF_DEL"_s), u"S"_s);
}

TEST_F(Jornada, OfAClerk) {
    ASSERT_NO_FATAL_FAILURE(OpenList('C'));
    ASSERT_NO_FATAL_FAILURE(IncludeCustomer());
    ASSERT_NO_FATAL_FAILURE(FindAndChange());
    ASSERT_NO_FATAL_FAILURE(CancelAChange());
    ASSERT_NO_FATAL_FAILURE(DeleteAndFindAgain());
}

TEST_F(Jornada, WithoutRightsOnlyLooks) {
    Main->Clientes().SetRights({});
    Main->OpenClientes();
    Press(VK_RETURN);
    ASSERT_TRUE(Ficha());
    EXPECT_EQ(Ficha()->Caption(), u"Clientes [Visualizando]"_s);
    Press(VK_F12);  // there is nothing to confirm
    EXPECT_TRUE(Ficha());
    Press(VK_ESCAPE);
    EXPECT_TRUE(FichaClosed());
}

TEST_F(Jornada, TheListOfTownsMovesWithEveryKey) {
    Main->OpenMunicipios();
    auto* towns = dynamic_cast<TFrmViz_Master*>(Main->OpenForms().front());
    Press(VK_F3);
    TypeText(u"SÃO PAULO"_s);
    EXPECT_EQ(towns->MainDS->DataSet()->FieldByName(u"NM_MUN"_s)->AsString(), u"São Paulo"_s);
    ExpectBox(u"Esse módulo do sistema está disponível somente em modo consulta."_s, u"Erro"_s, 16);
    Press(VK_RETURN);
    Press(VK_RETURN);
}

}  // namespace
