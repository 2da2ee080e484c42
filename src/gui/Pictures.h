#pragma once

#include <QPixmap>
#include <QString>

namespace tarnic {

// Edges, in device-independent pixels, of the window's two picture views: the selected ability's
// picture, and its owner's.
inline constexpr int kAbilityPictureEdge = 64;
inline constexpr int kOwnerPictureEdge = 40;

// Edge, in pixels, of the small copies of the pictures shown beside the ability names in the
// table. The picture tool makes these copies at build time, from each picture as drawn at
// kAbilityPictureEdge, exactly as
// pictureNamed(name, kAbilityPictureEdge).scaled(edge, edge, Qt::KeepAspectRatio,
// Qt::SmoothTransformation) would, and keeps them ready to show: ":/thumbnails/<name>" holds
// edge x edge pixels in RGBA8888 premultiplied, row by row, uncompressed. The table shows its first
// rows without decoding a single picture.
inline constexpr int kThumbnailEdge = 20;

// The picture of an ability or owner, as drawn for a view `edge` pixels square on a screen of
// `devicePixelRatio`; null when there is none. The picture tool draws each picture at the size of
// the view that shows it (an ability's at kAbilityPictureEdge, an owner's and "empty" at
// kOwnerPictureEdge, the latter also at twice as many pixels for screens of ratio 2) and keeps
// each ready to show, as the thumbnails: ":/pictures/<edge>@<ratio>x/<name>" holds its
// (edge x ratio) squared pixels in RGBA8888 premultiplied, row by row, uncompressed. So a view
// shows its picture as it is: nothing is decoded or scaled. A name drawn only at another size is
// scaled to this one.
QPixmap pictureNamed(const QString& name, int edge, qreal devicePixelRatio = 1.0);

// Its small copy for the table, kThumbnailEdge square; null when there is no picture.
QPixmap thumbnailNamed(const QString& name);

} // namespace tarnic
