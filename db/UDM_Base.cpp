#include "db/UDM_Base.h"

#include "platform/data/Field.h"
#include "utils/funcoes/Listas.h"

namespace {

const UnicodeString kStored[] = {QStringLiteral("S"), QStringLiteral("N")};
const UnicodeString kShown[] = {QStringLiteral("SIM"), QStringLiteral("NÃO")};

}  // namespace

TDM_Base* DM_Base = nullptr;

TDM_Base::TDM_Base(TComponent* owner, TModuleInstance* module) : TDataModule(owner), Module(module) {}

void TDM_Base::TrueFalseGetText(TField* sender, UnicodeString& text, bool) {
    text = CaseOfStr(sender->AsString(), kStored, kShown, UnicodeString());
}

void TDM_Base::TrueFalseSetText(TField* sender, const UnicodeString& text) {
    sender->SetAsString(CaseOfStr(text, kShown, kStored, UnicodeString()));
}
