#include "forms/masters/UViz_Master.h"

#include "platform/rtl/IniFile.h"
#include "platform/ui/Application.h"
#include "tests/forms/masters/Bancada.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kAviso = 64, kErro = 16, kPergunta = 36;

using VizMaster = Bancada;

TEST_F(VizMaster, LaysOutStripAndGridWithoutGaps) {
    TFrmTesteClientes* view = View(vtFilter);
    for (const QSize& size : {QSize(view->Width(), view->Height()), QSize(900, 620)}) {
        SCOPED_TRACE(size.width());
        view->SetWidth(size.width());
        view->SetHeight(size.height());
        EXPECT_EQ(view->DBGrd->Top(), 81);
        EXPECT_EQ(view->DBGrd->Top() + view->DBGrd->Height(), view->ClientHeight());
        EXPECT_EQ(view->DBGrd->Width(), view->ClientWidth());
        EXPECT_EQ(view->TBButtons->Top() + view->TBButtons->Height() + 5, view->DBGrd->Top());
        EXPECT_EQ(view->TBButtons->Width(), 4 * view->TBButtons->ButtonWidth());
        EXPECT_GT(view->PnPesquisa->Left(), view->TBButtons->Width());
        EXPECT_EQ(view->LbRegCount->Left() + view->LbRegCount->Width() + 8, view->ClientWidth());
    }
    view->SetHeight(10);
    EXPECT_GE(view->DBGrd->Height(), 13 * view->DBGrd->RowHeight());
}

TEST_F(VizMaster, OffersWhatItsModeAndTableAllow) {
    TFrmTesteClientes* view = View(vtFilter);
    EXPECT_TRUE(view->ExibirRegistrosExcludos1->Visible());
    EXPECT_TRUE(view->N1->Visible());
    EXPECT_TRUE(view->BtnBuscar);
    view->Free();
    view = View(vtList);
    EXPECT_FALSE(view->BtnBuscar);
    EXPECT_FALSE(view->Pesquisa1->Visible());
    EXPECT_FALSE(view->Ajuda1->Visible());
}

TEST_F(VizMaster, OpensTheFormThatTheRightsAllow) {
    const struct {
        const char* Case;
        std::set<UnicodeString> Rights;
        int Key;
        const char16_t* Suffix;
    } cases[] = {{"insert", {u"New"_s}, VK_INSERT, u" [Incluindo]"},
                 {"enter", {u"Edit"_s}, VK_RETURN, u" [Alterando]"},
                 {"enter without the right", {}, VK_RETURN, u" [Visualizando]"}};
    TFrmTesteClientes* view = View(vtFilter);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Case);
        Module.SetRights(c.Rights);
        Press(c.Key);
        ASSERT_TRUE(Ficha(view));
        EXPECT_EQ(Ficha(view)->Caption(), u"Clientes"_s + QString::fromUtf16(c.Suffix));
        EXPECT_TRUE(view->Showing());
        Press(VK_ESCAPE);
        EXPECT_TRUE(Until([&] { return !view->ChildForm(); }));
        EXPECT_TRUE(view->DBGrd->Focused());
    }
}

TEST_F(VizMaster, RefusesWithoutRights) {
    Module.SetRights({});
    TFrmTesteClientes* view = View(vtFilter);
    ExpectBox(u"Desculpe mais você não tem direitos suficientes para incluir um registro."_s, u"Erro"_s,
              kErro);
    Press(VK_INSERT);
    ExpectBox(u"Desculpe mais você não tem direitos suficientes para excluir um registro."_s, u"Erro"_s,
              kErro);
    Click(view->BtnExcluir);
    EXPECT_FALSE(view->ChildForm());
}

