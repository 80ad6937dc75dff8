// A list of listeners that may come, go and die while they are being told something.
#pragma once
#include <algorithm>
#include <cstddef>
#include <vector>

namespace fichario {

template <class T>
class NotifyList {
  public:
    void Add(T* item) { FItems.push_back(item); }

    void Remove(T* item) {
        const auto found = std::find(FItems.begin(), FItems.end(), item);
        if (found == FItems.end()) return;
        *found = nullptr;
        if (FWalks == 0) Compact();
    }

    // Calls `tell` with each; those removed meanwhile are left out, those added meanwhile are told as well.
    template <class Tell>
    void Each(Tell tell) {
        const Walk walk(*this);
        for (std::size_t i = 0; i < FItems.size(); ++i) {
            if (FItems[i]) tell(*FItems[i]);
        }
    }

  private:
    struct Walk {
        explicit Walk(NotifyList& list) : List(list) { ++List.FWalks; }
        ~Walk() {
            if (--List.FWalks == 0) List.Compact();
        }
        Walk(const Walk&) = delete;
        Walk& operator=(const Walk&) = delete;
        NotifyList& List;
    };

    void Compact() { std::erase(FItems, nullptr); }

    std::vector<T*> FItems;
    int FWalks = 0;
};

}  // namespace fichario
