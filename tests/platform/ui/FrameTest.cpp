// A form's frame in the client area: measures, commands, dragging, states, the shield.
#include <QMouseEvent>
#include <QTest>
#include <QWindow>
#include "platform/ui/CaptionBar.h"
#include "platform/ui/FormParts.h"
#include "tests/platform/ui/FormFixture.h"

namespace {

class FrameTest : public FormFixture {
  protected:
    void SetUp() override {
        FormFixture::SetUp();
        Form = NewChild(u"A"_s);
        Settle();
    }

    TCaptionBar* Bar() const { return dynamic_cast<TCaptionBar*>(Form->Widget()->childAt(40, 10)); }
    void ClickButton(int command) { ClickAt(Bar(), Bar()->ButtonRect(command).center()); }

    TTestForm* Form = nullptr;
};

TEST_F(FrameTest, SizesAreTheFramesAndLimitsHold) {
    EXPECT_EQ(Form->ClientWidth(), 300 - 2 * TForm::FrameWidth());
    EXPECT_EQ(Form->ClientHeight(), 200 - TForm::CaptionHeight() - TForm::FrameWidth());
    Form->SetClientWidth(400);
    EXPECT_EQ(Form->Width(), 408);
    Form->SetMinWidth(500);
    EXPECT_EQ(Form->Width(), 500);
    Form->SetWidth(100);
    EXPECT_EQ(Form->Width(), 500);
    EXPECT_EQ(Form->ClientWidth(), 492);
    Form->SetMinWidth(0);
    Form->SetMaxHeight(150);
    Form->SetHeight(400);
    EXPECT_EQ(Form->Height(), 150);
}

TEST_F(FrameTest, ADialogsWindowHasOneSize) {
    auto* dialog = NewForm<TTestForm>(u"D"_s, fsNormal);
    dialog->SetBorderStyle(bsDialog);
    dialog->SetClientWidth(410);
    dialog->SetMinHeight(260);
    for (const QSize& limit : {dialog->minimumSize(), dialog->maximumSize()})
        EXPECT_EQ(limit, QSize(410, 260));
    dialog->SetBorderStyle(bsSizeable);
    EXPECT_EQ(dialog->maximumWidth(), QWIDGETSIZE_MAX);
}

TEST_F(FrameTest, CentresOverItsOwner) {
    class TOver : public TTestForm {
      public:
        TOver(TForm* owner) : TTestForm(u"B"_s, fsMDIChild, owner) { SetPosition(poOwnerFormCenter); }
        void CreateControls() override { SetBounds(0, 0, 101, 99); }
    };
    auto* over = NewForm<TOver>(Form);
    EXPECT_EQ(over->Left(), 20 + 300 / 2 - over->Width() / 2);
    EXPECT_EQ(over->Top(), 20 + 200 / 2 - over->Height() / 2);
}

TEST_F(FrameTest, CaptionSendsCommands) {
    TForm* other = NewChild(u"B"_s);
    other->SetBounds(400, 20, 200, 200);
    Form->Show();
    ClickButton(SC_MINIMIZE);
    EXPECT_EQ(Form->WindowState(), wsMinimized);
    ClickButton(SC_MINIMIZE);
    ClickButton(SC_MAXIMIZE);
    EXPECT_EQ(Form->Bounds(), QRect(QPoint(), Main->ClientArea()->Widget()->size()));
    ClickButton(SC_MAXIMIZE);
    EXPECT_EQ(Form->Bounds(), QRect(20, 20, 300, 200));
    QTest::mouseDClick(Bar()->window()->windowHandle(), Qt::LeftButton, {},
                       Bar()->mapTo(Bar()->window(), QPoint(60, 10)));
    Settle();
    ClickButton(SC_CLOSE);
    EXPECT_FALSE(Form->Visible());
    EXPECT_EQ(Form->Commands, (std::vector<int>{SC_MINIMIZE, SC_RESTORE, SC_MAXIMIZE, SC_RESTORE,
                                                SC_MAXIMIZE_BY_CAPTION, SC_CLOSE}));
}

TEST_F(FrameTest, BorderIconsSayWhichButtonsThereAre) {
    const auto buttons = [this] {
        int count = 0;
        for (const int command : {SC_MINIMIZE, SC_MAXIMIZE, SC_CLOSE})
            count += Bar()->ButtonRect(command).isValid();
        return count;
    };
    EXPECT_EQ(buttons(), 3);
    Form->SetBorderIcons(biSystemMenu | biMinimize);
    EXPECT_EQ(buttons(), 2);
    Form->SetBorderIcons(0);
    EXPECT_EQ(buttons(), 0);
    Form->SetBorderIcons(biSystemMenu | biMinimize | biMaximize);
    Form->SetBorderStyle(bsToolWindow);
    EXPECT_EQ(buttons(), 1);
    EXPECT_EQ(Form->ClientWidth(), 300 - 2 * TForm::FrameWidth());
}

TEST_F(FrameTest, MovesWhenTheDragBeginsNotOnThePress) {
    ClickAt(Bar(), QPoint(60, 14));
    EXPECT_TRUE(Form->Commands.empty());
    Drag(Bar(), QPoint(60, 14), QPoint(110, 44));
    EXPECT_EQ(Form->Commands, (std::vector<int>{SC_MOVE + 2, WM_ENTERSIZEMOVE}));
    EXPECT_EQ(Form->Bounds().topLeft(), QPoint(70, 50));
    Drag(Bar(), QPoint(60, 14), QPoint(60, -40));
    EXPECT_EQ(Form->Top(), 0);
}

TEST_F(FrameTest, BordersSizeWithinTheLimits) {
    Form->SetMinWidth(250);
    struct TCase {
        const char* Name;
        QPoint From, By;
        int Code;
        QRect Place;
    };
    const TCase kCases[] = {{"right", {299, 100}, {50, 30}, 2, {20, 20, 350, 200}},
                            {"left", {0, 100}, {500, 0}, 1, {70, 20, 250, 200}},
                            {"bottom right", {298, 198}, {20, 10}, 8, {20, 20, 320, 210}},
                            {"top", {150, 1}, {0, -10}, 3, {20, 10, 300, 210}}};
    for (const TCase& drag : kCases) {
        SCOPED_TRACE(drag.Name);
        Form->SetBounds(20, 20, 300, 200);
        Form->Commands.clear();
        Drag(Form->Widget(), drag.From, drag.From + drag.By);
        EXPECT_EQ(Form->Commands, (std::vector<int>{SC_SIZE + drag.Code, WM_ENTERSIZEMOVE}));
        EXPECT_EQ(Form->Bounds(), drag.Place);
    }
    Form->SetBorderStyle(bsDialog);
    Drag(Form->Widget(), QPoint(299, 100), QPoint(340, 100));
    EXPECT_EQ(Form->Width(), 300);
}

TEST_F(FrameTest, MinimisedFormsLieSideBySide) {
    TTestForm* other = NewChild(u"B"_s);
    Form->Perform(WM_SYSCOMMAND, SC_MINIMIZE);
    other->Perform(WM_SYSCOMMAND, SC_MINIMIZE);
    EXPECT_FALSE(Form->Bounds().intersects(other->Bounds()));
    Form->Perform(WM_SYSCOMMAND, SC_RESTORE);
    EXPECT_EQ(Form->Bounds(), QRect(20, 20, 300, 200));
}

TEST_F(FrameTest, StaysReachableWhenTheMainFormShrinks) {
    Form->SetBounds(600, 400, 150, 150);
    Main->SetBounds(0, 0, 300, 250);
    Settle();
    EXPECT_LT(Form->Left(), 300);
    EXPECT_LT(Form->Top(), 250);
    EXPECT_EQ(Form->Width(), 150);
}

TEST_F(FrameTest, DisabledFormKeepsItsLookAndHearsNothing) {
    TEdit* edit = Form->NewEdit(u"E"_s);
    Form->NewEdit(u"E2"_s, 100)->SetText(u"texto"_s);
    edit->SetFocus();
    Settle();
    const QRect unfocused(100, 30, 190, 160);
    const QImage before = Form->Widget()->grab(unfocused).toImage();
    int clicks = 0;
    edit->OnClick = [&](TComponent*) { ADD_FAILURE() << "clicked through the shield"; };
    Form->OnShieldClick = [&](TComponent*) { ++clicks; };
    Form->SetEnabled(false);
    Press('A');
    ClickAt(edit->Widget(), QPoint(5, 5));
    Drag(Form->Widget(), QPoint(60, 14), QPoint(90, 60));
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(edit->Text(), u""_s);
    EXPECT_TRUE(edit->Enabled() && edit->Widget()->isEnabled());
    EXPECT_FALSE(edit->CanFocus());
    EXPECT_EQ(Form->Bounds().topLeft(), QPoint(20, 20));
    EXPECT_EQ(Form->Widget()->grab(unfocused).toImage(), before);
    Form->SetEnabled(true);
    Press('A');
    EXPECT_EQ(edit->Text(), u"a"_s);
}

TEST_F(FrameTest, ClickBringsAFormForward) {
    TTestForm* front = NewChild(u"B"_s);
    front->SetBounds(100, 100, 300, 200);
    EXPECT_TRUE(front->Active());
    ClickAt(Form->Client()->Widget(), QPoint(5, 30));
    EXPECT_TRUE(Form->Active());
    EXPECT_EQ(Form->Widget()->parentWidget()->children().back(), Form->Widget());
    front->Close();
    EXPECT_TRUE(Form->Active());
    Form->Close();
    EXPECT_TRUE(Main->Active());
}

TEST(ClientAreaTest, ReachablePlaces) {
    const QSize area(400, 300);
    EXPECT_EQ(TClientArea::Reachable({10, 20, 100, 100}, area), QPoint(10, 20));
    EXPECT_EQ(TClientArea::Reachable({-500, -20, 200, 100}, area), QPoint(-120, 0));
    EXPECT_EQ(TClientArea::Reachable({900, 900, 200, 100}, area), QPoint(320, 272));
}

}  // namespace
