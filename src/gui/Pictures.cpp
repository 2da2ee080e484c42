#include "gui/Pictures.h"

#include "gui/GuiResources.h"

#include <QImage>
#include <QImageReader>
#include <QPixmapCache>

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

} // namespace

QPixmap picture(const QString& name) {
    initGuiResources();
    return cachedPng(QStringLiteral(":/images/") + name + QStringLiteral(".png"));
}

QPixmap thumbnail(const QString& name) {
    initGuiResources();
    return cachedPng(QStringLiteral(":/thumbnails/") + name + QStringLiteral(".png"));
}

} // namespace tarnic
