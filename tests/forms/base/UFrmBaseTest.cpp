#include "forms/base/UFrmBase.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>

#include "forms/main/UFrmMain.h"
#include "platform/rtl/Files.h"
#include "platform/system/Paths.h"
#include "platform/ui/Application.h"
#include "tests/support/Screen.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class TFrmTeste : public TFrmBase {
  public:
    TFrmTeste(TComponent* owner, TModuleInstance* module, bool hideParent = false, bool load = true)
        : TFrmBase(owner, module, module ? module->Info() : TModuleInfo{}, hideParent, load) {}
    void SetCreateError(bool fails) { Fails = fails; }
    static inline bool Fails = false;

  protected:
    void CreateControls() override {
        TFrmBase::CreateControls();
        if (Fails) throw Exception(u"CreateControls"_s);
    }
};

class TFrmPrincipalTeste : public TFrmMain {
  public:
    using TFrmMain::TFrmMain;
    int GetCountActiveModules() const override { return Alone ? 1 : TFrmMain::GetCountActiveModules(); }
    bool Alone = false;
};

class FrmBase : public testing::Test {
  protected:
    void SetUp() override {
        SetProgramFolder(Folder.path());
        Main = NewForm<TFrmPrincipalTeste>(Application, u"Teste"_s);
        Module = std::make_unique<TModuleInstance>(Main, TModuleInfo{u"TESTE"_s, u"Teste"_s, {}});
        Main->SetBounds(0, 0, 1000, 760);
        Settle();
    }
    void TearDown() override {
        TFrmTeste::Fails = false;
        Main->Free();
        SetFileFailure(nullptr);
        SetProgramFolder({});
    }
    TFrmTeste* Open(TComponent* owner = Application, bool hideParent = false) {
        return NewForm<TFrmTeste>(owner, Module.get(), hideParent);
    }
    UnicodeString StateFile() const { return Folder.path() + u"/Temp/0ws.dat"_s; }

    QTemporaryDir Folder;
    TFrmPrincipalTeste* Main = nullptr;
    std::unique_ptr<TModuleInstance> Module;  // knows its host, which is made for each test
};

TEST_F(FrmBase, NeedsAModuleAndGivesTheOpenerBack) {
    TFrmTeste* opener = Open();
    try {
        NewForm<TFrmTeste>(opener, nullptr, true);
        ADD_FAILURE() << "no exception";
    } catch (const Exception& e) {
        EXPECT_EQ(e.Message, u"You must assign a module for any form."_s);
    }
    EXPECT_EQ(opener->ChildForm(), nullptr);
    EXPECT_TRUE(opener->Showing());
    EXPECT_TRUE(opener->Enabled());
}

TEST_F(FrmBase, AFailingBirthLeavesTheOpenerAsItWas) {
    TFrmTeste* opener = Open();
    TFrmTeste::Fails = true;
    EXPECT_THROW(Open(opener), Exception);
    EXPECT_EQ(opener->ChildForm(), nullptr);
    EXPECT_TRUE(opener->Enabled());
    EXPECT_EQ(Application->ActiveForm(), opener);
}

TEST_F(FrmBase, AChildIsCentredOverItsDisabledOpener) {
    TFrmTeste* opener = Open();
    opener->SetBounds(100, 80, 600, 500);
    TFrmTeste* child = Open(opener);
    EXPECT_EQ(opener->ChildForm(), child);
    EXPECT_FALSE(opener->Enabled());
    EXPECT_TRUE(opener->Showing());
    EXPECT_EQ(child->Left(), 100 + 300 - child->Width() / 2);
    EXPECT_EQ(child->Top(), 80 + 250 - child->Height() / 2);
    ClickAt(opener->Widget(), QPoint(5, 200));  // the shield hands the attention to the child
    EXPECT_EQ(Application->ActiveForm(), child);
    Press(VK_ESCAPE);
    EXPECT_TRUE(Until([&] { return !opener->ChildForm(); }));
    EXPECT_TRUE(opener->Enabled());
    EXPECT_EQ(Application->ActiveForm(), opener);
}

TEST_F(FrmBase, AChildInTheOpenersPlaceMovesItAlong) {
    TFrmTeste* opener = Open();
    opener->SetBounds(40, 30, 500, 400);
    TFrmTeste* child = Open(opener, true);
    EXPECT_FALSE(opener->Showing());
    EXPECT_EQ(child->Left(), 40);
    EXPECT_EQ(child->Top(), 30);
    child->SetBounds(90, 70, 500, 400);
    child->Close();
    EXPECT_TRUE(Until([&] { return opener->Showing(); }));
    EXPECT_EQ(opener->Left(), 90);
    EXPECT_EQ(opener->Top(), 70);
}

