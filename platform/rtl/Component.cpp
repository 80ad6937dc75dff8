#include "platform/rtl/Component.h"

#include <algorithm>
#include <utility>
#include "platform/rtl/CodePage.h"

namespace {

TComponent*& InstalledRoot() {
    static TComponent* root = nullptr;
    return root;
}

}  // namespace

TComponent::TComponent(TComponent* owner) : FOwner(owner) {
    if (FOwner) FOwner->FOwned.push_back(this);
}

TComponent::~TComponent() {
    BeginFree();
    FreeOwned();
    if (FOwner) std::erase(FOwner->FOwned, this);
    if (InstalledRoot() == this) InstalledRoot() = nullptr;
}

void TComponent::SetName(const UnicodeString& name) {
    if (FName == name) return;
    FName = name;
    NameChanged();
}

TComponent* TComponent::FindComponent(QStringView name) const {
    if (name.isEmpty()) return nullptr;
    const auto found = std::find_if(FOwned.begin(), FOwned.end(),
                                    [name](TComponent* owned) { return SameText(owned->Name(), name); });
    return found == FOwned.end() ? nullptr : *found;
}

void TComponent::Free() {
    if (BeginFree()) delete this;
}

TFreeNotice TComponent::AddFreeNotification(std::function<void()> callback) {
    std::erase_if(FNotices, [](const auto& notice) { return notice.expired(); });
    const auto notice = std::make_shared<std::function<void()>>(std::move(callback));
    FNotices.push_back(notice);
    return notice;
}

bool TComponent::BeginFree() {
    if (std::exchange(FDestroying, true)) return false;
    TellEnd();
    return true;
}

void TComponent::FreeOwned() {
    while (!FOwned.empty()) {
        TComponent* newest = FOwned.back();
        newest->Free();
        // One that is already ending further up the stack leaves the list here, or the loop would not end.
        if (!FOwned.empty() && FOwned.back() == newest) {
            FOwned.pop_back();
            newest->FOwner = nullptr;
        }
    }
}

void TComponent::TellEnd() {
    // A callback may drop its own notice or that of another.
    for (const auto& notice : std::exchange(FNotices, {})) {
        if (const auto callback = notice.lock()) (*callback)();
    }
}

TComponent* ApplicationRoot() {
    static TComponent* plain = new TComponent(nullptr);
    return InstalledRoot() ? InstalledRoot() : plain;
}

TComponent* SetApplicationRoot(TComponent* root) {
    return std::exchange(InstalledRoot(), root);
}
