#include "gui/Pictures.h"

#include "gui/GuiResources.h"

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QImageReader>
#include <QPixmapCache>
#include <QResource>

namespace tarnic {

namespace {

// The pictures are PNGs of our own, compiled in. Naming the format and turning detection off
// keeps QImageReader from loading every image-format plugin installed (each one is asked whether
// it reads "png" before the built-in reader is tried), which cost start-up more than the
// decoding itself on a system with many plugins.
QPixmap readPng(const QString& path) {
    QImageReader reader(path, "png");
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImage(reader.read());
}

QPixmap cachedPng(const QString& path) {
    const QString key = QStringLiteral("tarnic:") + path;
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = readPng(path);
        if (!pixmap.isNull()) {
            QPixmapCache::insert(key, pixmap);
        }
    }
    return pixmap;
}

constexpr qsizetype kThumbnailBytes = qsizetype{kThumbnailEdge} * kThumbnailEdge * 4;

struct ThumbnailSheet {
    QHash<QString, qsizetype> offsets;
    const uchar* pixels = nullptr;
    qsizetype size = 0;
};

const ThumbnailSheet& thumbnailSheet() {
    static const ThumbnailSheet sheet = [] {
        initGuiResources();
        ThumbnailSheet made;
        const QResource pixels(QStringLiteral(":/thumbnails/pixels"));
        if (!pixels.isValid() || pixels.compressionAlgorithm() != QResource::NoCompression) {
            return made;
        }
        made.pixels = pixels.data();
        made.size = static_cast<qsizetype>(pixels.size());
        const QByteArray names = QResource(QStringLiteral(":/thumbnails/names")).uncompressedData();
        qsizetype offset = 0;
        for (const QByteArray& name : names.split('\n')) {
            if (!name.isEmpty()) {
                made.offsets.insert(QString::fromUtf8(name), offset);
                offset += kThumbnailBytes;
            }
        }
        return made;
    }();
    return sheet;
}

} // namespace

QPixmap pictureNamed(const QString& name) {
    initGuiResources();
    return cachedPng(QStringLiteral(":/images/") + name + QStringLiteral(".png"));
}

QPixmap thumbnailNamed(const QString& name) {
    const ThumbnailSheet& sheet = thumbnailSheet();
    const auto found = sheet.offsets.constFind(name);
    if (found == sheet.offsets.constEnd() || found.value() + kThumbnailBytes > sheet.size) {
        return {};
    }
    // Read in place; the pixmap takes its own copy.
    const QImage pixels(sheet.pixels + found.value(), kThumbnailEdge, kThumbnailEdge,
                        kThumbnailEdge * 4, QImage::Format_RGBA8888_Premultiplied);
    return QPixmap::fromImage(pixels.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

} // namespace tarnic
