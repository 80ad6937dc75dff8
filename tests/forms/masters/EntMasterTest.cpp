#include "forms/masters/UEnt_Master.h"

#include "tests/forms/masters/Bancada.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class TFrmPergunta : public TFrmEnt_Master {
  public:
    using TFrmEnt_Master::TFrmEnt_Master;
    TEdit* First = nullptr;
    TEdit* Second = nullptr;
    TDBGrid* Grid = nullptr;

  protected:
    void CreateControls() override {
        TFrmEnt_Master::CreateControls();
        SetClientWidth(400);
        SetClientHeight(600);
        First = NewControl<TEdit>(this, this, u"EdtA"_s, QRect(16, kStripBottom + 16, 100, kEditHeight));
        Second = NewControl<TEdit>(this, this, u"EdtB"_s, QRect(132, kStripBottom + 16, 100, kEditHeight));
        Grid = NewControl<TDBGrid>(this, this, u"Grd"_s, QRect(16, kStripBottom + 60, 300, 80));
        Grid->SetTag(1);
        Grid->AddColumn(u"A"_s, u"A"_s, 100);
        Grid->AddColumn(u"B"_s, u"B"_s, 100);
    }
};

class EntMaster : public Bancada {
  protected:
    TFrmPergunta* Ask() { return NewForm<TFrmPergunta>(Main, &Module, Module.Info(), u"x"_s); }
};

TEST_F(EntMaster, HasTheHostsSizeForGoodAndRoomInItsGrid) {
    TFrmPergunta* form = Ask();
    const QSize size(form->Width(), form->Height());
    form->SetBounds(0, 0, 900, 900);
    EXPECT_EQ(QSize(form->Width(), form->Height()), size);
    EXPECT_EQ(QSize(form->ClientWidth(), form->ClientHeight()), QSize(400, 517));
    const TToolBar& bar = *form->TBButtons;
    EXPECT_EQ(bar.geometry(), QRect(400 - bar.Width(), 4, bar.Width(), 51));
    EXPECT_EQ(form->Grid->Columns()[1]->Width(), 100 - TForm::VerticalScrollBarWidth());
    EXPECT_EQ(form->TagStr(), u"x"_s);
    form->FixButtons();
    EXPECT_EQ(form->TBButtons->ButtonCount(), 2);
    form->Free();
}

TEST_F(EntMaster, AnswersConfirmedOnlyByF12OrItsButton) {
    const struct {
        const char* Case;
        std::function<void(TFrmPergunta*)> Act;
        int Result;
    } cases[] = {
        {"F12", [](TFrmPergunta*) { Press(VK_F12); }, TFrmEnt_Master::kConfirmed},
        {"button", [](TFrmPergunta* form) { Click(form->BtnConfirmar); }, TFrmEnt_Master::kConfirmed},
        {"escape", [](TFrmPergunta*) { Press(VK_ESCAPE); }, 2},
        {"cancel", [](TFrmPergunta* form) { Click(form->BtnCancelar); }, 2}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Case);
        TFrmPergunta* form = Ask();
        ExpectModal([&](TForm*) {
            form->First->SetFocus();
            Press(VK_RETURN);
            Settle();
            EXPECT_TRUE(form->Second->Focused());
            c.Act(form);
        });
        EXPECT_EQ(form->ShowModal(), c.Result);
    }
}

}  // namespace