TEST_F(VizMaster, TellsWhenThereIsNothingToOpen) {
    Caso.Connection->ExecSQL(u"DELETE FROM CLIENTE"_s);
    TFrmTesteClientes* view = View(vtFilter);
    ExpectBox(u"Não existe nenhum registro a ser alterado."_s, u"Informação"_s, kAviso);
    Click(view->BtnAlterar);
    ExpectBox(u"Não existe nenhum registro a ser excluido."_s, u"Informação"_s, kAviso);
    Click(view->BtnExcluir);
    Module.SetRights({u"Delete"_s});
    Press(VK_RETURN);
    EXPECT_FALSE(view->ChildForm());
    Module.SetRights({u"New"_s});
    Press(VK_RETURN);
    EXPECT_TRUE(Ficha(view));
}

TEST_F(VizMaster, IsReadOnlyWithoutARegistrationForm) {
    Caso.ReadOnly = true;
    TFrmTesteClientes* view = View(vtList, ktNone);
    for (TToolButton* button : {view->BtnNovo, view->BtnAlterar, view->BtnExcluir}) {
        ExpectBox(u"Esse módulo do sistema está disponível somente em modo consulta."_s, u"Erro"_s, kErro);
        Click(button);
    }
}

TEST_F(VizMaster, TreatsDeletedRecords) {
    TFrmTesteClientes* view = View(vtFilter);
    EXPECT_EQ(view->Query->RecordCount(), 2);
    view->ExibirRegistrosExcludos1->Click();
    EXPECT_TRUE(view->ExibirRegistrosExcludos1->Checked());
    EXPECT_EQ(view->Query->RecordCount(), 3);
    ASSERT_TRUE(view->Query->Locate(u"ID_CLI"_s, 3, 0));
    ExpectBox(u"Esse registro já foi excluído."_s, u"Erro"_s, kErro);
    Click(view->BtnExcluir);
    const UnicodeString question =
        u"Para efetuar alguma alteração, você deve restaurar o registro. Deseja restaurar o registro selecionado?"_s;
    ExpectBox(question, u"Confirmação"_s, kPergunta, IDNO);
    Click(view->BtnAlterar);
    EXPECT_FALSE(view->ChildForm());
    ExpectBox(question, u"Confirmação"_s, kPergunta, IDYES);
    Click(view->BtnAlterar);
    ASSERT_TRUE(Ficha(view));
    Press(VK_F12);
    ASSERT_TRUE(Until([&] { return !view->ChildForm(); }));
    EXPECT_EQ(Scalar("SELECT TF_DEL FROM CLIENTE WHERE ID_CLI = 3"), u"N"_s);
    view->ExibirRegistrosExcludos1->Click();
    EXPECT_EQ(view->Query->RecordCount(), 3);
}

TEST_F(VizMaster, KeepsFontAndColumnsUntilTheyAreRestored) {
    TFrmTesteClientes* view = View(vtList);
    const int font = view->DBGrd->FontSize(), width = view->DBGrd->Columns()[0]->Width();
    for (int i = 0; i < 10; ++i) view->AumentarFonte1->Click();
    EXPECT_EQ(view->DBGrd->FontSize(), 12);
    view->DBGrd->Columns()[0]->SetWidth(width + 33);
    view->DBGrd->Columns()[3]->SetVisible(false);
    view->DBGrd->Columns().Move(2, 0);
    view->DBGrd->OnColumnMoved(2, 0);
    view->SetOrderFieldIndex(1);  // the code, moved to the second place
    view->Paisagem1->Click();
    view->Free();

    view = View(vtList);
    EXPECT_EQ(view->DBGrd->FontSize(), 12);
    EXPECT_TRUE(view->Paisagem1->Checked());
    const TDBGridColumns& columns = view->DBGrd->Columns();
    EXPECT_EQ(columns[0]->FieldName(), u"NM_EST"_s);
    EXPECT_EQ(columns[0]->PickList().Count(), 2);
    EXPECT_EQ(columns[1]->Width(), width + 33);
    EXPECT_EQ(columns[1]->Title().Caption(), u"»Código"_s);
    EXPECT_EQ(columns[2]->Title().Caption(), u"Nome"_s);
    EXPECT_FALSE(columns[3]->Visible());
    for (int i = 0; i < 10; ++i) view->DiminuirFonte1->Click();
    EXPECT_EQ(view->DBGrd->FontSize(), 6);

    ExpectBox(u"Você tem certeza que deseja restaurar a configuração padrão dessa janela?"_s,
              u"Confirmação"_s, kPergunta, IDYES);
    ExpectBox(u"A restauração foi efetuada com sucesso."_s, u"Informação"_s, kAviso);
    view->RestaurarCampos1->Click();
    Until([&] { return Application->Forms().size() == 1; });
    view = View(vtList);
    EXPECT_EQ(view->DBGrd->FontSize(), font);
    EXPECT_EQ(view->DBGrd->Columns()[0]->Title().Caption(), u"Código"_s);
    EXPECT_EQ(view->DBGrd->Columns()[0]->Width(), width);
    EXPECT_TRUE(view->Retrato1->Checked());
}

