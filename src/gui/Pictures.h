#pragma once

#include <QPixmap>
#include <QString>

namespace tarnic {

// Edge, in pixels, of the small copies of the pictures shown beside the ability names in the
// table. The picture tool draws these copies at build time, from the pictures, exactly as
// picture(name).scaled(edge, edge, Qt::KeepAspectRatio, Qt::SmoothTransformation) would.
inline constexpr int kThumbnailEdge = 20;

// The picture of an ability or owner (":/images/<name>.png"), null when there is none. Decoded
// once and then kept in QPixmapCache, as QPixmap(path) would.
QPixmap picture(const QString& name);

// Its small copy for the table (":/thumbnails/<name>.png"), kThumbnailEdge square; null when
// there is no picture.
QPixmap thumbnail(const QString& name);

} // namespace tarnic
