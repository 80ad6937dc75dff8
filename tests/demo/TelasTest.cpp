// What holds for every screen: a name for each control that a screen reader meets, no letter twice among the
// mnemonics of a form; and the lookup of a town, by keys.
#include <gtest/gtest.h>
#include <QAccessible>
#include <QGuiApplication>
#include <QScreen>
#include <QTemporaryDir>

#include "demo/dados/Banco.h"
#include "demo/FrmClientes.h"
#include "demo/FrmPrincipal.h"
#include "forms/browse/UPesq_Master.h"
#include "platform/data/DataSet.h"
#include "platform/system/Paths.h"
#include "platform/ui/Application.h"
#include "platform/ui/Menus.h"
#include "tests/support/Screen.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Returns how many controls were looked at.
int ExpectNames(const TControl& parent) {
    int count = 0;
    for (TControl* control : parent.Controls()) {
        if (!control->Visible()) continue;
        QWidget* widget = control->Widget();
        const bool met = widget->focusPolicy() != Qt::NoFocus || control->OnClick;
        if (met && !dynamic_cast<TPageControl*>(control)) {
            const QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(widget);
            EXPECT_FALSE(reader->text(QAccessible::Name).isEmpty()) << control->Name().toStdString();
            ++count;
        }
        count += ExpectNames(*control);
    }
    return count;
}

void ExpectOnce(const QStringList& letters) {
    EXPECT_EQ(QStringList(letters).removeDuplicates(), 0) << letters.join(u' ').toStdString();
}

void CollectMnemonic(const UnicodeString& caption, QStringList& letters) {
    const qsizetype at = caption.indexOf(u'&');
    if (at >= 0) letters << caption.mid(at + 1, 1).toUpper();
}

void CollectMnemonics(const TControl& parent, QStringList& letters) {
    for (const TControl* control : parent.Controls()) {
        if (!control->Visible()) continue;
        CollectMnemonic(control->Caption(), letters);
        CollectMnemonics(*control, letters);
    }
}

// Each menu below has its letters for itself.
void CollectMnemonics(const TMenuItem& menu, QStringList& letters) {
    for (int i = 0; i < menu.Count(); ++i) {
        if (!menu.Items(i)->Visible()) continue;
        CollectMnemonic(menu.Items(i)->Caption(), letters);
        QStringList below;
        CollectMnemonics(*menu.Items(i), below);
        ExpectOnce(below);
    }
}

void ExpectUsable(TForm* form) {
    SCOPED_TRACE(form->Caption().toStdString());
    EXPECT_GT(ExpectNames(*form), 1);
    QStringList letters;
    CollectMnemonics(*form, letters);
    for (int i = 0; i < form->ComponentCount(); ++i) {
        if (const auto* menu = dynamic_cast<TMainMenu*>(form->Components(i)))
            CollectMnemonics(*menu->Items(), letters);
    }
    ExpectOnce(letters);
}

class Telas : public testing::Test {
  protected:
    void SetUp() override {
        SetProgramFolder(Folder.path());
        CriarBancoDeExemplo(Folder.filePath(u"c.fdb"_s), 60);
        Data->OpenDatabase(Folder.filePath(u"c.fdb"_s));
        Main = NewForm<TFrmPrincipal>(Application, Data);
        Main->OpenMunicipios();
        Main->OpenClientes();
        Clientes = dynamic_cast<TFrmClientes*>(Main->OpenForms().back());
        Settle();
    }
    void TearDown() override {
        Main->Free();
        Data->Free();
        SetProgramFolder({});
    }

    QTemporaryDir Folder;
    TDM_Comercial* Data = new TDM_Comercial(nullptr);
    TFrmPrincipal* Main = nullptr;
    TFrmClientes* Clientes = nullptr;
};

TEST_F(Telas, NameEveryControlAndUseALetterOnce) {
    ExpectUsable(Main);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_TRUE(Main->Width() <= screen.width() && Main->Top() + Main->Height() <= screen.bottom() + 1);
    EXPECT_GT(Main->Top(), screen.top()) << "the caption is within reach";
    for (TFrmBase* form : Main->OpenForms()) ExpectUsable(form);
    const auto walk = [](TForm* form) {
        ExpectUsable(form);
        form->Close();
    };
    ExpectModal(walk);
    Clientes->Campos1->Click();
    ExpectModal(walk);
    Main->OpenRecibo();
    ExpectModal(walk);
    Main->OpenConexao();
    ExpectModal(walk);
    Main->Identifica();
    Clientes->Filtros1->Click();
    ExpectUsable(Clientes->ChildForm());
    Press('O', ssAlt);
    Press('C', ssAlt);  // the dialog's letter, not the main window's
    EXPECT_EQ(Clientes->ChildForm()->ActiveControl()->Name(), u"LstCampos");
    Press(VK_ESCAPE);
    Settle();
    Press(VK_RETURN);
    TFrmBase* ficha = Clientes->ChildForm();
    ASSERT_TRUE(ficha);
    ExpectUsable(ficha);
    Find<TControl>(ficha, u"DbCIDADE"_s)->SetFocus();
    Press(VK_F2);
    ASSERT_TRUE(ficha->ChildForm());
    ExpectUsable(ficha->ChildForm());
    ficha->ChildForm()->Close();
}

TEST_F(Telas, SalesScreensAreUsableToo) {
    Main->SetBounds(0, 0, 800, 600);
    const std::function<void()> openings[] = {[this] { Main->OpenPedidos(); },
                                              [this] { Main->OpenProdutos(); },
                                              [this] { Main->OpenVendedores(); }};
    for (const auto& open : openings) {
        open();
        auto* list = dynamic_cast<TFrmViz_Master*>(Main->OpenForms().back());
        ExpectUsable(list);
        EXPECT_LE(list->Left() + list->Width(), Main->ClientArea()->Width());
        EXPECT_LE(list->Top() + list->Height(), Main->ClientArea()->Height());
        Press(VK_INSERT);
        ASSERT_TRUE(list->ChildForm());
        ExpectUsable(list->ChildForm());
        Press(VK_ESCAPE);
        ASSERT_TRUE(Until([&] { return !list->ChildForm(); }));
        list->Close();
        Settle();
    }
}

TEST_F(Telas, TownIsLookedUpFromTheCustomersForm) {
    Press(VK_INSERT);
    TFrmBase* ficha = Clientes->ChildForm();
    Find<TControl>(ficha, u"DbCIDADE"_s)->SetFocus();
    TypeText(u"londr"_s);
    Press(VK_F2);
    auto* lookup = dynamic_cast<TFrmPesq_Master*>(ficha->ChildForm());
    ASSERT_TRUE(lookup);
    EXPECT_EQ(lookup->EdtPesquisa->Text(), u"londr"_s);
    Press(VK_RETURN);
    EXPECT_TRUE(Until([&] { return !ficha->ChildForm(); }));
    TDataSet* record = dynamic_cast<TFrmCad_Master*>(ficha)->MainDS->DataSet();
    EXPECT_EQ(record->FieldByName(u"CIDADE"_s)->AsString(), u"Londrina"_s);
    EXPECT_EQ(record->FieldByName(u"NM_EST"_s)->AsString(), u"PR"_s);
    record->Cancel();
}

}  // namespace
