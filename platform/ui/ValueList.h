// A list of named values of which the user changes the values: the names stand on the left.
//
//     auto* params = NewControl<TValueListEditor>(form, page, u"Parametros"_s, QRect(16, 16, 300, 200));
//     params->Strings()->SetText(u"Protocol=TCPIP\nPort=3050"_s);
//     params->Strings()->Values(u"Port"_s)                       // what the user made of it
#pragma once
#include <memory>
#include <QTableWidget>
#include "platform/rtl/Strings.h"
#include "platform/ui/Control.h"

class TValueListEditor : public TWidget<QTableWidget> {
  public:
    explicit TValueListEditor(TComponent* owner);

    // Lines of the form name=value, one for each row.
    TStrings* Strings() const { return FStrings.get(); }

    int RowCount() const { return rowCount(); }
    // The chosen row, from 0; -1 without rows. Setting one that is not there changes nothing.
    int Row() const { return currentRow(); }
    void SetRow(int row);

    // The user changed the value of the chosen row.
    std::function<void(TComponent* sender)> OnChange;

  protected:
    ~TValueListEditor() override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

  private:
    void ShowRows();
    void ShowRow(int row);
    void UserChanged(const QTableWidgetItem& item);

    std::unique_ptr<TStringList> FStrings;
};
