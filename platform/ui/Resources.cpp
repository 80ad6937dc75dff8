#include "platform/ui/Resources.h"

#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include "platform/rtl/Exceptions.h"

namespace {

UnicodeString FindFile(const UnicodeString& folder, const UnicodeString& name) {
    for (const char* ending : {".svg", ".png", ".ico"}) {
        const UnicodeString path = folder + u'/' + name.toLower() + QLatin1String(ending);
        if (QFile::exists(path)) return path;
    }
    return {};
}

UnicodeString RequireFile(const UnicodeString& folder, const UnicodeString& name) {
    const UnicodeString path = FindFile(folder, name);
    if (path.isEmpty()) throw EResNotFound(QStringLiteral("Resource %1 not found.").arg(name));
    return path;
}

QSize SizeOf(const UnicodeString& path) {
    return path.endsWith(u".svg") ? QSvgRenderer(path).defaultSize() : QImageReader(path).size();
}

// Bars are stretched on purpose, so an SVG is drawn to the whole of the size asked for, whatever its
// proportions.
QPixmap DrawSvg(const UnicodeString& path, QSize pixels) {
    QPixmap image(pixels);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer renderer(path);
    renderer.setAspectRatioMode(Qt::IgnoreAspectRatio);
    renderer.render(&painter, QRectF(QPointF(), pixels));
    return image;
}

}  // namespace

bool HasResource(const UnicodeString& folder, const UnicodeString& name) {
    return !FindFile(folder, name).isEmpty();
}

QIcon LoadIconResource(const UnicodeString& folder, const UnicodeString& name) {
    return QIcon(RequireFile(folder, name));
}

QSize ResourceSize(const UnicodeString& folder, const UnicodeString& name) {
    return SizeOf(RequireFile(folder, name));
}

QPixmap LoadBitmapResource(const UnicodeString& folder, const UnicodeString& name, QSize size, qreal ratio) {
    const UnicodeString path = RequireFile(folder, name);
    const QSize logical = size.isEmpty() ? SizeOf(path) : size;
    const QSize pixels = (QSizeF(logical) * ratio).toSize();
    QPixmap image = path.endsWith(u".svg")
                        ? DrawSvg(path, pixels)
                        : QPixmap(path).scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(ratio);
    return image;
}