TEST_F(FrmBase, TakesItsChildAlong) {
    TFrmTeste* opener = Open();
    Open(Open(opener));
    opener->Free();
    EXPECT_TRUE(Main->OpenForms().empty());
}

TEST_F(FrmBase, NewFormsAreCascadedByFive) {
    const int step = TForm::CaptionHeight() + 5;
    for (const int k : {0, 1, 2, 3, 4, 0, 1}) {
        SCOPED_TRACE(k);
        TFrmTeste* form = Open();
        EXPECT_EQ(form->Left(), k * 20);
        EXPECT_EQ(form->Top(), k * step);
    }
    Main->Alone = true;
    EXPECT_EQ(Open()->Bounds().topLeft(), QPoint(-20, -step));
}

TEST_F(FrmBase, TakesItsPicturesFromItsModuleOrItsHost) {
    for (const auto& [name, side] : {std::pair(u"ico16_teste"_s, 16), {u"x"_s, 24}, {u"y"_s, 32}}) {
        QImage picture(side, side, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.save(Folder.filePath(name + u".png"_s));
    }
    const QImage generic = Open()->Icon().pixmap(16).toImage();
    Module->SetModuleResources(Folder.path());
    TFrmTeste* form = Open();
    EXPECT_NE(form->Icon().pixmap(16).toImage(), generic);
    EXPECT_EQ(form->AddIcon(u"ICO16_TESTE"_s, rtICO, false), 0);
    EXPECT_EQ(form->AddIcon(u"X"_s, rtPNG, true), 0);  // another width: the list begins anew
    EXPECT_EQ(form->AddIcon(u"Y"_s, rtBMP, true), 1);
    EXPECT_EQ(form->AddIcon(u"ICO16_TFRMBASE"_s, rtBMP, false), 2);
    EXPECT_EQ(form->AddIcon(u"Z"_s, TIcoType(3), true), 2);
    EXPECT_THROW(form->AddIcon(u"Z"_s, rtBMP, true), EResNotFound);
}

TEST_F(FrmBase, MaximisesWithinTheClientAreaAndTogglesByItsOwnMeasure) {
    TFrmTeste* form = Open();
    form->SetBounds(50, 40, 500, 400);
    form->Perform(WM_SYSCOMMAND, SC_MAXIMIZE);
    EXPECT_TRUE(form->Maximized());
    EXPECT_EQ(form->Height(), Main->ClientHeight() - 100);
    EXPECT_EQ(form->Width(), Main->ClientWidth() - 4);
    EXPECT_LE(form->Height(), Main->ClientArea()->Height());
    form->Perform(WM_SYSCOMMAND, SC_MAXIMIZE_BY_CAPTION);  // one pixel short of counting as maximised
    EXPECT_TRUE(form->Maximized());
    form->SetHeight(Main->ClientHeight() - 99);
    form->Perform(WM_SYSCOMMAND, SC_MAXIMIZE);
    EXPECT_FALSE(form->Maximized());
    EXPECT_EQ(form->Height(),
              Main->ClientHeight() - 100);  // the second command had overwritten what was saved
}

TEST_F(FrmBase, SizingAndMovingLeaveTheMaximisedState) {
    const struct {
        const char* Case;
        int Message;
        intptr_t Command;
        bool Restores;
    } cases[] = {{"size command", WM_SYSCOMMAND, SC_SIZE + 8, false},
                 {"move command", WM_SYSCOMMAND, SC_MOVE + 2, true},
                 {"size or move begins", WM_ENTERSIZEMOVE, 0, true}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Case);
        TFrmTeste* form = Open();
        form->SetBounds(50, 40, 500, 400);
        form->Perform(WM_SYSCOMMAND, SC_MAXIMIZE);
        form->Perform(c.Message, c.Command);
        EXPECT_FALSE(form->Maximized());
        EXPECT_EQ(form->Height() == 400, c.Restores);
        form->Free();
    }
}

