#include "modules/Umoduleinterface.h"

namespace {

int NextNumber() {
    static int last = 0;
    return ++last;
}

}  // namespace

TModuleInstance::TModuleInstance(TModuleInterface* host, TModuleInfo info)
    : FInterface(host), FInfo(std::move(info)), FNumber(NextNumber()) {}

UnicodeString TModuleInstance::ModuleResources() const {
    return FResources.isEmpty() && FInterface ? FInterface->HostResources() : FResources;
}

void TModuleInstance::FormDestroy(TFrmBase* form) {
    if (FInterface) FInterface->FormDestroyed(form);
}

bool TModuleInstance::GetRight(const UnicodeString& right) const {
    return FAllRights || FRights.contains(right);
}

void TModuleInstance::SetRights(std::set<UnicodeString> rights) {
    FRights = std::move(rights);
    FAllRights = false;
}

void TModuleInstance::SetDecimals(int value, int quantity) {
    FValueDecimals = value;
    FQuantityDecimals = quantity;
}

UnicodeString TModuleInstance::DisplayFormat(int tag) const {
    const int decimals = tag == 3 ? FQuantityDecimals : FValueDecimals;
    UnicodeString format = QStringLiteral("#,##0");
    if (decimals > 0) format += u'.' + UnicodeString(decimals, u'0');
    return format;
}
