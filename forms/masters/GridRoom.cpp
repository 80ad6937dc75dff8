#include "forms/masters/GridRoom.h"

#include "platform/ui/DBGrid.h"
#include "platform/ui/Form.h"

void LeaveScrollBarRoom(TForm& form) {
    for (int i = 0; i < form.ComponentCount(); ++i) {
        auto* grid = dynamic_cast<TDBGrid*>(form.Components(i));
        if (!grid || grid->Tag() < 0 || grid->Tag() >= grid->Columns().Count()) continue;
        TColumn* column = grid->Columns()[int(grid->Tag())];
        column->SetWidth(column->Width() - TForm::VerticalScrollBarWidth());
    }
}
