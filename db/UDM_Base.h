// The base of the host's data modules.
//
//     class TDM_Clientes : public TDM_Base { … };
//     ativo->OnGetText = [this](TField* f, UnicodeString& t, bool d) { TrueFalseGetText(f, t, d); };
#pragma once
#include "platform/rtl/Component.h"
#include "platform/rtl/Types.h"

class TField;
class TModuleInstance;

class TDM_Base : public TDataModule {
  public:
    // `owner` frees the data module; `module` is the instance it belongs to and is not owned.
    TDM_Base(TComponent* owner, TModuleInstance* module);

    // Get-text handler of a flag column: S shows SIM, N shows NÃO, anything else (null included) nothing.
    void TrueFalseGetText(TField* sender, UnicodeString& text, bool displayText);

    // Set-text handler of a flag column: SIM stores S, NÃO stores N, anything else the empty text.
    void TrueFalseSetText(TField* sender, const UnicodeString& text);

    TModuleInstance* Module;
};

// The host's own data module, for units that reach it without a form. Set by the host; null at start.
extern TDM_Base* DM_Base;
