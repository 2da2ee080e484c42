#include "gui/StyleImages.h"

#include "gui/GuiResources.h"

#include <QByteArray>
#include <QDateTime>
#include <QFileInfo>
#include <QImage>
#include <QPixmap>
#include <QPixmapCache>
#include <QResource>
#include <QStyle>

#include <cstring>

namespace tarnic {

namespace {

// A number as QPixmap writes it into its cache keys: the value's bytes in memory order, each as
// two hexadecimal digits, the low one first.
template <typename T> QString memoryHex(T value) {
    static constexpr char16_t kDigits[] = u"0123456789abcdef";
    unsigned char bytes[sizeof(T)];
    std::memcpy(bytes, &value, sizeof(T));
    QString text;
    text.reserve(2 * static_cast<qsizetype>(sizeof(T)));
    for (const unsigned char byte : bytes) {
        text += QChar(kDigits[byte & 0xf]);
        text += QChar(kDigits[byte >> 4]);
    }
    return text;
}

struct CopiedImage {
    int width = 0;
    int height = 0;
    qint64 fileSize = -1;
    qint64 fileTime = 0;
};

// "<width> <height> <file size> <file time>"; a width of 0 for anything else.
CopiedImage parseSource(const QByteArray& line) {
    const QList<QByteArray> fields = line.trimmed().split(' ');
    CopiedImage copied;
    if (fields.size() != 4) {
        return copied;
    }
    bool ok[4] = {};
    copied.width = fields[0].toInt(&ok[0]);
    copied.height = fields[1].toInt(&ok[1]);
    copied.fileSize = fields[2].toLongLong(&ok[2]);
    copied.fileTime = fields[3].toLongLong(&ok[3]);
    if (!(ok[0] && ok[1] && ok[2] && ok[3]) || copied.width <= 0 || copied.height <= 0 ||
        copied.width > 1024 || copied.height > 1024) {
        copied.width = 0;
    }
    return copied;
}

void prepare(const QString& qtFile, const QString& copy) {
    const QFileInfo file(qtFile);
    if (!file.exists()) {
        return;
    }
    const CopiedImage copied =
        parseSource(QResource(copy + QStringLiteral(".source")).uncompressedData());
    if (copied.width == 0 || copied.fileSize != file.size() ||
        copied.fileTime != file.lastModified().toSecsSinceEpoch()) {
        return;
    }
    const QResource pixels(copy);
    const qsizetype bytes = qsizetype{copied.width} * copied.height * 4;
    if (!pixels.isValid() || pixels.compressionAlgorithm() != QResource::NoCompression ||
        pixels.size() != bytes) {
        return;
    }
    const QImage image(pixels.data(), copied.width, copied.height, qsizetype{copied.width} * 4,
                       QImage::Format_RGBA8888_Premultiplied);
    const QString key = filePixmapCacheKey(qtFile);
    QPixmap cached;
    if (!QPixmapCache::find(key, &cached)) {
        QPixmapCache::insert(key, QPixmap::fromImage(image));
    }
}

} // namespace

// As QPixmap::load makes it: the path, the file's time and size, and the kind of pixmap.
QString filePixmapCacheKey(const QString& path) {
    const QFileInfo file(path);
    constexpr unsigned int kPixmapType = 0; // QPlatformPixmap::PixmapType
    return QStringLiteral("qt_pixmap") + file.absoluteFilePath() +
           memoryHex(static_cast<unsigned int>(file.lastModified().toSecsSinceEpoch())) +
           memoryHex(static_cast<quint64>(file.size())) + memoryHex(kPixmapType);
}

void prepareStyleImages(const QStyle& style) {
    if (style.name().compare(QLatin1String("fusion"), Qt::CaseInsensitive) != 0) {
        return;
    }
    initGuiResources();
    prepare(groupBoxFramePath(), QStringLiteral(":/style-images/fusion_groupbox"));
}

} // namespace tarnic
