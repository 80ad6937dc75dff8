#include "forms/base/UIconUtils.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>

#include "forms/base/IconGroup.h"

namespace {

constexpr int kLeast = 16;
constexpr int kMost = 256;
constexpr qint64 kLargestFile = 256 << 20;

// A picture that is large enough is better than one that is not; the nearer to `wanted`, the better.
bool Better(const QImage& candidate, const QImage& best, int wanted) {
    if (best.isNull()) return true;
    const bool enough = candidate.width() >= wanted;
    if (enough != (best.width() >= wanted)) return enough;
    return enough ? candidate.width() < best.width() : candidate.width() > best.width();
}

QImage BestPicture(const QByteArray& icon, int wanted) {
    QByteArray bytes = icon;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "ico");
    QImage best;
    for (int i = 0; i < reader.imageCount(); ++i) {
        if (!reader.jumpToImage(i)) break;
        const QImage image = reader.read();
        if (!image.isNull() && Better(image, best, wanted)) best = image;
    }
    return best;
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
