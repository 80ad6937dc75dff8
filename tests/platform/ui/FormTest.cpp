// Birth, showing, closing and death of forms, and modal loops.
#include "platform/ui/Timer.h"
#include "tests/platform/ui/FormFixture.h"

namespace {

class FormTest : public FormFixture {};

TEST_F(FormTest, IsBornInFiveSteps) {
    NewForm<TTestForm>(u"A"_s, fsMDIChild);
    EXPECT_EQ(TakeJournal(), "A.controls A.construct A.create A.resize A.show Main.deactivate A.activate");
    auto* hidden = NewForm<TTestForm>(u"B"_s, fsNormal);
    EXPECT_EQ(TakeJournal(), "B.controls B.construct B.create B.resize");
    EXPECT_FALSE(hidden->Visible());
}

TEST_F(FormTest, FailingStepLeavesNoFormAndNoDestroyEvent) {
    const size_t before = Application->Forms().size();
    for (const char* step : {"controls", "construct", "create", "show"}) {
        SCOPED_TRACE(step);
        TTestForm::Failing = QLatin1String(step);
        EXPECT_THROW(NewForm<TTestForm>(u"A"_s, fsMDIChild), Exception);
        EXPECT_EQ(TakeJournal().find("destroy"), std::string::npos);
        EXPECT_EQ(Application->Forms().size(), before);
    }
}

TEST_F(FormTest, ClosesAsItsHandlersSay) {
    struct TCase {
        const char* Name;
        bool CanClose;
        TCloseAction Action;
        bool Visible;
        bool Alive;
    };
    constexpr TCase kCases[] = {{"refused by the query", false, caFree, true, true},
                                {"none", true, caNone, true, true},
                                {"hidden", true, caHide, false, true},
                                {"freed", true, caFree, false, false}};
    for (const TCase& expected : kCases) {
        SCOPED_TRACE(expected.Name);
        TTestForm* form = NewChild(u"A"_s);
        const QPointer<QWidget> alive = form->Widget();
        form->OnCloseQuery = [&](TComponent*, bool& canClose) { canClose = expected.CanClose; };
        form->OnClose = [&](TComponent*, TCloseAction& action) { action = expected.Action; };
        form->Close();
        EXPECT_EQ(form->Visible(), expected.Visible);
        Settle();
        EXPECT_EQ(!alive.isNull(), expected.Alive);
        if (alive) form->Free();
    }
}

// The handler goes on after an inner loop has met the release.
TEST_F(FormTest, LivesWhileItsHandlersRun) {
    TTestForm* form = NewChild(u"A"_s);
    const QPointer<QWidget> alive = form->Widget();
    auto* button = NewControl<TButton>(form, form, u"Btn"_s, QRect(8, 8, 80, 25));
    bool aliveInside = false;
    form->OnClose = [](TComponent*, TCloseAction& action) { action = caFree; };
    button->OnClick = [&](TComponent*) {
        form->Close();
        Settle();
        aliveInside = !alive.isNull();
    };
    TakeJournal();
    Click(button);
    EXPECT_TRUE(aliveInside);
    EXPECT_TRUE(Until([&] { return alive.isNull(); }));
    EXPECT_EQ(TakeJournal(), "A.hide A.deactivate Main.activate A.destroy");
}

TEST_F(FormTest, PostedMessageDiesWithItsForm) {
    TTestForm* form = NewChild(u"A"_s);
    PostMessage(form, WM_SYSCOMMAND, SC_CLOSE);
    PostMessage(nullptr, WM_USER);
    EXPECT_TRUE(form->Commands.empty());
    form->Free();
    TTestForm* other = NewChild(u"B"_s);
    PostMessage(other, WM_SYSCOMMAND, SC_MOVE);
    Settle();
    EXPECT_EQ(other->Commands, std::vector<int>{SC_MOVE});
}

TEST_F(FormTest, OwnersAndParentsMayDieInEitherOrder) {
    auto* owner = new TComponent(nullptr);
    TTestForm* form = NewChild(u"A"_s);
    auto* panel = NewControl<TPanel>(form, form, u"Pn"_s);
    auto* ownedElsewhere = NewControl<TEdit>(owner, panel, u"E1"_s);
    const QPointer<QWidget> edit = ownedElsewhere->Widget();
    panel->Free();
    EXPECT_TRUE(edit.isNull());
    EXPECT_EQ(owner->ComponentCount(), 0);

    const QPointer<QWidget> inForm = NewControl<TEdit>(owner, form, u"E2"_s)->Widget();
    owner->Free();
    EXPECT_TRUE(inForm.isNull());
    EXPECT_TRUE(form->Controls().empty());
    NewControl<TEdit>(form, NewControl<TPanel>(form, form, u"Pn"_s), u"E3"_s);
    form->Free();
}

TEST_F(FormTest, MainFormAsksNewestFirstAndFreesInThatOrder) {
    for (const UnicodeString& name : {u"A"_s, u"B"_s, u"C"_s}) {
        TTestForm* form = NewChild(name);
        form->OnCloseQuery = [name](TComponent*, bool& canClose) {
            Note(name + u'?');
            canClose = name != u"B" || !Application->Forms().front()->KeyPreview();
        };
    }
    TakeJournal();
    Main->SetKeyPreview(true);
    Main->Close();
    EXPECT_EQ(TakeJournal(), "C? B?");
    EXPECT_FALSE(Application->Terminated());
    Main->SetKeyPreview(false);
    for (TForm* form : Application->Forms()) form->OnActivate = form->OnDeactivate = form->OnHide = nullptr;
    Main->Free();
    EXPECT_EQ(TakeJournal(), "C.destroy B.destroy A.destroy Main.destroy");
}

class ModalTest : public FormFixture {
  protected:
    TTestForm* NewDialog() { return NewForm<TTestForm>(u"D"_s, fsNormal); }
};

TEST_F(ModalTest, AnswersWithItsResult) {
    struct TCase {
        const char* Name;
        void (*Act)(TForm*);
        int Result;
    };
    const TCase kCases[] = {
        {"result set", [](TForm* form) { form->SetModalResult(6); }, 6},
        {"closed without one", [](TForm* form) { form->Close(); }, IDCANCEL},
        {"set, then closed",
         [](TForm* form) {
             form->SetModalResult(1);
             form->Close();
         },
         1},
        {"hidden",
         [](TForm* form) {
             form->Hide();
             form->SetModalResult(7);
         },
         7},
        {"closed by the window", [](TForm* form) { form->Widget()->window()->close(); }, IDCANCEL}};
    for (const TCase& expected : kCases) {
        SCOPED_TRACE(expected.Name);
        TTestForm* child = NewChild(u"A"_s);
        TTestForm* dialog = NewDialog();
        ExpectModal(expected.Act);
        EXPECT_EQ(dialog->ShowModal(), expected.Result);
        EXPECT_FALSE(dialog->Visible());
        EXPECT_TRUE(child->Active());
        dialog->Free();
        child->Free();
    }
}

TEST_F(ModalTest, RefusedCloseGoesOn) {
    TTestForm* dialog = NewDialog();
    int asked = 0;
    dialog->OnCloseQuery = [&](TComponent*, bool& canClose) {
        canClose = ++asked == 2;
        if (!canClose) PostMessage(dialog, WM_SYSCOMMAND, SC_CLOSE);
    };
    ExpectModal([](TForm* form) { form->SetModalResult(1); });
    EXPECT_EQ(dialog->ShowModal(), IDCANCEL);
    EXPECT_EQ(asked, 2);
    dialog->Free();
}

TEST_F(ModalTest, FreedOneCanBeReadUntilTheHandlerReturns) {
    auto* button = NewControl<TButton>(Main, Main, u"Btn"_s, QRect(8, 8, 80, 25));
    QPointer<QWidget> alive;
    int result = 0;
    button->OnClick = [&](TComponent*) {
        TTestForm* dialog = NewDialog();
        alive = dialog->Widget();
        dialog->OnClose = [](TComponent*, TCloseAction& action) { action = caFree; };
        ExpectModal([](TForm* form) { form->SetModalResult(3); });
        result = dialog->ShowModal();
        Settle();
        EXPECT_FALSE(alive.isNull());
        result += dialog->ModalResult();
    };
    Click(button);
    EXPECT_EQ(result, 6);
    EXPECT_TRUE(Until([&] { return alive.isNull(); }));
}

TEST_F(ModalTest, NeedsAHiddenEnabledFormOfItsOwn) {
    TTestForm* dialog = NewDialog();
    dialog->SetEnabled(false);
    EXPECT_THROW(dialog->ShowModal(), EInvalidOperation);
    dialog->SetEnabled(true);
    dialog->Show();
    EXPECT_THROW(dialog->ShowModal(), EInvalidOperation);
    EXPECT_THROW(NewChild(u"A"_s)->ShowModal(), EInvalidOperation);
}

}  // namespace
