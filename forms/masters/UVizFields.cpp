#include "forms/masters/UVizFields.h"

#include "forms/base/DialogBand.h"
#include "forms/browse/UGrid_Master.h"
#include "forms/masters/GridConfig.h"
#include "platform/ui/ListBoxes.h"
#include "platform/ui/SpinEdit.h"
#include "utils/funcoes/Janelas.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kMargin = 16;
constexpr int kListWidth = 240;
constexpr int kListHeight = 260;
constexpr int kTop = TDialogBand::kHeight + kMargin;
constexpr int kRight = kMargin + kListWidth + kMargin;
constexpr int kRightWidth = 200;
constexpr int kLeastWidth = 8;
constexpr int kMostWidth = 2000;

}  // namespace

TFrmVizFields::TFrmVizFields(TFrmGrid_Master* Owner, std::function<void()> Restore)
    : TForm(Owner), FGridForm(Owner), FRestore(std::move(Restore)) {
    SetBorderStyle(bsDialog);
    SetBorderIcons(biSystemMenu);
    SetPosition(poMainFormCenter);
    SetKeyPreview(true);
}

void TFrmVizFields::CreateControls() {
    TForm::CreateControls();
    SetClientWidth(kRight + kRightWidth + kMargin);
    SetClientHeight(kTop + kListHeight + 8 + kEditHeight + kMargin);
    const TModuleInterface* host = FGridForm->Module->Interface();
    Image1 = NewDialogBand(*this, host ? host->HostResources() : UnicodeString(), u"BTN_CAMPOS"_s,
                           u"Marque os campos a exibir e escolha a ordem, o título e a largura de cada um."_s)
                 .Image;
    CreateList();
    CreateColumnControls();
    CreateButtons();
    Wire();
}

void TFrmVizFields::CreateList() {
    CheckListBox1 = NewControl<TCheckListBox>(this, this, u"CheckListBox1"_s,
                                              QRect(kMargin, kTop, kListWidth, kListHeight));
    CheckListBox1->SetAccessibleName(u"Campos"_s);
    CheckBox1 = NewControl<TCheckBox>(this, this, u"CheckBox1"_s,
                                      QRect(kMargin, kTop + kListHeight + 8, kListWidth, kEditHeight));
    CheckBox1->SetCaption(u"Marcar t&odos"_s);
    CheckBox1->SetAccessibleName(u"Marcar todos"_s);
}

void TFrmVizFields::CreateColumnControls() {
    const auto label = [this](const UnicodeString& name, const UnicodeString& caption, int top,
                              TControl* control) {
        auto* made = NewControl<TLabel>(this, this, name, QRect(kRight, top, 10, 16));
        made->SetCaption(caption);
        made->SetFocusControl(control);
        return made;
    };
    EdtTitle =
        NewControl<TEdit>(this, this, u"EdtTitle"_s, QRect(kRight, kTop + 18, kRightWidth, kEditHeight));
    Label3 = label(u"Label3"_s, u"&Título"_s, kTop, EdtTitle);
    SEdtWidth = NewControl<TSpinEdit>(this, this, u"SEdtWidth"_s, QRect(kRight, kTop + 68, 90, kEditHeight));
    SEdtWidth->SetRange(kLeastWidth, kMostWidth);
    Label4 = label(u"Label4"_s, u"&Largura"_s, kTop + 50, SEdtWidth);
}

void TFrmVizFields::CreateButtons() {
    const auto button = [this](const UnicodeString& name, const UnicodeString& caption, int top) {
        auto* made = NewControl<TButton>(this, this, name, QRect(kRight, top, kRightWidth, kEditHeight));
        made->SetCaption(caption);
        return made;
    };
    Button1 = button(u"Button1"_s, u"Mover para &cima"_s, kTop + 116);
    Button2 = button(u"Button2"_s, u"Mover para &baixo"_s, kTop + 116 + kEditHeight + 8);
    Button3 = button(u"Button3"_s, u"&Restaurar Padrão..."_s, kTop + kListHeight - kEditHeight);
}

