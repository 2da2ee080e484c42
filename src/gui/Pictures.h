#pragma once

#include <QPixmap>
#include <QString>

namespace tarnic {

// Edge, in pixels, of the small copies of the pictures shown beside the ability names in the
// table. The picture tool makes these copies at build time, from the pictures, exactly as
// pictureNamed(name).scaled(edge, edge, Qt::KeepAspectRatio, Qt::SmoothTransformation) would, and
// keeps them ready to show: ":/thumbnails/names" lists the names, one per line (UTF-8), and
// ":/thumbnails/pixels" holds, for each name in that order, edge x edge pixels in RGBA8888
// premultiplied, row by row, uncompressed. The table shows its first rows without decoding a
// single picture.
inline constexpr int kThumbnailEdge = 20;

// The picture of an ability or owner (":/images/<name>.png"), null when there is none. Decoded
// once and then kept in QPixmapCache, as QPixmap(path) would.
QPixmap pictureNamed(const QString& name);

// Its small copy for the table, kThumbnailEdge square; null when there is no picture.
QPixmap thumbnailNamed(const QString& name);

} // namespace tarnic
