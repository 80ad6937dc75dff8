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

TEST_F(FocusTest, IsWhereTheTableSays) {
    Run(UI_TESTS "/tables/foco.txt",
        {{u"Hears"_s, Does([](const QStringList& a) {
              dynamic_cast<TForm*>(Named(a[0]))->OnKeyDown = [](TComponent*, int& key, TShiftState) {
                  Note(u"F%1"_s.arg(key));
              };
          })},
         {u"Tab"_s, Does([this](const QStringList&) { Form->DoTabKey(true); })}});
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
