// Menus and tool bars under real mouse and key events.
#include <gtest/gtest.h>
#include <QTest>
#include "platform/ui/Application.h"
#include "platform/ui/Form.h"
#include "platform/ui/ImageList.h"
#include "platform/ui/Menus.h"
#include "platform/ui/StdCtrls.h"
#include "platform/ui/ToolBar.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class TMenuForm : public TForm {
  public:
    explicit TMenuForm(TComponent* owner) : TForm(owner) {}

    TMainMenu* MainMenu = nullptr;
    TToolBar* MenuBar = nullptr;
    TToolBar* Bar = nullptr;
    TEdit* Edit = nullptr;
    TMenuItem *File = nullptr, *Exit = nullptr, *Portrait = nullptr, *Landscape = nullptr, *Help = nullptr;
    UnicodeString Clicked;

    TToolButton* AddButton(const UnicodeString& name) {
        auto* button = NewControl<TToolButton>(this, Bar, name);
        button->SetCaption(name);
        button->OnClick = [this](TComponent* sender) { Clicked += sender->Name(); };
        return button;
    }
    UnicodeString Order() const {
        UnicodeString names;
        for (int i = 0; i < Bar->ButtonCount(); ++i) names += Bar->Buttons(i)->Name();
        return names;
    }

  protected:
    void CreateControls() override {
        MainMenu = new TMainMenu(this);
        File = MainMenu->Items()->AddNew(u"&Arquivo"_s);
        const auto pick = [this](TComponent* sender) { static_cast<TMenuItem*>(sender)->SetChecked(true); };
        Portrait = File->AddNew(u"Retrato"_s, pick);
        Landscape = File->AddNew(u"Paisagem"_s, pick);
        File->AddNew(u"-"_s);
        Exit = File->AddNew(u"&Sair..."_s, [this](TComponent*) { Clicked += u"Sair"_s; });
        Exit->SetShortCut(ShortCut(VK_F4, ssCtrl));
        Help = MainMenu->Items()->AddNew(u"A&juda"_s, [this](TComponent*) { Clicked += u"Ajuda"_s; });
        for (TMenuItem* item : {Portrait, Landscape}) item->SetRadioItem(true);
        Portrait->SetChecked(true);
        MenuBar = NewControl<TToolBar>(this, this, u"TBMenu"_s, QRect(0, 0, 300, 25));
        MenuBar->SetMenu(MainMenu);
        Bar = NewControl<TToolBar>(this, this, u"TBButtons"_s, QRect(0, 25, 300, 50));
        Edit = NewControl<TEdit>(this, this, u"Edit"_s, QRect(0, 90, 100, 25));
    }
};

class MenusTest : public ::testing::Test {
  protected:
    void SetUp() override {
        Form = NewForm<TMenuForm>(Application);
        Form->Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(Form->Widget()->window()));
        Form->Edit->SetFocus();
    }
    void TearDown() override { Form->Free(); }
    QWindow* Window() const { return Form->Widget()->window()->windowHandle(); }

    TMenuForm* Form = nullptr;
};

}  // namespace

TEST_F(MenusTest, ShortCutRunsItemsThatCanRun) {
    EXPECT_EQ(ShortCut(VK_F4, ssCtrl), 16499);
    EXPECT_EQ(ShortCutToText(ShortCut(VK_F4, ssCtrl | ssShift)), u"Ctrl+Shift+F4"_s);
    const struct {
        const char* Name;
        std::function<void()> Change;
        UnicodeString Clicked;
    } cases[] = {
        {"plain", [] {}, u"Sair"_s},
        {"bar hidden", [this] { Form->MenuBar->SetMenu(nullptr); }, u"Sair"_s},
        {"disabled item", [this] { Form->Exit->SetEnabled(false); }, u""_s},
        {"hidden submenu", [this] { Form->Exit->SetEnabled(true), Form->File->SetVisible(false); }, u""_s},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.Name);
        each.Change();
        Form->Clicked.clear();
        QTest::keyClick(Window(), Qt::Key_F4, Qt::ControlModifier);
        EXPECT_EQ(Form->Clicked, each.Clicked);
    }
}

