// Date picker, pages and tab strip under real mouse and key events.
#include <gtest/gtest.h>
#include <QTest>
#include "platform/ui/Application.h"
#include "platform/ui/ComCtrls.h"
#include "platform/ui/Form.h"
#include "platform/ui/StdCtrls.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class ComCtrlsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        Form = NewForm<TForm>(Application);
        Form->Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(Form->Widget()->window()));
    }
    void TearDown() override { Form->Free(); }
    void Type(const char* keys) {
        for (; *keys; ++keys) QTest::keyClick(Form->Widget()->window()->windowHandle(), *keys);
    }

    TForm* Form = nullptr;
};

}  // namespace

TEST_F(ComCtrlsTest, PickerFiresOnWholeValidDatesOnly) {
    const struct {
        const char* Keys;
        int Fired;
        TDateParts Date;
    } cases[] = {
        {"3", 0, {2024, 1, 15}},         {"31", 1, {2024, 1, 31}},      {"07/03", 2, {2024, 3, 7}},
        {"07/03/2025", 3, {2025, 3, 7}}, {"07032025", 3, {2025, 3, 7}}, {"15/01/20", 0, {2024, 1, 15}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.Keys);
        auto* picker = NewControl<TDateTimePicker>(Form, Form, u"Dp"_s, QRect(0, 0, 110, 25));
        int fired = 0;
        picker->OnChange = [&](TComponent*) { ++fired; };
        picker->SetDate(EncodeDate(2024, 1, 15) + 0.75);
        EXPECT_EQ(fired, 0);
        picker->SetFocus();
        picker->setSelectedSection(QDateEdit::DaySection);
        Type(each.Keys);
        EXPECT_EQ(fired, each.Fired);
        EXPECT_EQ(DecodeDate(picker->Date()), each.Date);
        EXPECT_EQ(picker->Date(), DateOf(picker->Date()));
        picker->Free();
    }
}

TEST_F(ComCtrlsTest, PagesKeepTheirOrderAndFindTheirControls) {
    auto* pages = NewControl<TPageControl>(Form, Form, u"Pages"_s, QRect(0, 0, 200, 100));
    TTabSheet* sheets[3];
    for (TTabSheet*& sheet : sheets) {
        sheet = new TTabSheet(Form);
        sheet->SetPageControl(pages);
    }
    auto* panel = NewControl<TPanel>(Form, sheets[1], u"Panel"_s, QRect(0, 0, 100, 50));
    auto* edit = NewControl<TEdit>(Form, panel, u"Edit"_s, QRect(0, 0, 50, 25));
    EXPECT_EQ(pages->PageOf(edit), sheets[1]);
    EXPECT_EQ(pages->PageOf(pages), nullptr);
    EXPECT_FALSE(edit->CanFocus());
    int changes = 0;
    pages->OnChange = [&](TComponent*) { ++changes; };
    pages->SetActivePage(sheets[1]);
    pages->SetActivePageIndex(7);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(pages->ActivePage(), sheets[1]);
    EXPECT_TRUE(edit->CanFocus());
    EXPECT_TRUE(pages->CanFocus());
    sheets[1]->SetEnabled(false);
    EXPECT_FALSE(edit->CanFocus());
    sheets[0]->Free();
    EXPECT_EQ(sheets[2]->PageIndex(), 1);
    EXPECT_EQ(pages->ActivePage(), sheets[1]);
}

TEST_F(ComCtrlsTest, TabStripTurnsRoundAndTellsOfEveryChange) {
    auto* tabs = NewControl<TIceTabSet>(Form, Form, u"Tabs"_s, QRect(0, 0, 300, 26));
    auto* edit = NewControl<TEdit>(Form, Form, u"Edit"_s, QRect(0, 40, 50, 25));
    edit->SetFocus();
    UnicodeString told;
    tabs->OnTabSelected = [&](TIceTabSet*, TIceTab* tab) {
        told += tab->Caption() + QString::number(tab->Tag());
    };
    tabs->SelectNext(true);
    tabs->Add(u"A"_s, 0);
    tabs->Add(u"B"_s, 2);
    tabs->Add(u"C"_s, 5);
    EXPECT_EQ(tabs->TabIndex(), 0);
    EXPECT_EQ(told, u""_s);
    tabs->SelectNext(false);
    tabs->SelectNext(true);
    tabs->SetTabIndex(0);
    tabs->SetTabIndex(9);
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
    EXPECT_EQ(told, u"C5A0B2"_s);
    EXPECT_TRUE(edit->hasFocus());
    tabs->Clear();
    EXPECT_EQ(tabs->TabCount(), 0);
    EXPECT_EQ(told, u"C5A0B2"_s);
}
