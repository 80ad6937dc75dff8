// A list of pictures of one size, addressed by index.
//
//     auto* images = new TImageList(form, 24, 24);
//     const int novo = images->Add(LoadIconResource(folder, u"BTN_NOVO_24"_s));
#pragma once
#include <QIcon>
#include <vector>
#include "platform/rtl/Component.h"

class TImageList : public TComponent {
  public:
    // Pixels, 16 by 16 unless told.
    explicit TImageList(TComponent* owner, int width = 16, int height = 16)
        : TComponent(owner), FSize(width, height) {}

    int Width() const { return FSize.width(); }
    int Height() const { return FSize.height(); }
    // Clears the list.
    void SetSize(int width, int height);

    // Returns the new picture's index.
    int Add(const QIcon& icon);
    void Clear() { FIcons.clear(); }
    int Count() const { return int(FIcons.size()); }
    // An empty icon for an index outside 0 .. Count - 1.
    QIcon Icon(int index) const;

  protected:
    ~TImageList() override = default;

  private:
    QSize FSize;
    std::vector<QIcon> FIcons;
};
