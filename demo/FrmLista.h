// The base of Comercial's views: they show their records from the start, and again after another column was
// chosen, where a view master of filtered records would wait for something to search. While deleted records
// are in sight a button restores the current one.
#pragma once

#include "demo/DmComercial.h"
#include "forms/masters/UCad_Master.h"
#include "forms/masters/UViz_Master.h"

class TFrmLista : public TFrmViz_Master {
  public:
    void FormCreate(TComponent* Sender) override;
    void DBGrdTitleClick(TColumn* Column) override;

  protected:
    TFrmLista(TComponent* AOwner, TModuleInstance* AModule, TClassCad_Master ACadForm,
              TVizsualizationType AVisType, TKeyType AKeyType, TDM_Comercial* AData);

    TDM_Comercial* FData;

  private:
    void ShowRecords();
    void OfferRestoring();
    void Restore();
};

// The base of the registration forms that make queries of their own.
class TFrmCadComercial : public TFrmCad_Master {
  public:
    TFrmCadComercial(TComponent* AOwner, TModuleInstance* AModule, unsigned char AMode, TKeyType AKeyType,
                     bool ALoadWindowConfig, TDM_Comercial* AData);

  protected:
    TDM_Comercial* FData;
};

// The class reference of a registration form that gets the data module besides the master's arguments.
template <class T>
TClassCad_Master ClassWith(TDM_Comercial* data) {
    return [data](TComponent* owner, TModuleInstance* module, unsigned char mode, TKeyType keyType,
                  bool loadConfig) { return NewForm<T>(owner, module, mode, keyType, loadConfig, data); };
}
