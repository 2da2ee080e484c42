#include "gui/Pictures.h"

#include "gui/GuiResources.h"

#include <QImage>
#include <QResource>

namespace tarnic {

namespace {

// Raw pixels compiled in as an uncompressed resource, read in place.
struct PixelData {
    const uchar* pixels = nullptr;
    qsizetype size = 0;
};

PixelData uncompressed(const QString& path) {
    const QResource resource(path);
    if (!resource.isValid() || resource.compressionAlgorithm() != QResource::NoCompression) {
        return {};
    }
    return {resource.data(), static_cast<qsizetype>(resource.size())};
}

// A square of premultiplied RGBA8888 pixels at `offset`, read in place (a pixmap made from it
// takes its own copy); null when the data does not hold it.
QImage imageAt(const PixelData& data, qsizetype offset, int pixels) {
    const qsizetype bytes = qsizetype{pixels} * pixels * 4;
    if (data.pixels == nullptr || offset < 0 || offset + bytes > data.size) {
        return {};
    }
    return QImage(data.pixels + offset, pixels, pixels, qsizetype{pixels} * 4,
                  QImage::Format_RGBA8888_Premultiplied);
}

// The sizes the picture tool draws at, as (edge, ratio): most pixels first.
struct DrawnSize {
    int edge;
    int ratio;
};
constexpr DrawnSize kDrawnSizes[] = {
    {kOwnerPictureEdge, 2}, {kAbilityPictureEdge, 1}, {kOwnerPictureEdge, 1}};

// The picture drawn at `size`, read in place; null when there is none, or when what there is
// does not have the pixels of that size.
QImage drawnPicture(const QString& name, DrawnSize size) {
    const int pixels = size.edge * size.ratio;
    const PixelData data =
        uncompressed(QStringLiteral(":/pictures/%1@%2x/").arg(size.edge).arg(size.ratio) + name);
    if (data.size != qsizetype{pixels} * pixels * 4) {
        return {};
    }
    return imageAt(data, 0, pixels);
}

// The ratio of the pixels drawn for a screen: 2 from a ratio of 1.5 on, else 1.
int drawnRatioFor(qreal devicePixelRatio) {
    return devicePixelRatio >= 1.5 ? 2 : 1;
}

} // namespace

QPixmap pictureNamed(const QString& name, int edge, qreal devicePixelRatio) {
    initGuiResources();
    if (edge <= 0) {
        return {};
    }
    const int ratio = drawnRatioFor(devicePixelRatio);
    // Drawn for this view: at the screen's ratio, else at the other.
    for (const int drawnRatio : {ratio, 3 - ratio}) {
        const QImage image = drawnPicture(name, {edge, drawnRatio});
        if (!image.isNull()) {
            QPixmap pixmap = QPixmap::fromImage(image);
            pixmap.setDevicePixelRatio(drawnRatio);
            return pixmap;
        }
    }
    // Only for a name the tool did not draw for this view, such as an ability's name given as an
    // owner in a list edited by hand: the smallest picture with the pixels needed, else the
    // largest, scaled.
    QImage source;
    for (const DrawnSize size : kDrawnSizes) {
        const QImage image = drawnPicture(name, size);
        if (!image.isNull() && (source.isNull() || image.width() >= edge * ratio)) {
            source = image;
        }
    }
    if (source.isNull()) {
        return {};
    }
    QPixmap pixmap = QPixmap::fromImage(
        source.scaled(edge * ratio, edge * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QPixmap thumbnailNamed(const QString& name) {
    initGuiResources();
    const PixelData data = uncompressed(QStringLiteral(":/thumbnails/") + name);
    if (data.size != qsizetype{kThumbnailEdge} * kThumbnailEdge * 4) {
        return {};
    }
    return QPixmap::fromImage(
        imageAt(data, 0, kThumbnailEdge).convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

} // namespace tarnic
