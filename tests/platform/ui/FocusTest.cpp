// Active forms and controls, and the way of exceptions through the toolkit.
#include <QMenu>
#include <QTest>
#include "tests/platform/ui/FormFixture.h"

namespace {

class FocusTest : public FormFixture {
  protected:
    void SetUp() override {
        FormFixture::SetUp();
        Form = NewChild(u"A"_s);
        First = Form->NewEdit(u"E1"_s);
        Second = Form->NewEdit(u"E2"_s, 100);
        First->SetFocus();
        Settle();
        TakeJournal();
    }

    TTestForm* Form = nullptr;
    TEdit* First = nullptr;
    TEdit* Second = nullptr;
};

TEST_F(FocusTest, EnterAndExitFollowTheActiveControl) {
    Second->SetFocus();
    EXPECT_EQ(TakeJournal(), "E1.exit E2.enter");
    ClickAt(First->Widget(), QPoint(4, 4));
    EXPECT_EQ(TakeJournal(), "E2.exit E1.enter");
    EXPECT_TRUE(First->Focused());
    First->SetFocus();
    EXPECT_EQ(TakeJournal(), "");
}

TEST_F(FocusTest, PopupsBoxesAndOtherWindowsChangeNothing) {
    auto* combo = NewControl<TComboBox>(Form, Form, u"C"_s, QRect(8, 60, 90, 25));
    combo->Items()->SetText(u"um\ndois");
    combo->SetFocus();
    TakeJournal();
    combo->SetDroppedDown(true);
    Settle();
    EXPECT_TRUE(combo->DroppedDown());
    EXPECT_EQ(Form->ActiveControl(), combo);
    combo->SetDroppedDown(false);
    QMenu menu;
    menu.addAction(u"Item"_s);
    menu.popup(QPoint(10, 10));
    Settle();
    EXPECT_TRUE(combo->Focused());
    menu.close();
    QLineEdit stranger;
    stranger.show();
    stranger.activateWindow();
    Settle();
    EXPECT_TRUE(combo->Focused());
    EXPECT_EQ(TakeJournal(), "");
}

TEST_F(FocusTest, EachFormRemembersItsControl) {
    Second->SetFocus();
    TTestForm* other = NewChild(u"B"_s);
    TEdit* edit = other->NewEdit(u"E3"_s);
    edit->SetFocus();
    EXPECT_EQ(TakeJournal(),
              "E1.exit E2.enter B.controls B.construct B.create B.resize B.show A.deactivate B.activate "
              "B.resize E3.enter");
    Form->Show();
    EXPECT_EQ(TakeJournal(), "B.deactivate A.activate");
    EXPECT_TRUE(Second->Focused());
    EXPECT_EQ(other->ActiveControl(), edit);
    Form->Hide();
    EXPECT_TRUE(edit->Focused());
}

TEST_F(FocusTest, RefusedExitKeepsTheControlAndStopsTheAction) {
    First->OnExit = [](TComponent*) { throw Exception(u"valor inválido"_s); };
    EXPECT_THROW(Second->SetFocus(), Exception);
    EXPECT_TRUE(First->Focused());
    EXPECT_TRUE(First->Widget()->hasFocus());

    auto* button = NewControl<TButton>(Form, Form, u"Btn"_s, QRect(8, 60, 80, 25));
    button->OnClick = [](TComponent*) { ADD_FAILURE() << "the press went on"; };
    ExpectBox(u"valor inválido"_s, u"Erro"_s, MB_OK | MB_ICONERROR);
    Click(button);
    EXPECT_TRUE(First->Focused());
    First->OnExit = nullptr;
}

TEST_F(FocusTest, AHandlerMayMoveTheFocusOn) {
    TEdit* third = Form->NewEdit(u"E3"_s, 200);
    First->OnExit = [&](TComponent*) { third->SetFocus(); };
    Second->SetFocus();
    EXPECT_TRUE(third->Focused());
    EXPECT_EQ(TakeJournal(), "E3.enter");
    First->OnExit = nullptr;
    Second->OnEnter = [&](TComponent*) { First->SetFocus(); };
    Second->SetFocus();
    EXPECT_TRUE(First->Focused());
}

TEST_F(FocusTest, TabGoesRoundInsideTheForm) {
    TTestForm* other = NewChild(u"B"_s);
    other->NewEdit(u"X"_s);
    Form->Show();
    TEdit* skipped = Form->NewEdit(u"E3"_s, 190);
    skipped->SetTabStop(false);
    auto* panel = NewControl<TPanel>(Form, Form, u"Pn"_s, QRect(0, 60, 200, 80));
    auto* inner = NewControl<TEdit>(Form, panel, u"E4"_s, QRect(0, 0, 50, 25));
    NewControl<TEdit>(Form, panel, u"E5"_s, QRect(60, 0, 50, 25))->SetVisible(false);
    const std::vector<TControl*> order = {Second, inner, First};
    for (TControl* expected : order) {
        Press(VK_TAB);
        EXPECT_EQ(Form->ActiveControl(), expected);
    }
    Press(VK_TAB, ssShift);
    EXPECT_EQ(Form->ActiveControl(), inner);
    First->SetTabOrder(1);
    inner->SetFocus();
    Form->DoTabKey(true);
    EXPECT_EQ(Form->ActiveControl(), Second);
}

TEST_F(FocusTest, FormTakesTheFocusWhenNoControlCan) {
    First->SetVisible(false);
    Second->SetEnabled(false);
    EXPECT_FALSE(First->CanFocus() || Second->CanFocus());
    EXPECT_THROW(Second->SetFocus(), EInvalidOperation);
    TTestForm* empty = NewChild(u"B"_s);
    EXPECT_TRUE(empty->Focused());
    int keys = 0;
    empty->OnKeyDown = [&](TComponent*, int& key, TShiftState) { keys += key == VK_F3; };
    Press(VK_F3);
    EXPECT_EQ(keys, 1);
}

TEST_F(FocusTest, ActiveControlThatDiesIsForgotten) {
    First->Free();
    EXPECT_NE(Form->ActiveControl(), static_cast<TControl*>(First));
    Second->SetFocus();
    EXPECT_TRUE(Second->Focused());
}

TEST(GuardTest, ExceptionsGoToTheNearestCallOfOurs) {
    std::string shown;
    Application->OnException = [&](const Exception& e) { shown = e.what(); };
    const auto failing = [] { CalledByQt([] { throw Exception(u"dentro"_s); }); };
    EXPECT_NO_THROW(failing());
    EXPECT_EQ(std::exchange(shown, {}), "dentro");
    EXPECT_THROW(CallQt(failing), Exception);
    EXPECT_NO_THROW(CallQt([&] { RunLoop(failing); }));
    EXPECT_EQ(std::exchange(shown, {}), "dentro");
    EXPECT_NO_THROW(CalledByQt([] { Abort(); }));
    EXPECT_EQ(shown, "");
    Application->OnException = nullptr;
}

}  // namespace
