#include "tests/demo/Balcao.h"

#include "demo/dados/Banco.h"
#include "platform/data/DataSet.h"
#include "platform/system/Paths.h"
#include "platform/ui/Application.h"

void Balcao::SetUp() {
    SetProgramFolder(Folder.path());
    const UnicodeString path = Folder.filePath(u"c.fdb"_s);
    CriarBancoDeExemplo(path, 300);
    Data->OpenDatabase(path);
    ApontarConexao(*Second, path);
    Main = NewForm<TFrmPrincipal>(Application, Data);
    Settle();
}

void Balcao::TearDown() {
    Main->Free();
    Data->Free();
    Second->Free();
    SetProgramFolder({});
}

TFrmViz_Master* Balcao::Lista() const {
    return Main->OpenForms().empty() ? nullptr : dynamic_cast<TFrmViz_Master*>(Main->OpenForms().front());
}

TFrmCad_Master* Balcao::Ficha() const {
    return dynamic_cast<TFrmCad_Master*>(Lista()->ChildForm());
}

UnicodeString Balcao::Current(const UnicodeString& field) const {
    return Lista()->MainDS->DataSet()->FieldByName(field)->AsString();
}

void Balcao::OpenList(int letter) {
    Press('C', ssAlt);
    Press(letter);
    ASSERT_TRUE(Until([&] { return Lista() && Lista()->RecordCount() > 0; }));
}

void Balcao::Fill(const UnicodeString& text) {
    Press('A', ssCtrl);
    TypeText(text);
    Press(VK_RETURN);
}

void Balcao::Search(const UnicodeString& text) {
    Press(VK_F3);
    Press('A', ssCtrl);
    TypeText(text);
    EXPECT_TRUE(Until([&] { return !Lista()->LookingForRecords; }));
    Press(VK_RETURN);
}

void Balcao::Refused(const UnicodeString& text) {
    ExpectBox(text, u"Aviso"_s, kAviso);
    Press(VK_F12);
    EXPECT_TRUE(Ficha());
}

void Balcao::Confirm() {
    ExpectBox(u"Confirma os dados?"_s, u"Confirmação"_s, kPergunta, IDYES);
    Press(VK_F12);
    EXPECT_TRUE(FichaClosed());
}