void TFrmVizFields::Wire() {
    OnCreate = [this](TComponent* sender) { FormCreate(sender); };
    OnKeyPress = [this](TComponent* sender, WideChar& key) { FormKeyPress(sender, key); };
    CheckListBox1->OnClick = [this](TComponent* sender) { CheckListBox1ClickCheck(sender); };
    CheckListBox1->OnClickCheck = [this](TComponent* sender) { CheckListBox1ClickCheck(sender); };
    CheckBox1->OnClick = [this](TComponent* sender) { CheckBox1Click(sender); };
    EdtTitle->OnEnter = [this](TComponent*) { EdtTitle->SelectAll(); };
    EdtTitle->OnChange = [this](TComponent* sender) { EdtTitleChange(sender); };
    SEdtWidth->OnChange = [this](TComponent* sender) { SEdtWidthChange(sender); };
    Button1->OnClick = [this](TComponent* sender) { Button1Click(sender); };
    Button2->OnClick = [this](TComponent* sender) { Button2Click(sender); };
    Button3->OnClick = [this](TComponent* sender) { Button3Click(sender); };
}

void TFrmVizFields::FormCreate(TComponent*) {
    SetCaption(u"Personalizar Campos ["_s + FGridForm->Caption() + u"]"_s);
    UpdateFields(0);
}

void TFrmVizFields::GetFields() {
    TDBGridColumns& columns = FGridForm->DBGrd->Columns();
    TStringArray labels;
    for (int i = 0; i < columns.Count(); ++i) {
        const TField* field = columns[i]->Field();
        labels.push_back(field ? field->DisplayLabel() : columns[i]->FieldName());
    }
    {
        const TStringsUpdate update(*CheckListBox1->Items());
        CheckListBox1->Items()->Assign(labels);
    }
    for (int i = 0; i < columns.Count(); ++i) CheckListBox1->SetChecked(i, columns[i]->Visible());
}

void TFrmVizFields::UpdateFields(int Index) {
    const TDrawLock lock(this);
    GetFields();
    CheckListBox1->SetItemIndex(Index);
    CheckListBox1ClickCheck(this);
}

void TFrmVizFields::CheckListBox1ClickCheck(TComponent*) {
    const int index = CheckListBox1->ItemIndex();
    if (index >= 0) {
        FFilling = true;
        EdtTitle->SetText(FGridForm->GetColumnTitle(index));
        SEdtWidth->SetValue(StoredColumnWidth(*FGridForm, index));
        FFilling = false;
    }
    GetState();
    SetProps();
}

void TFrmVizFields::SetProps() {
    TDBGridColumns& columns = FGridForm->DBGrd->Columns();
    for (int i = 0; i < columns.Count(); ++i) {
        columns[i]->SetVisible(CheckListBox1->Checked(i));
        columns[i]->SetWidth(StoredColumnWidth(*FGridForm, i));
    }
}

void TFrmVizFields::GetState() {
    const int count = CheckListBox1->Items()->Count();
    int checked = 0;
    for (int i = 0; i < count; ++i) checked += CheckListBox1->Checked(i);
    CheckBox1->SetState(checked == 0 ? cbUnchecked : checked == count ? cbChecked : cbGrayed);
}

void TFrmVizFields::CheckBox1Click(TComponent*) {
    if (CheckBox1->State() == cbGrayed) return;
    for (int i = 0; i < CheckListBox1->Items()->Count(); ++i)
        CheckListBox1->SetChecked(i, CheckBox1->Checked());
    SetProps();
}

// Title and width are kept at once: the next check or move takes the widths from the configuration.
void TFrmVizFields::EdtTitleChange(TComponent*) {
    if (FFilling || CheckListBox1->ItemIndex() < 0) return;
    FGridForm->SetColumnTitle(CheckListBox1->ItemIndex(), EdtTitle->Text());
    SaveGridConfig(*FGridForm);
}

void TFrmVizFields::SEdtWidthChange(TComponent*) {
    if (FFilling || CheckListBox1->ItemIndex() < 0) return;
    FGridForm->DBGrd->Columns()[CheckListBox1->ItemIndex()]->SetWidth(SEdtWidth->Value());
    SaveGridConfig(*FGridForm);
}

void TFrmVizFields::MoveColumn(int step) {
    const int from = CheckListBox1->ItemIndex();
    const int to = from + step;
    if (from < 0 || to < 0 || to >= CheckListBox1->Items()->Count()) return;
    FGridForm->DBGrd->Columns().Move(from, to);
    FGridForm->DBGrdColumnMoved(from, to);
    SaveGridConfig(*FGridForm);
    UpdateFields(to);
}

void TFrmVizFields::Button1Click(TComponent*) {
    MoveColumn(-1);
}

void TFrmVizFields::Button2Click(TComponent*) {
    MoveColumn(1);
}

void TFrmVizFields::Button3Click(TComponent*) {
    FRestore();
}

void TFrmVizFields::FormKeyPress(TComponent*, WideChar& Key) {
    if (Key != VK_ESCAPE) return;
    Key = 0;
    Close();
}
