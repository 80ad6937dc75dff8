// The texts of a list or combo box: a list that tells its control after each change, besides its OnChange.
#pragma once
#include <functional>
#include "platform/rtl/Strings.h"

class TShownList : public TStringList {
  public:
    explicit TShownList(std::function<void()> show) : FShow(std::move(show)) {}

  protected:
    void Changed() override {
        FShow();
        TStringList::Changed();
    }

  private:
    std::function<void()> FShow;
};