TEST_F(MenusTest, MnemonicsAndF10OpenTheBarAndLeaveTheFocus) {
    for (const auto& [key, modifiers] : {std::pair{Qt::Key_A, Qt::KeyboardModifiers(Qt::AltModifier)},
                                         std::pair{Qt::Key_F10, Qt::KeyboardModifiers()}}) {
        QTest::keyClick(Window(), key, modifiers);
        ASSERT_EQ(QApplication::activePopupWidget(), Form->File->SubMenu());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        EXPECT_TRUE(Form->Edit->Focused());
        EXPECT_TRUE(Form->Edit->hasFocus());
    }
    QTest::keyClick(Window(), Qt::Key_J, Qt::AltModifier);
    EXPECT_EQ(Form->Clicked, u"Ajuda"_s);
}

TEST_F(MenusTest, RadioItemsCheckOneAndClicksLeaveChecksToTheProgram) {
    Form->Landscape->Action()->trigger();
    EXPECT_TRUE(Form->Landscape->Checked());
    EXPECT_FALSE(Form->Portrait->Checked());
    EXPECT_FALSE(Form->Portrait->Action()->isChecked());
    EXPECT_TRUE(Form->Portrait->Action()->actionGroup()) << "drawn with a round mark";
    Form->Portrait->OnClick = nullptr;
    Form->Portrait->Action()->trigger();
    EXPECT_FALSE(Form->Portrait->Action()->isChecked());
}

TEST_F(MenusTest, HiddenAndFreedItemsLeaveTheBar) {
    QMenuBar* bar = Form->MainMenu->Bar();
    EXPECT_EQ(bar->actions().size(), 2);
    EXPECT_FALSE(bar->actionGeometry(Form->File->Action()).isEmpty());
    Form->File->SetVisible(false);
    EXPECT_TRUE(bar->actionGeometry(Form->File->Action()).isEmpty());
    Form->Help->Free();
    EXPECT_EQ(bar->actions().size(), 1);
    Form->MainMenu->Free();
    EXPECT_EQ(Form->MenuBar->Menu(), nullptr);
}

TEST_F(MenusTest, ButtonsStandInTheOrderOfTheirLefts) {
    TToolButton* a = Form->AddButton(u"A"_s);
    TToolButton* b = Form->AddButton(u"B"_s);
    auto* c = new TToolButton(Form);
    c->SetName(u"C"_s);
    c->SetLeft(b->Left() + Form->Bar->ButtonWidth());
    c->SetParent(Form->Bar);
    EXPECT_EQ(Form->Order(), u"ABC"_s);
    EXPECT_EQ(b->Left(), a->Width());
    c->SetLeft(a->Left());
    EXPECT_EQ(Form->Order(), u"CAB"_s);
    a->SetVisible(false);
    EXPECT_EQ(b->Left(), c->Width());
    c->Free();
    EXPECT_EQ(Form->Order(), u"AB"_s);
    EXPECT_EQ(b->Left(), 0);
}

TEST_F(MenusTest, ButtonsGrowToIconAboveCaptionAndNeverTakeTheFocus) {
    auto* images = new TImageList(Form, 24, 24);
    QPixmap picture(24, 24);
    picture.fill(Qt::red);
    images->Add(QIcon(picture));
    Form->Bar->SetButtonWidth(57);
    Form->Bar->SetButtonHeight(21);
    TToolButton* button = Form->AddButton(u"Novo"_s);
    EXPECT_EQ(button->Height(), 21);
    button->SetImageIndex(0);
    Form->Bar->SetImages(images);
    EXPECT_EQ(button->Width(), 57);
    EXPECT_GE(button->Height(), 24 + button->fontMetrics().height());
    QTest::mouseClick(button, Qt::LeftButton);
    button->SetEnabled(false);
    QTest::mouseClick(button, Qt::LeftButton);
    button->Click();
    EXPECT_EQ(Form->Clicked, u"Novo"_s);
    EXPECT_TRUE(Form->Edit->hasFocus());
    images->Free();
    EXPECT_EQ(Form->Bar->Images(), nullptr);
}

TEST_F(MenusTest, ASeparatorIsALineWithoutText) {
    TMainMenu* menu = new TMainMenu(Form);
    const TMenuItem* line = menu->Items()->AddNew(u"-"_s);
    EXPECT_TRUE(line->Action()->isSeparator() && line->Action()->text().isEmpty());
    EXPECT_EQ(line->Caption(), u"-");
}
