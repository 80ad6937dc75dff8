// Components: objects with a name that own other objects and free them.
//
//     auto* module = new TDataModule(ApplicationRoot());
//     auto* query = new TFDQuery(module);      // freed with the module
//     query->Free();                           // or earlier; the module forgets it
//
// Components live on the heap and end only by Free, their own or their owner's.
#pragma once
#include <cstdint>
#include <functional>
#include <memory>
#include <QStringView>
#include <vector>
#include "platform/rtl/Types.h"

// Keeps a wish to be told of a component's end; dropping it takes the wish back. May outlive the component.
using TFreeNotice = std::shared_ptr<void>;

class TComponent {
  public:
    // The owner (null for none) frees this component with itself.
    explicit TComponent(TComponent* owner);
    TComponent(const TComponent&) = delete;
    TComponent& operator=(const TComponent&) = delete;

    TComponent* Owner() const { return FOwner; }

    const UnicodeString& Name() const { return FName; }
    void SetName(const UnicodeString& name);

    // A number for the host's own use.
    intptr_t Tag() const { return FTag; }
    void SetTag(intptr_t tag) { FTag = tag; }

    // The components this one owns, in creation order; `index` is 0 to ComponentCount - 1.
    int ComponentCount() const { return static_cast<int>(FOwned.size()); }
    TComponent* Components(int index) const { return FOwned.at(index); }

    // The owned component of that name, case apart, or null.
    TComponent* FindComponent(QStringView name) const;

    // Ends the component: tells those who asked (it is still whole then), and deletes it; owned components go
    // too, newest first. A call from inside its own end does nothing.
    virtual void Free();

    // Whether Free has begun.
    bool Destroying() const { return FDestroying; }

    // Calls back once when this component ends, as long as the notice returned is kept. The callback must not
    // throw.
    [[nodiscard]] TFreeNotice AddFreeNotification(std::function<void()> callback);

  protected:
    virtual ~TComponent();

    // After the name changed.
    virtual void NameChanged() {}

    // First step of a Free of a derived class's own: marks the component as ending and tells those who asked.
    // False when that has happened before, and then the caller should do nothing.
    bool BeginFree();

    // Frees what this component owns, newest first; a derived destructor calls it when they must go before
    // its own members do.
    void FreeOwned();

  private:
    void TellEnd();

    TComponent* FOwner;
    UnicodeString FName;
    intptr_t FTag = 0;
    bool FDestroying = false;
    std::vector<TComponent*> FOwned;
    std::vector<std::weak_ptr<std::function<void()>>> FNotices;
};

// The owner of what belongs to the whole program: the application once there is one, a plain component
// before.
TComponent* ApplicationRoot();

// Makes `root` the program's owner (null: the plain component again) and returns the one before.
TComponent* SetApplicationRoot(TComponent* root);

// A component that only gathers others: a host's queries, data sources and tables.
class TDataModule : public TComponent {
  public:
    using TComponent::TComponent;
};
