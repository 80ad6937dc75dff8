#include "forms/masters/UViz_Master.h"

#include <QFile>

#include "platform/data/RowsFile.h"
#include "platform/rtl/Files.h"
#include "platform/rtl/IniFile.h"
#include "platform/ui/Application.h"
#include "tests/forms/masters/Bancada.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kAviso = 64, kErro = 16;

using VizMaster = Bancada;

TEST_F(VizMaster, OpensFormsAndKeepsItsLooks) {
    using A = QStringList;
    Run("vista",
        {{u"Viewing"_s, [&](const A&) { return Vista->Showing() ? u"yes"_s : u"no"_s; }},
         {u"Locate"_s,
          [&](const A& a) { return Vista->Query->Locate(u"ID_CLI"_s, a[0].toInt()) ? u"yes"_s : u"no"_s; }},
         {u"Hide"_s, Does([&](const A& a) { Vista->DBGrd->Columns()[a[0].toInt()]->SetVisible(false); })},
         {u"Move"_s, Does([&](const A& a) {
              Vista->DBGrd->Columns().Move(a[0].toInt(), a[1].toInt());
              Vista->DBGrd->OnColumnMoved(a[0].toInt(), a[1].toInt());
          })},
         {u"DoubleClick"_s, Does([&](const A&) { Vista->DBGrd->OnDblClick(Vista->DBGrd); })},
         {u"OrderBy"_s, Does([&](const A& a) { Vista->SetOrderFieldIndex(a[0].toInt()); })},
         {u"Choices"_s,
          [&](const A& a) {
              return QString::number(Vista->DBGrd->Columns()[a[0].toInt()]->PickList().Count());
          }},
         {u"Alone"_s,
          [](const A&) {
              return Until([] { return Application->Forms().size() == 1; }) ? u"yes"_s : u"no"_s;
          }},
         {u"Store"_s, Does([&](const A& a) {
              TIniFile(Folder.filePath(u"Temp/1ws.dat"_s)).WriteString(u"TFrmTesteClientes"_s, a[0], a[1]);
          })},
         {u"NotSearched"_s, Does([&](const A& a) { Caso.NotSearched = a[0]; })},
         {u"GoTo"_s, Does([&](const A& a) {
              Module.ResearchFields = a[0];
              Module.ResearchValues = a[1];
              Vista->Perform(MSG_PESQUISA, 0);
          })}});
}

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
        EXPECT_EQ(view->TBButtons->Width(), 5 * view->TBButtons->ButtonWidth());
        EXPECT_GT(view->PnPesquisa->Left(), view->TBButtons->Width());
        EXPECT_EQ(view->LbRegCount->Left() + view->LbRegCount->Width() + 8, view->ClientWidth());
    }
    view->SetHeight(10);
    EXPECT_GE(view->DBGrd->Height(), 13 * view->DBGrd->RowHeight());
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
    view->DestroyButton(u"BtnNovo"_s);
    Press(VK_INSERT);
    view->DestroyButton(u"BtnAlterar"_s);
    Press(VK_RETURN);
    EXPECT_FALSE(view->ChildForm());
}

TEST_F(VizMaster, PrintsThroughTheProgramBesideIt) {
    const auto path = [&](const UnicodeString& name) { return Folder.filePath(name); };
    const UnicodeString program = path(u"GridReport"_s), told = path(u"dito"_s);
    TFrmTesteClientes* view = View(vtFilter);
    ExpectBox(u"Não foi possível executar '%1.exe': arquivo ou pasta inexistente."_s.arg(program), u"Erro"_s,
              kErro);
    Click(view->BtnImprimir);
    WriteWholeFile(program, "#!/bin/sh\necho \"$@\" > '" + told.toUtf8() + ".x' && mv '" + told.toUtf8() +
                                ".x' '" + told.toUtf8() + "'\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    view->Paisagem1->Click();
    view->Query->FieldByName(u"NM_CLI"_s)->SetEditMask(u"!AAAA;0; "_s);
    view->DBGrd->Columns()[2]->SetVisible(false);
    view->DBGrd->Columns()[3]->SetWidth(5000);
    view->Imprimir1->Click();
    ASSERT_TRUE(Until([&] { return QFile::exists(told); }));
    EXPECT_EQ(ReadWholeFile(told), "-o528" + QByteArray::number(Module.Number()) + "\n");
    TRowsReader rows(path(u"repvw.dat"_s));
    EXPECT_EQ(rows.Rows(), 2);
    const TIniFile ini(path(u"repvwi.dat"_s));
    EXPECT_EQ(ini.ReadString(u"INFORMATION", u"Name", {}), view->Caption());
    EXPECT_EQ(ini.ReadString(u"INFORMATION", u"Model", {}), u"1"_s);
    EXPECT_EQ(ini.ReadString(u"INFORMATION", u"Count", {}), u"4"_s);
    EXPECT_EQ(ini.ReadString(u"FIELD_01", u"FieldName", {}), u"NM_CLI"_s);
    EXPECT_EQ(ini.ReadString(u"FIELD_01", u"DisplayLabel", {}), u"Nome"_s);
    EXPECT_EQ(ini.ReadString(u"FIELD_01", u"EditMask", {}), u"!AAAA;0; "_s);
    EXPECT_GT(ini.ReadInteger(u"FIELD_01", u"DisplayWidth", 0), 20);
    EXPECT_FALSE(ini.ValueExists(u"FIELD_00", u"EditMask"));
    EXPECT_TRUE(ini.ValueExists(u"FIELD_00", u"DisplayFormat"));
    EXPECT_FALSE(ini.ValueExists(u"FIELD_01", u"DisplayFormat"));
    EXPECT_FALSE(ini.ReadBool(u"FIELD_02", u"Visible", true));
    EXPECT_EQ(ini.ReadInteger(u"FIELD_03", u"DisplayWidth", 0), 50);
    view->Query->Close();
    ExpectBox(u"Não existe nenhum registro a ser impresso."_s, u"Informação"_s, kAviso);
    Click(view->BtnImprimir);
}

}  // namespace
