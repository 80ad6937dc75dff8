// The journeys with orders, by key events only, checked over a second connection: an order with its items in
// one transaction, what is refused on the way, and what a user may not do.
#include "platform/data/Query.h"
#include "platform/rtl/Files.h"
#include "platform/ui/Application.h"
#include "platform/ui/DBGrid.h"
#include "platform/ui/StdCtrls.h"
#include "tests/demo/Balcao.h"
#include "utils/Funcoes.h"

namespace {

class Pedido : public Balcao {
  protected:
    // A new order up to its first item: the day as proposed, customer 7, the first seller of the list.
    void Begin() {
        OpenList('P');
        Press(VK_INSERT);
        ASSERT_TRUE(Ficha());
        Press(VK_RETURN);
        Fill(u"7"_s);
        ChooseSeller();
        Press(VK_RETURN);  // over the remarks
    }
    void ChooseSeller() {
        Press(VK_DOWN);
        Press(VK_DOWN);
        Press(VK_RETURN);
        Press(VK_RETURN);
    }
    // Product, quantity and price as the catalogue says, from the first cell of a row to that of the next.
    void Item(const UnicodeString& product, const UnicodeString& quantity) {
        Cell(product);
        Press(VK_RETURN);  // over the description
        Press(VK_RETURN);  // and the unit
        Cell(quantity);
        Press(VK_RETURN);  // price
        Press(VK_RETURN);  // value: on to the next row
    }
    void Cell(const UnicodeString& text) {
        TypeText(text);
        Press(VK_RETURN);  // into the field
        Press(VK_RETURN);  // to the next column
    }
    UnicodeString Items(const UnicodeString& order) {
        return Stored(
            u"SELECT LIST(NR_ITEM || ':' || CD_PRO || 'x' || QT_ITEM) FROM (SELECT * FROM ITEM_PEDIDO WHERE CD_PED = "_s +
            order + u" ORDER BY NR_ITEM)"_s);
    }
    UnicodeString TotalBesideItems(const UnicodeString& order) {
        return Stored(
            u"SELECT VL_TOTAL - (SELECT SUM(VL_ITEM) FROM ITEM_PEDIDO WHERE CD_PED = P.CD_PED) "
            "FROM PEDIDO P WHERE CD_PED = "_s +
            order);
    }
};

TEST_F(Pedido, WithFiveItemsIsSavedAsAWhole) {
    const UnicodeString before = Stored(u"SELECT GEN_ID(GEN_PEDIDO, 0) FROM RDB$DATABASE"_s);
    ASSERT_NO_FATAL_FAILURE(Begin());
    for (const auto& [product, quantity] : {std::pair{u"1"_s, u"2"_s},
                                            {u"10"_s, u"1"_s},
                                            {u"16"_s, u"2,5"_s},
                                            {u"100"_s, u"12"_s},
                                            {u"236"_s, u"3"_s}})
        Item(product, quantity);
    EXPECT_EQ(Stored(u"SELECT COUNT(*) FROM PEDIDO WHERE CD_PED > "_s + before), u"0");
    Confirm();
    const UnicodeString order = Stored(u"SELECT MAX(CD_PED) FROM PEDIDO"_s);
    EXPECT_EQ(Current(u"CD_PED"_s), order);
    EXPECT_EQ(Items(order), u"1:1x2.000,2:10x1.000,3:16x2.500,4:100x12.000,5:236x3.000");
    EXPECT_EQ(TotalBesideItems(order), u"0");
    EXPECT_EQ(Stored(u"SELECT COUNT(*) FROM ITEM_PEDIDO I JOIN PRODUTO P ON P.CD_PRO = I.CD_PRO WHERE "
                     "I.VL_UNIT = P.VL_VENDA AND I.CD_PED = "_s +
                     order),
              u"5");
    EXPECT_EQ(Stored(u"SELECT CD_CLI FROM PEDIDO WHERE CD_PED = "_s + order), u"7");
}

TEST_F(Pedido, RefusesWhatIsNoOrderAndKeepsWhatWasTyped) {
    OpenList('P');
    Press(VK_INSERT);
    Refused(u"Entre com um valor para o campo \"Cliente\" antes de prosseguir."_s);
    ExpectBox(u"O cliente 9999 não está cadastrado."_s, u"Erro"_s, 16);
    Fill(u"9999"_s);
    Fill(u"7"_s);
    Refused(u"Entre com um valor para o campo \"Vendedor\" antes de prosseguir."_s);
    ChooseSeller();
    Press(VK_RETURN);
    ExpectBox(u"Confirma os dados?"_s, u"Confirmação"_s, kPergunta, IDYES);
    ExpectBox(u"Entre com um item antes de prosseguir."_s, u"Erro"_s, 16);
    Press(VK_F12);
    ExpectBox(u"O produto 5000 não está cadastrado."_s, u"Erro"_s, 16);
    TypeText(u"5000"_s);
    Press(VK_RETURN);
    Press(VK_ESCAPE);  // the text
    Press(VK_ESCAPE);  // the row, and not the order
    ASSERT_TRUE(Ficha());
    EXPECT_EQ(Ficha()->MainDS->DataSet()->State(), dsInsert);
    ExpectBox(u"A quantidade do item deve ser inteira (UN)."_s, u"Erro"_s, 16);
    Item(u"3"_s, u"4,5"_s);
    Press(VK_LEFT);
    Press(VK_LEFT);
    Cell(u"4"_s);
    Press(VK_RETURN);
    Press(VK_RETURN);
    ExpectBox(u"Você tem certeza que deseja cancelar?"_s, u"Confirmação"_s, kPergunta, IDNO);
    Press(VK_ESCAPE);  // out of the untouched row
    Press(VK_ESCAPE);
    ASSERT_TRUE(Ficha());
    Confirm();
    EXPECT_EQ(Items(Stored(u"SELECT MAX(CD_PED) FROM PEDIDO"_s)), u"1:3x4.000");
}

// A failure while the items are written leaves no order behind, and the second try saves everything once;
// also the item that the first one took from its row, which is in the total.
TEST_F(Pedido, IsNotSavedWithoutItsItems) {
    Second->ExecSQL(
        u"CREATE TRIGGER RECUSA FOR ITEM_PEDIDO BEFORE INSERT AS BEGIN IF (NEW.NR_ITEM = 2 AND "
        u"EXISTS (SELECT 1 FROM USUARIO WHERE NM_USU = 'Recusa')) THEN NEW.CD_PRO = NULL; END"_s);
    Second->ExecSQL(u"INSERT INTO USUARIO VALUES ('Recusa', '', NULL)"_s);
    const UnicodeString before = Stored(u"SELECT COUNT(*) FROM PEDIDO"_s);
    const UnicodeString number = Stored(u"SELECT GEN_ID(GEN_PEDIDO, 0) + 1 FROM RDB$DATABASE"_s);
    ASSERT_NO_FATAL_FAILURE(Begin());
    Item(u"1"_s, u"2"_s);
    Cell(u"2"_s);
    Press(VK_RETURN);
    Press(VK_RETURN);
    Cell(u"3"_s);
    ExpectBox(u"Confirma os dados?"_s, u"Confirmação"_s, kPergunta, IDYES);
    ExpectBox(u"Entre com um valor para o campo \"Produto\" antes de prosseguir."_s, u"Erro"_s, 16);
    Press(VK_F12);
    ASSERT_TRUE(Ficha());
    EXPECT_EQ(Stored(u"SELECT COUNT(*) FROM PEDIDO"_s), before);
    Second->ExecSQL(u"DELETE FROM USUARIO WHERE NM_USU = 'Recusa'"_s);
    Confirm();
    const UnicodeString order = Stored(u"SELECT MAX(CD_PED) FROM PEDIDO"_s);
    EXPECT_EQ(Items(order), u"1:1x2.000,2:2x3.000");
    EXPECT_EQ(TotalBesideItems(order), u"0");
    EXPECT_EQ(order, number) << "one number for both";
}

TEST_F(Pedido, IsDeletedByNameAndNotedAndHasNoReceiptThen) {
    OpenList('P');
    const UnicodeString which = u"pedido 1 de %1, no valor de R$ %2"_s.arg(
        Current(u"NM_CLI"_s), Lista()->MainDS->DataSet()->FieldByName(u"VL_TOTAL"_s)->DisplayText());
    Click(Lista()->BtnExcluir);
    ExpectBox(u"Tem certeza que deseja excluir o "_s + which + u'?', u"Confirmação"_s, kPergunta, IDNO);
    Press(VK_F12);
    ASSERT_TRUE(Ficha());
    ExpectBox(u"Tem certeza que deseja excluir o "_s + which + u'?', u"Confirmação"_s, kPergunta, IDYES);
    Press(VK_F12);
    ASSERT_TRUE(FichaClosed());
    EXPECT_EQ(Stored(u"SELECT TF_DEL FROM PEDIDO WHERE CD_PED = 1"_s), u"S");
    EXPECT_TRUE(ReadWholeFile(LogFileName()).contains("pedido 1 de "));
    Lista()->ExibirRegistrosExcludos1->Click();
    ExpectBox(u"Esse pedido foi excluído."_s, u"Informação"_s, 64);
    Click(Find<TControl>(Lista(), u"BtnRecibo"_s));
}

TEST_F(Pedido, ChangedItemsAreWrittenAndTheLookupBringsAProduct) {
    Second->ExecSQL(u"DELETE FROM ITEM_PEDIDO WHERE CD_PED = 1"_s);
    Second->ExecSQL(u"INSERT INTO ITEM_PEDIDO VALUES (1, 1, 5, 2, 1.50, 3.00)"_s);
    Second->ExecSQL(u"INSERT INTO ITEM_PEDIDO VALUES (1, 2, 6, 2, 19.60, 39.20)"_s);
    OpenList('P');
    Press(VK_RETURN);
    ASSERT_TRUE(Ficha());
    auto* grid = Find<TOrlaDBGrid>(Ficha(), u"GrdItens"_s);
    while (!grid->Focused()) Press(VK_RETURN);
    ExpectBox(u"Deseja excluir o registro?"_s, u"Confirmação"_s, kPergunta, IDYES);
    Press(VK_DELETE, ssCtrl);
    Press(VK_F2);
    ASSERT_TRUE(Until([&] { return Ficha()->ChildForm() != nullptr; }));
    TypeText(u"cimento"_s);
    Settle();
    Press(VK_RETURN);
    ASSERT_TRUE(Until([&] { return !Ficha()->ChildForm(); }));
    Press(VK_F12);
    ASSERT_TRUE(FichaClosed());
    EXPECT_EQ(Items(u"1"_s), u"2:96x2.000");
    EXPECT_EQ(Stored(u"SELECT NM_PRO FROM PRODUTO WHERE CD_PRO = 96"_s), u"Cimento CP II 50 kg Aroeira");
    EXPECT_EQ(Current(u"VL_TOTAL"_s), Stored(u"SELECT SUM(VL_ITEM) FROM ITEM_PEDIDO WHERE CD_PED = 1"_s));
}

TEST_F(Pedido, TheReceiptBeginsWithTheOrder) {
    OpenList('P');
    ExpectModal([this](TForm* form) {
        EXPECT_EQ(Find<TEdit>(form, u"EdtPagador"_s)->Text(), Current(u"NM_CLI"_s));
        EXPECT_EQ(Find<TEdit>(form, u"EdtReferente"_s)->Text(), u"pedido "_s + Current(u"CD_PED"_s));
        EXPECT_EQ(Find<TEdit>(form, u"EdtValor"_s)->Text(),
                  Lista()->MainDS->DataSet()->FieldByName(u"VL_TOTAL"_s)->DisplayText());
        ExpectBox(u"Você tem certeza que deseja cancelar?"_s, u"Confirmação"_s, kPergunta, IDYES);
        Press(VK_ESCAPE);
    });
    Click(Find<TControl>(Lista(), u"BtnRecibo"_s));
}

// A seller with orders stays; one without goes for good, as the table has no deletion mark.
TEST_F(Pedido, SellersAreListedChangedAndDeleted) {
    OpenList('V');
    Press(VK_INSERT);
    Fill(u"Zuleica Prado"_s);
    Confirm();
    EXPECT_EQ(Stored(u"SELECT COUNT(*) FROM VENDEDOR WHERE NM_VEN = 'Zuleica Prado'"_s), u"1");
    EXPECT_EQ(Current(u"NM_VEN"_s), u"Zuleica Prado");
    ExpectBox(u"Tem certeza que deseja excluir esse registro?"_s, u"Confirmação"_s, kPergunta, IDYES);
    Click(Lista()->BtnExcluir);
    Press(VK_F12);
    ASSERT_TRUE(FichaClosed());
    EXPECT_EQ(Stored(u"SELECT COUNT(*) FROM VENDEDOR WHERE NM_VEN = 'Zuleica Prado'"_s), u"0");
    Second->ExecSQL(u"UPDATE PEDIDO SET CD_VEN = 1"_s);
    Lista()->MainDS->DataSet()->Locate(u"CD_VEN"_s, 1);
    ExpectBox(u"Tem certeza que deseja excluir esse registro?"_s, u"Confirmação"_s, kPergunta, IDYES);
    ExpectBox(u"Registro em uso por outro cadastro."_s, u"Erro"_s, 16);
    Click(Lista()->BtnExcluir);
    Press(VK_F12);
    EXPECT_TRUE(Ficha());
    EXPECT_EQ(Stored(u"SELECT COUNT(*) FROM VENDEDOR WHERE CD_VEN = 1"_s), u"1");
}

TEST_F(Pedido, UsersHaveTheRightsOfTheirs) {
    const struct {
        const char16_t* User;
        int Letter;
        bool Adds;
        const char16_t* Mode;
    } cases[] = {{u"Gerente", 'R', true, u"Produtos [Alterando]"},
                 {u"Vendedor", 'C', true, u"Clientes [Alterando]"},
                 {u"Vendedor", 'P', true, u"Pedidos [Alterando]"},
                 {u"Vendedor", 'R', false, u"Produtos [Visualizando]"},
                 {u"Consulta", 'P', false, u"Pedidos [Visualizando]"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(UnicodeString::fromUtf16(c.User).toStdString());
        ASSERT_TRUE(Main->Assume(UnicodeString::fromUtf16(c.User)));
        ASSERT_NO_FATAL_FAILURE(OpenList(c.Letter));
        if (!c.Adds) {
            ExpectBox(u"Desculpe mais você não tem direitos suficientes para incluir um registro."_s,
                      u"Erro"_s, 16);
            Press(VK_INSERT);
            EXPECT_FALSE(Ficha());
        }
        Press(VK_RETURN);
        ASSERT_TRUE(Ficha());
        EXPECT_EQ(Ficha()->Caption(), UnicodeString::fromUtf16(c.Mode));
        const bool credit = Ficha()->BtnTabSet->TabCount() > 1;
        EXPECT_FALSE(c.Letter == 'C' && credit);
        Press(VK_ESCAPE);
        ASSERT_TRUE(FichaClosed());
        Lista()->Close();
        ASSERT_TRUE(Until([&] { return Main->OpenForms().empty(); }));
    }
    EXPECT_FALSE(Main->Assume(u"Ninguém"_s));
}

}  // namespace
