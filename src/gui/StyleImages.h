#pragma once

#include <QString>

class QStyle;

namespace tarnic {

// Fusion draws the frame of every group box from an image file of Qt's, which QPixmap reads at
// the first paint through QImageReader: that first read loads the list of every image-format
// plugin installed, and then decodes the PNG, all before the window's first frame. The picture
// tool copies that image's pixels at build time (":/style-images/<file>" in RGBA8888
// premultiplied, ":/style-images/<file>.source" the line "<width> <height> <file size> <file
// time>" of the file they were read from), and this puts them in QPixmapCache under the key
// QPixmap gives the file, so that the first paint finds them there.
//
// Only when `style` is Fusion, and only when Qt's file is the one the pixels were read from (same
// size and time); else QPixmap reads the file as it always does.
void prepareStyleImages(const QStyle& style);

// The key under which QPixmap(path) looks for the file's pixmap in QPixmapCache before it reads
// the file.
QString filePixmapCacheKey(const QString& path);

// The file of Qt's that Fusion draws a group box's frame from.
inline QString groupBoxFramePath() {
    return QStringLiteral(":/qt-project.org/styles/commonstyle/images/fusion_groupbox.png");
}

} // namespace tarnic
