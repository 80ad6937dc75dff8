#include "demo/FrmLista.h"

#include "platform/ui/Application.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const UnicodeString kRestaurar = u"BtnRestaurar"_s;
constexpr int kAtrasDeExcluir = 3;

}  // namespace

TFrmLista::TFrmLista(TComponent* AOwner, TModuleInstance* AModule, TClassCad_Master ACadForm,
                     TVizsualizationType AVisType, TKeyType AKeyType, TDM_Comercial* AData)
    : TFrmViz_Master(AOwner, AModule, std::move(ACadForm), AVisType, AKeyType), FData(AData) {}

void TFrmLista::FormCreate(TComponent* Sender) {
    TFrmViz_Master::FormCreate(Sender);
    ExibirRegistrosExcludos1->OnClick = [this](TComponent* item) {
        ExibirRegistrosExcludos1Click(item);
        OfferRestoring();
    };
    ShowRecords();
}

void TFrmLista::DBGrdTitleClick(TColumn* Column) {
    TFrmViz_Master::DBGrdTitleClick(Column);
    ShowRecords();
}

void TFrmLista::OfferRestoring() {
    DestroyButton(kRestaurar);
    if (!ShowDeleted() || !Module->GetRight(u"Edit"_s)) return;
    SetButtonPosition(
        CreateButton(kRestaurar, u"Restaurar"_s, u"BTN_RESTAURAR"_s, -1, [this](TComponent*) { Restore(); }),
        kAtrasDeExcluir);
}

void TFrmLista::Restore() {
    FinishSearch();
    if (CurrentIsDeleted()) return BtnAlterarClick(this);
    Application->MessageBox(u"O registro selecionado não está excluído."_s, u"Informação"_s,
                            MB_ICONINFORMATION);
}

// A remembered order or a date column may have brought them already.
void TFrmLista::ShowRecords() {
    if (!MainDS->DataSet()->Active()) RefreshData();
}

TFrmCadComercial::TFrmCadComercial(TComponent* AOwner, TModuleInstance* AModule, unsigned char AMode,
                                   TKeyType AKeyType, bool ALoadWindowConfig, TDM_Comercial* AData)
    : TFrmCad_Master(AOwner, AModule, AMode, AKeyType, ALoadWindowConfig), FData(AData) {}