TEST_F(VizMaster, DropsAStoredLayoutThatDoesNotFit) {
    for (const auto& [property, value] : {std::pair{u"GridCount"_s, u"9"_s}, {u"GRDF_01"_s, u"GONE"_s}}) {
        SCOPED_TRACE(property.toStdString());
        TFrmTesteClientes* view = View(vtList);
        view->DBGrd->Columns()[0]->SetWidth(333);
        view->Free();
        TIniFile(Folder.filePath(u"Temp/1ws.dat"_s)).WriteString(u"TFrmTesteClientes"_s, property, value);
        view = View(vtList);
        EXPECT_EQ(view->DBGrd->Columns()[0]->Width(), 80);
        EXPECT_EQ(view->DBGrd->Columns()[1]->Title().Caption(), u"»Nome"_s);
        view->Free();
    }
}

TEST_F(VizMaster, GoesToASearchResult) {
    Module.ResearchFields = u"ID_CLI|;|NM_CLI"_s;
    Module.ResearchValues = u"2|;|BRUNO"_s;
    for (const TVizsualizationType type : {vtList, vtFilter}) {
        SCOPED_TRACE(type);
        TFrmTesteClientes* view = View(type);
        view->Perform(MSG_PESQUISA, 0);
        EXPECT_EQ(view->Query->FieldByName(u"ID_CLI"_s)->AsInteger(), 2);
        EXPECT_EQ(view->LbRegCount->Caption(), type == vtList ? u"3 Registros"_s : u"1 Registro"_s);
        view->Free();
    }
}

TEST_F(VizMaster, TakesButtonsOfDescendants) {
    TFrmTesteClientes* view = View(vtList);
    const auto names = [&] {
        QStringList list;
        for (int i = 0; i < view->TBButtons->ButtonCount(); ++i) list << view->TBButtons->Buttons(i)->Name();
        return list.join(u' ');
    };
    const int width = view->TBButtons->Width(), icons = view->ImgLst->Count();
    bool clicked = false;
    TToolButton* button = view->CreateButton(u"BtnFicha"_s, u"Ficha"_s, u"ICO24_CLIENTES"_s, 1,
                                             [&](TComponent*) { clicked = true; });
    EXPECT_EQ(names(), u"BtnNovo BtnFicha BtnAlterar BtnExcluir BtnImprimir"_s);
    EXPECT_GT(view->TBButtons->Width(), width);
    EXPECT_EQ(button->ImageIndex(), icons);
    EXPECT_EQ(view->LoadIcon(u"ico24_clientes"_s), icons);
    Click(button);
    EXPECT_TRUE(clicked);
    view->SetButtonPosition(button, 0);
    EXPECT_EQ(names(), u"BtnFicha BtnNovo BtnAlterar BtnExcluir BtnImprimir"_s);
    view->DestroyButton(u"btnficha"_s);
    EXPECT_EQ(view->TBButtons->ButtonCount(), 5);
    view->DestroyButton(u"BtnFicha"_s);
    EXPECT_EQ(names(), u"BtnNovo BtnAlterar BtnExcluir BtnImprimir"_s);
    EXPECT_EQ(view->TBButtons->Width(), width);
}

}  // namespace
