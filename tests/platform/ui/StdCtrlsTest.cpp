// The standard controls, and the layout of aligned and anchored ones.
#include "platform/ui/Layout.h"
#include "tests/platform/ui/FormFixture.h"

namespace {

class StdCtrlsTest : public FormFixture {
  protected:
    void SetUp() override {
        FormFixture::SetUp();
        Form = NewChild(u"A"_s);
        Form->SetClientWidth(300);
        Form->SetClientHeight(200);
    }

    template <class T>
    T* Make(const QRect& place = {8, 8, 90, 25}) {
        return NewControl<T>(Form, Form, u"X"_s, place);
    }

    TTestForm* Form = nullptr;
};

TEST_F(StdCtrlsTest, AlignedControlsFillInOrder) {
    const TAlign kAligns[] = {alClient, alLeft, alTop, alBottom, alRight, alTop};
    std::vector<TPanel*> panels;
    for (const TAlign align : kAligns) {
        panels.push_back(Make<TPanel>(QRect(0, 0, 30, 20)));
        panels.back()->SetAlign(align);
    }
    const QRect kPlaces[] = {{30, 40, 240, 140}, {0, 40, 30, 140},   {0, 0, 300, 20},
                             {0, 180, 300, 20},  {270, 40, 30, 140}, {0, 20, 300, 20}};
    for (size_t i = 0; i < panels.size(); ++i) EXPECT_EQ(panels[i]->Bounds(), kPlaces[i]) << i;
    panels[2]->SetVisible(false);
    EXPECT_EQ(panels[5]->Top(), 0);
    EXPECT_EQ(panels[0]->Bounds(), QRect(30, 20, 240, 160));
    panels[3]->Free();
    EXPECT_EQ(panels[0]->Height(), 180);
}

// A hidden form lays out too: code reads places before it is shown.
TEST_F(StdCtrlsTest, AnchorsKeepTheirDistances) {
    struct TCase {
        const char* Name;
        TAnchors Anchors;
        QRect Place;
    };
    const TCase kCases[] = {{"left top", akLeft | akTop, {10, 10, 50, 20}},
                            {"right bottom", akRight | akBottom, {110, 60, 50, 20}},
                            {"all", akLeft | akTop | akRight | akBottom, {10, 10, 150, 70}},
                            {"none", 0, {60, 35, 50, 20}}};
    for (const bool visible : {true, false}) {
        for (const TCase& anchored : kCases) {
            SCOPED_TRACE(anchored.Name);
            Form->SetVisible(visible);
            Form->SetClientWidth(300);
            Form->SetClientHeight(200);
            auto* panel = Make<TPanel>(QRect(10, 10, 50, 20));
            panel->SetAnchors(anchored.Anchors);
            Form->SetClientWidth(401);
            Form->SetClientHeight(20);
            Form->SetClientWidth(400);
            Form->SetClientHeight(250);
            EXPECT_EQ(panel->Bounds(), anchored.Place);
            panel->Free();
        }
    }
}

TEST_F(StdCtrlsTest, KeepTheirTextsAndTellOfChanges) {
    Run(UI_TESTS "/tables/textos.txt",
        {{u"Tick"_s, Does([](const QStringList& a) {
              ClickAt(dynamic_cast<TControl*>(Named(a[0]))->Widget(), QPoint(6, 12));
          })},
         {u"Delete"_s, Does([](const QStringList& a) {
              dynamic_cast<TComboBox*>(Named(a[0]))->Items()->Delete(a[1].toInt());
          })}});
}

TEST_F(StdCtrlsTest, WhatAnExitThrowsOutOfAChangeReachesTheCaller) {
    auto* edit = Make<TEdit>();
    edit->OnChange = [](TComponent*) { throw Exception(u"não"_s); };
    EXPECT_THROW(edit->SetText(u"x"_s), Exception);
    EXPECT_EQ(edit->Text(), u"x"_s);
}

TEST_F(StdCtrlsTest, LabelsFitTheirCaption) {
    auto* label = Make<TLabel>(QRect(200, 8, 80, 18));
    label->SetAlignment(taRightJustify);
    label->SetCaption(u"1 Registro"_s);
    EXPECT_EQ(label->Left() + label->Width(), 280);
    const int width = label->Width();
    label->SetCaption(u"1000 Registros"_s);
    EXPECT_GT(label->Width(), width);
    EXPECT_EQ(label->Left() + label->Width(), 280);
    label->SetAutoSize(false);
    label->SetBounds(0, 0, 10, 18);
    label->SetCaption(u"texto comprido"_s);
    EXPECT_EQ(label->Width(), 10);
}

TEST_F(StdCtrlsTest, ClicksCountInsideOnly) {
    auto* panel = Make<TPanel>(QRect(8, 8, 50, 50));
    int clicks = 0, doubles = 0;
    panel->OnClick = [&](TComponent*) { ++clicks; };
    panel->OnDblClick = [&](TComponent*) { ++doubles; };
    Click(panel);
    Drag(panel->Widget(), QPoint(10, 10), QPoint(200, 10));
    EXPECT_EQ(clicks, 1);
    DoubleClick(panel);
    EXPECT_EQ(doubles, 1);
}

}  // namespace
