// The data module of Comercial: the connection that all screens share.
#pragma once

#include "db/UDM_Base.h"
#include "platform/data/Connection.h"
#include "platform/data/Query.h"

class TDM_Comercial : public TDM_Base {
  public:
    explicit TDM_Comercial(TComponent* AOwner);

    // Opens the sample database at `path` through the embedded engine. Raises with the cause in Portuguese.
    void OpenDatabase(const UnicodeString& path);

    // Opens the database that Config.ini names. Raises with the cause in Portuguese.
    void OpenConfigured();

    TFDConnection* Connection() const { return FConnection; }

    // A query on the connection, owned by `owner`, described but not opened.
    TFDQuery* NewQuery(TComponent* owner, const UnicodeString& sql) const;

  private:
    TFDConnection* FConnection;
};

// Gives the field its caption.
void Label(TDataSet* dataset, const UnicodeString& fieldName, const UnicodeString& caption);

// The same for several; fields that the dataset lacks are left out.
struct TFieldCaption {
    const char16_t* Field;
    const char16_t* Caption;
};
void LabelAll(TDataSet* dataset, std::initializer_list<TFieldCaption> captions);
