// An edit of a whole number, with two small buttons; Up and Down step by one.
//
//     width->SetRange(8, 2000);
//     width->OnChange = [this](TComponent*) { SetColumnWidth(width->Value()); };
#pragma once
#include <QSpinBox>
#include "platform/ui/Control.h"

class TSpinEdit : public TWidget<QSpinBox> {
  public:
    explicit TSpinEdit(TComponent* owner);

    int Value() const { return value(); }
    // The nearest number of the range. Fires OnChange when it differs from the one before.
    void SetValue(int value);
    // Both ends included; at first 0 to 99.
    void SetRange(int least, int most) { setRange(least, most); }

    // The value changed, by the user or by SetValue. What is typed below the least number is silent.
    std::function<void(TComponent* sender)> OnChange;

  protected:
    ~TSpinEdit() override = default;
};
