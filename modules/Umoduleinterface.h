// The host's module framework, as far as the forms need it.
//
// A host is made of modules (Clientes, Produtos, …). Each running module is a TModuleInstance: its name, its
// caption, the user's rights in it, its resources and number formats. Every form belongs to one. The instance
// reaches the host through a TModuleInterface, of which a program has one (the ready main window brings it).
//
//     TModuleInstance clientes(mainWindow->Interface(), {u"CLIENTES"_s, u"Clientes"_s, u"1.0"_s});
//     clientes.SetRights({u"New"_s, u"Edit"_s});
//     NewForm<TFrmClientes>(Application, &clientes);
//
// Names no widget: forms are forward-declared, resources are named by the folder they lie in.
#pragma once

#include <functional>
#include <set>

#include "platform/rtl/Types.h"
#include "platform/rtl/Variant.h"

class TForm;
class TFrmBase;
class TModuleInstance;

// What a module says of itself; copied by value into every form of the module.
struct TModuleInfo {
    UnicodeString Name;     // names the module's icon resource: "ICO16_" + Name
    UnicodeString Caption;  // what the user calls it; the registration form's caption begins with it
    UnicodeString Version;
};

// What a lookup search brings back: the values of the fields that it was asked for, in their order. The caller
// owns it and keeps it until the search form is gone.
using TResultArray = std::vector<Variant>;
struct TResearchResult {
    bool Delivered = false;  // the user chose a record
    TForm* Form = nullptr;   // the search form, while it lives; set by the caller
    TResultArray Values;
    int Count = 0;  // of the values

    // Called once when a search form that delivered ends.
    std::function<void(const TResearchResult& result)> OnDelivered;
};

// The host, seen from its modules. The interface outlives all its instances and forms.
class TModuleInterface {
  public:
    virtual ~TModuleInterface() = default;

    // Number of open forms, the main window counted too. New forms are cascaded by it.
    virtual int GetCountActiveModules() const = 0;

    // Shows `waitScreen`, runs `procedure` for `form`, then closes the wait screen. An exception of the
    // procedure comes through after the wait screen is closed.
    virtual void ExecuteProcEx(TForm* waitScreen, const std::function<void()>& procedure, TFrmBase* form) = 0;

    // Folder of the resources that all modules share (the generic icons), without a trailing separator.
    virtual UnicodeString HostResources() const = 0;

    // The number in the window-state file's name: one file for each user or place of work the host tells
    // apart.
    virtual int StateFileNumber() const = 0;

    // Told when a form has been linked to its module, before its create event, and when it is being
    // destroyed.
    virtual void FormCreated(TFrmBase* form) = 0;
    virtual void FormDestroyed(TFrmBase* form) = 0;
};

// One running module. The host makes it, keeps it alive while any of its forms is open, and may derive from
// it.
class TModuleInstance {
  public:
    // `host` is not owned. Without SetRights the user holds every right.
    TModuleInstance(TModuleInterface* host, TModuleInfo info);
    virtual ~TModuleInstance() = default;

    const UnicodeString& Name() const { return FInfo.Name; }
    const UnicodeString& Caption() const { return FInfo.Caption; }
    const TModuleInfo& Info() const { return FInfo; }
    TModuleInterface* Interface() const { return FInterface; }
    // Tells the program's instances apart, from 1 in the order of their birth; companion programs get it.
    int Number() const { return FNumber; }

    // Folder of the module's own resources; the host's until another is set.
    UnicodeString ModuleResources() const;
    void SetModuleResources(const UnicodeString& folder) { FResources = folder; }

    // Told when one of the module's forms gains (true) or loses (false) the focus.
    virtual void SetActivated(bool activated) { FActivated = activated; }
    bool Activated() const { return FActivated; }

    // Told when one of the module's forms is destroyed.
    virtual void FormDestroy(TFrmBase* form);

    // Whether the user holds a right, exactly as named: "New", "Edit", "Delete", or one of the host's own.
    virtual bool GetRight(const UnicodeString& right) const;
    void SetRights(std::set<UnicodeString> rights);

    // Decimal places of values (prices, amounts: 2) and of quantities (3), 0 to 18.
    int ValueDecimals() const { return FValueDecimals; }
    int QuantityDecimals() const { return FQuantityDecimals; }
    void SetDecimals(int value, int quantity);

    // Display format of a number field by its tag: 3 is a quantity, anything else a value. "#,##0.00" for two
    // places.
    UnicodeString DisplayFormat(int tag) const;

    // Result of a lookup search on its way to a view master: the key fields' names and their values, items
    // separated by "|;|".
    UnicodeString ResearchFields;
    UnicodeString ResearchValues;

  private:
    TModuleInterface* FInterface;
    TModuleInfo FInfo;
    int FNumber;
    UnicodeString FResources;
    std::set<UnicodeString> FRights;
    bool FAllRights = true;
    bool FActivated = false;
    int FValueDecimals = 2;
    int FQuantityDecimals = 3;
};
