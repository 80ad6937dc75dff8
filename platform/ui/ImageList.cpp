#include "platform/ui/ImageList.h"

void TImageList::SetSize(int width, int height) {
    FSize = {width, height};
    FIcons.clear();
}

int TImageList::Add(const QIcon& icon) {
    FIcons.push_back(icon);
    return Count() - 1;
}

QIcon TImageList::Icon(int index) const {
    return index >= 0 && index < Count() ? FIcons[size_t(index)] : QIcon();
}
