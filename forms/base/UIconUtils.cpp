#include "forms/base/UIconUtils.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QtEndian>

#include "forms/base/IconGroup.h"

namespace {

constexpr int kLeast = 16;
constexpr int kMost = 256;
constexpr qint64 kLargestFile = 256 << 20;

constexpr int kHeader = 6;
constexpr int kEntry = 16;
constexpr int kDepthInEntry = 6;

struct TPicture {
    QImage Image;
    int Depth = 0;  // bits for each pixel
};

// A picture that is large enough is better than one that is not; the nearer to `wanted`, the better; of one
// size, the one with more colours.
bool Better(const TPicture& candidate, const TPicture& best, int wanted) {
    if (best.Image.isNull()) return true;
    const int width = candidate.Image.width(), bestWidth = best.Image.width();
    if (width == bestWidth) return candidate.Depth > best.Depth;
    const bool enough = width >= wanted;
    if (enough != (bestWidth >= wanted)) return enough;
    return enough == (width < bestWidth);
}

QImage BestPicture(QByteArray icon, int wanted) {
    QBuffer buffer(&icon);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "ico");
    TPicture best;
    for (int i = 0; i < reader.imageCount(); ++i) {
        if (!reader.jumpToImage(i)) break;
        const char* depth = icon.constData() + kHeader + i * kEntry + kDepthInEntry;
        const TPicture picture{reader.read(), qFromLittleEndian<uint16_t>(depth)};
        if (!picture.Image.isNull() && Better(picture, best, wanted)) best = picture;
    }
    return best.Image;
}

}  // namespace

QImage GetIconFromSize(const UnicodeString& FileName, int Size) {
    QFile file(FileName);
    if (Size < kLeast || Size > kMost || !file.open(QIODevice::ReadOnly) || file.size() > kLargestFile)
        return {};
    const QByteArray bytes = file.readAll();
    const QImage best = BestPicture(bytes.startsWith("MZ") ? IconFileOfProgram(bytes) : bytes, Size);
    if (best.isNull()) return {};
    return best.scaled(Size, Size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}