TEST_F(FrmBase, MinimisesToTheWindowBar) {
    TFrmTeste* form = Open();
    form->Perform(WM_SYSCOMMAND, SC_MINIMIZE);
    EXPECT_FALSE(form->Showing());
    PostMessage(form, MSG_ATIVA);
    EXPECT_TRUE(Until([&] { return form->Showing(); }));
    EXPECT_EQ(form->WindowState(), wsNormal);
}

TEST_F(FrmBase, RemembersItsGeometry) {
    TFrmTeste* form = Open();
    form->SetBounds(10, 10, 620, 480);
    form->Perform(WM_SYSCOMMAND, SC_MAXIMIZE);
    form->Close();
    EXPECT_TRUE(Until([&] { return Main->OpenForms().empty(); }));
    form = Open();
    EXPECT_TRUE(form->Maximized());
    EXPECT_EQ(form->GetIntWindowProp(u"Width"_s, 0), 620);
    EXPECT_EQ(form->GetIntWindowProp(u"Height"_s, 0), 480);
    form->SetBounds(100, 80, 600, 500);
    EXPECT_EQ(Open(form)->Left(), 0) << "maximised, no longer centred over its opener";
    form->SetFloatWindowProp(u"Zoom"_s, 1.5);
    form->SetStrWindowProp(u"Texto"_s, u"C:\\x;y"_s);
    TFrmTeste* other = Open();
    EXPECT_EQ(other->GetFloatWindowProp(u"Zoom"_s, 0), 1.5);
    EXPECT_EQ(other->GetStrWindowProp(u"Texto"_s, {}), u"C:\\x;y"_s);
    other->ClearProps();
    EXPECT_EQ(form->GetIntWindowProp(u"Width"_s, -1), -1);
}

TEST_F(FrmBase, OpensOverAStateFileThatIsGarbage) {
    const QByteArray contents[] = {
        QByteArray("\0\xFF[\x01=\n]]", 8),
        "[TFrmTeste]\nHeight=abc\nWidth=99999999\nMaximized=", QByteArray(100000, '[')};
    EnsureFolder(Folder.path() + u"/Temp"_s);
    for (const QByteArray& content : contents) {
        SCOPED_TRACE(content.left(20).toStdString());
        WriteWholeFile(StateFile(), content);
        TFrmTeste* form = Open();
        EXPECT_GE(form->Width(), 392);
        EXPECT_LT(form->Width(), 2000);
        form->Free();
    }
}

TEST_F(FrmBase, AStateThatCannotBeWrittenIsReportedOnceAndStopsNothing) {
    SetFileFailure([](const UnicodeString&, TFileOperation operation) {
        return operation == foWrite ? std::optional<int>(ENOSPC) : std::nullopt;
    });
    std::vector<UnicodeString> told;
    Application->OnException = [&](const Exception& e) { told.push_back(e.Message); };
    for (int i = 0; i < 2; ++i) {
        Open()->Close();
        EXPECT_TRUE(Until([&] { return Main->OpenForms().empty(); }));
    }
    Application->OnException = nullptr;
    ASSERT_EQ(told.size(), 1u);
    EXPECT_TRUE(told[0].contains(u"disco"_s)) << told[0].toStdString();
}

TEST_F(FrmBase, EachFormHasAButtonAndAMenuItem) {
    TFrmTeste* first = Open();
    TFrmTeste* second = Open();
    EXPECT_TRUE(Until([&] { return second->FBtn->Down() && !first->FBtn->Down(); }));
    EXPECT_EQ(first->FBtn->Caption(), u"Teste"_s);
    Click(first->FBtn);
    EXPECT_TRUE(Until(
        [&] { return Application->ActiveForm() == first && first->FBtn->Down() && !second->FBtn->Down(); }));
    second->FMenuItem->Click();
    EXPECT_TRUE(Until([&] { return second->Active() && second->FMenuItem->Checked(); }));
    first->Free();
    EXPECT_EQ(Main->OpenForms().size(), 1u);
}

TEST_F(FrmBase, FollowsTheMouseOnItsCaption) {
    TFrmTeste* form = Open();
    form->SetBounds(100, 100, 500, 400);
    Settle();
    Drag(form->Widget(), QPoint(200, 15), QPoint(260, 75));
    EXPECT_EQ(QPoint(form->Left(), form->Top()), QPoint(160, 160));
    Drag(form->Widget(), QPoint(499, 399), QPoint(549, 439));
    EXPECT_EQ(QSize(form->Width(), form->Height()), QSize(550, 440));
}

}  // namespace
