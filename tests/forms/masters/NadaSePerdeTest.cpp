// What a clerk has typed outlives every failure of saving, and what was saved is said to be.
#include "platform/data/Errors.h"
#include "platform/data/firebird/ClientCall.h"
#include "platform/ui/Application.h"
#include "tests/forms/masters/Bancada.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class NadaSePerde : public Bancada {
  protected:
    void SetUp() override {
        Bancada::SetUp();
        Outro = new TFDConnection(Main);
        Outro->Params()->Assign(*Caso.Connection->Params());
        Outro->Open();
    }
    void Open(int key) {
        ViewForm = View(vtFilter);
        Press(key);
        Form = Ficha(ViewForm);
        ASSERT_TRUE(Form);
        Form->FConfirmToPost = false;
        Press('A', ssCtrl);
        TypeText(u"Zuleica"_s);
    }
    void ConfirmAndBeRefused(const UnicodeString& sentence) {
        Application->OnMessageBox = [&, hook = Application->OnMessageBox](const TBox& box) {
            EXPECT_TRUE(box.Text.contains(sentence)) << box.Text.toStdString();
            Application->OnMessageBox = hook;
            return IDOK;
        };
        Press(VK_F12);
        ASSERT_EQ(Ficha(ViewForm), Form) << "the form stays";
        EXPECT_TRUE(Form->MainDS->DataSet()->State() == dsEdit ||
                    Form->MainDS->DataSet()->State() == dsInsert);
        EXPECT_EQ(Form->Nome->Text(), u"Zuleica"_s);
    }
    bool ConfirmAndClose() {
        Press(VK_F12);
        return Until([this] { return !ViewForm->ChildForm(); });
    }

    TFDConnection* Outro = nullptr;
    TFrmTesteClientes* ViewForm = nullptr;
    TFrmTesteCliente* Form = nullptr;
};

TEST_F(NadaSePerde, WhateverRefusesThePost) {
    const struct {
        const char* Name;
        int Key;
        const char16_t* Disturb;  // by another user, while the form is open
        const char16_t* Sentence;
        const char16_t* Mend;
    } cases[] = {
        {"key taken", VK_INSERT, u"INSERT INTO CLIENTE (ID_CLI, NM_CLI) VALUES (50, 'OUTRO')", u"Já existe",
         u"DELETE FROM CLIENTE WHERE ID_CLI = 50"},
        {"changed by somebody", VK_RETURN, u"UPDATE CLIENTE SET NM_CLI = 'ANITA' WHERE ID_CLI = 1",
         u"outro usuário", u"UPDATE CLIENTE SET NM_CLI = 'ANA' WHERE ID_CLI = 1"},
        {"deleted by somebody", VK_RETURN, u"DELETE FROM CLIENTE WHERE ID_CLI = 1", u"outro usuário",
         u"INSERT INTO CLIENTE VALUES (1, 'ANA', '52998224725', 10, 'SP', 'N')"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.Name);
        Open(each.Key);
        Outro->ExecSQL(QString::fromUtf16(each.Disturb));
        ConfirmAndBeRefused(QString::fromUtf16(each.Sentence));
        Outro->ExecSQL(QString::fromUtf16(each.Mend));
        ASSERT_TRUE(ConfirmAndClose());
        EXPECT_EQ(Scalar("SELECT COUNT(*) FROM CLIENTE WHERE NM_CLI = 'Zuleica'"), u"1"_s);
        Outro->ExecSQL(u"DELETE FROM CLIENTE WHERE ID_CLI = 50"_s);
        Outro->ExecSQL(u"UPDATE CLIENTE SET NM_CLI = 'ANA' WHERE ID_CLI = 1"_s);
        ViewForm->Free();
    }
}

TEST_F(NadaSePerde, WhileSomebodyElseHoldsTheRecord) {
    Open(VK_RETURN);
    Outro->StartTransaction();
    Outro->ExecSQL(u"UPDATE CLIENTE SET VL_LIM = 11 WHERE ID_CLI = 1"_s);
    ConfirmAndBeRefused(u"outro usuário"_s);
    Outro->Rollback();
    ASSERT_TRUE(ConfirmAndClose());
    EXPECT_EQ(Scalar("SELECT NM_CLI FROM CLIENTE WHERE ID_CLI = 1"), u"Zuleica"_s);
}

// After the post at most three statements bring the list up to date; when they fail, the record is safe.
TEST_F(NadaSePerde, SavedIsSaidWhenTheListCannotFollow) {
    for (const bool fails : {false, true}) {
        SCOPED_TRACE(fails);
        Open(VK_RETURN);
        int read = 0;
        bool committed = false;
        fichario::SetClientCallHook([&](fichario::CallKind kind) {
            read += kind == fichario::CallKind::Execute;
            if (fails && committed) throw EFDError(u"A conexão caiu."_s, {});
            committed |= kind == fichario::CallKind::Commit;
        });
        if (fails) {
            ExpectBox(u"O registro foi salvo, mas a lista não pôde ser atualizada: A conexão caiu."_s,
                      u"Aviso"_s, MB_ICONWARNING);
        }
        EXPECT_TRUE(ConfirmAndClose());
        fichario::SetClientCallHook(nullptr);
        EXPECT_LE(read, 3);
        EXPECT_EQ(Scalar("SELECT NM_CLI FROM CLIENTE WHERE ID_CLI = 1"), u"Zuleica"_s);
        ViewForm->Free();
    }
}

}  // namespace
