// Draws the pictures of the hotkey editor: an emblem for every ability name and every owner name
// of the catalogue, and the "empty" picture, all drawn here from the name alone. Writes the PNGs
// and a Qt resource file that serves each one as :/images/<name>.png, and the small copies the
// ability table shows in the form gui/Pictures.h describes (:/thumbnails/names and
// :/thumbnails/pixels).
//
// Usage: tarnic-imagegen <output folder>

#include "core/catalogue/Catalogue.h"
#include "gui/Pictures.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QRadialGradient>
#include <QSaveFile>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <map>
#include <numbers>
#include <utility>

namespace {

constexpr int kSize = 64;

enum class Kind { Ability, Owner, Empty };

std::uint32_t fnv1a(const QString& text) {
    std::uint32_t hash = 2166136261u;
    for (const char byte : text.toUtf8()) {
        hash ^= static_cast<unsigned char>(byte);
        hash *= 16777619u;
    }
    return hash;
}

// Up to two letters: the first letters of the capitalised words ("Call to Arms" gives "CA").
QString initialsOf(const QString& name) {
    QString letters;
    for (const QString& word : name.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (word.front().isUpper() || word.front().isDigit()) {
            letters += word.front();
        }
        if (letters.size() == 2) {
            break;
        }
    }
    if (letters.isEmpty() && !name.isEmpty()) {
        letters = name.front().toUpper();
    }
    return letters;
}

QPainterPath star(QPointF centre, double outer, double inner, int points, double turn) {
    QPainterPath path;
    for (int i = 0; i < points * 2; ++i) {
        const double radius = i % 2 == 0 ? outer : inner;
        const double angle = turn + i * std::numbers::pi / points;
        const QPointF p(centre.x() + radius * std::sin(angle),
                        centre.y() - radius * std::cos(angle));
        if (i == 0) {
            path.moveTo(p);
        } else {
            path.lineTo(p);
        }
    }
    path.closeSubpath();
    return path;
}

// A motif behind the letters, one of several, chosen by the name's hash.
void drawMotif(QPainter& painter, std::uint32_t hash, const QPointF centre) {
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 60));
    const double turn = ((hash >> 8) % 360) * std::numbers::pi / 180.0;
    switch ((hash >> 4) % 5) {
    case 0: // star
        painter.drawPath(star(centre, 27, 11, 5 + static_cast<int>((hash >> 12) % 4), turn));
        break;
    case 1: // rings
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(255, 255, 255, 70), 3));
        painter.drawEllipse(centre, 24, 24);
        painter.drawEllipse(centre, 15, 15);
        break;
    case 2: // rays
        painter.setPen(QPen(QColor(255, 255, 255, 60), 4, Qt::SolidLine, Qt::RoundCap));
        for (int i = 0; i < 8; ++i) {
            const double a = turn + i * std::numbers::pi / 4;
            painter.drawLine(QPointF(centre.x() + 12 * std::cos(a), centre.y() + 12 * std::sin(a)),
                             QPointF(centre.x() + 27 * std::cos(a), centre.y() + 27 * std::sin(a)));
        }
        break;
    case 3: // diamond
        painter.drawPath(star(centre, 28, 20, 2, turn));
        break;
    default: // chevrons
        painter.setPen(
            QPen(QColor(255, 255, 255, 60), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        for (int i = 0; i < 3; ++i) {
            const double y = centre.y() + 14 - i * 12;
            painter.drawPolyline(QPolygonF({QPointF(centre.x() - 18, y + 8), QPointF(centre.x(), y),
                                            QPointF(centre.x() + 18, y + 8)}));
        }
        break;
    }
    painter.restore();
}

void drawInitials(QPainter& painter, const QRectF& area, const QString& letters, int pixelSize) {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setBold(true);
    font.setPixelSize(pixelSize);
    QPainterPath text;
    const QFontMetricsF metrics(font);
    const QRectF bounds = metrics.tightBoundingRect(letters);
    text.addText(area.center().x() - bounds.center().x(), area.center().y() - bounds.center().y(),
                 font, letters);
    painter.setPen(QPen(QColor(0, 0, 0, 170), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(text);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 250, 235));
    painter.drawPath(text);
}

QImage drawEmblem(const QString& name, Kind kind) {
    QImage image(kSize, kSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame(2, 2, kSize - 4, kSize - 4);
    const QPointF centre = frame.center();

    if (kind == Kind::Empty) {
        painter.setPen(QPen(QColor(140, 140, 140, 160), 2, Qt::DashLine));
        painter.setBrush(QColor(128, 128, 128, 30));
        painter.drawEllipse(frame.adjusted(2, 2, -2, -2));
        return image;
    }

    const std::uint32_t hash = fnv1a(name);
    const int hue = static_cast<int>(hash % 360);
    const QColor light = QColor::fromHsv(hue, 150, 235);
    const QColor dark = QColor::fromHsv(hue, 220, 95);

    QPainterPath outline;
    if (kind == Kind::Ability) {
        outline.addRoundedRect(frame, 10, 10);
    } else {
        outline.addEllipse(frame);
    }
    QRadialGradient fill(centre.x() - 8, centre.y() - 10, kSize * 0.75);
    fill.setColorAt(0, light);
    fill.setColorAt(1, dark);
    painter.fillPath(outline, fill);

    painter.setClipPath(outline);
    drawMotif(painter, hash, centre);
    if (kind == Kind::Owner) {
        // A banner across the lower part sets owners apart from abilities.
        painter.fillRect(QRectF(0, kSize * 0.66, kSize, kSize * 0.2), QColor(0, 0, 0, 60));
    }
    painter.setClipping(false);

    const QColor rim = kind == Kind::Ability ? QColor(222, 184, 92) : QColor(205, 210, 220);
    painter.setPen(QPen(rim, 2.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(outline);

    const QString letters = initialsOf(name);
    drawInitials(painter, frame, letters, letters.size() > 1 ? 24 : 30);
    return image;
}

QString xmlEscaped(QString text) {
    return text.replace(QLatin1Char('&'), QStringLiteral("&amp;"))
        .replace(QLatin1Char('<'), QStringLiteral("&lt;"))
        .replace(QLatin1Char('>'), QStringLiteral("&gt;"))
        .replace(QLatin1Char('"'), QStringLiteral("&quot;"));
}

// The table's small copy of a picture file, made as the table used to make it when it showed the
// row: the file read into a pixmap, then scaled smoothly. Drawing it here spares the program a
// decoding of the full picture for every row it shows first.
QImage thumbnailOf(const QString& pictureFile) {
    QImageReader reader(pictureFile, "png");
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImage(reader.read())
        .scaled(tarnic::kThumbnailEdge, tarnic::kThumbnailEdge, Qt::KeepAspectRatio,
                Qt::SmoothTransformation)
        .toImage();
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: tarnic-imagegen <output folder>\n");
        return 2;
    }
    const QDir out(QString::fromLocal8Bit(argv[1]));
    if (!out.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "tarnic-imagegen: cannot create %s\n", argv[1]);
        return 1;
    }

    // An owner's name may also be an ability's name; the owner's picture wins.
    std::map<QString, Kind> pictures;
    for (const auto& record : tarnic::all_data()) {
        pictures.try_emplace(QString::fromStdString(record.at(tarnic::name_spell)), Kind::Ability);
    }
    for (const auto& record : tarnic::all_data()) {
        if (const auto it = record.find(tarnic::name_parent); it != record.end()) {
            pictures[QString::fromStdString(it->second)] = Kind::Owner;
        }
    }
    pictures[QStringLiteral("empty")] = Kind::Empty;

    QString pictureEntries;
    QByteArray thumbnailNames;
    QByteArray thumbnailPixels;
    int n = 0;
    for (const auto& [name, kind] : pictures) {
        const QString file = QStringLiteral("picture%1.png").arg(n++, 3, 10, QLatin1Char('0'));
        if (!drawEmblem(name, kind).save(out.filePath(file), "PNG")) {
            std::fprintf(stderr, "tarnic-imagegen: cannot write %s\n", qPrintable(file));
            return 1;
        }
        const QImage thumbnail =
            thumbnailOf(out.filePath(file)).convertToFormat(QImage::Format_RGBA8888_Premultiplied);
        if (thumbnail.width() != tarnic::kThumbnailEdge ||
            thumbnail.height() != tarnic::kThumbnailEdge) {
            std::fprintf(stderr, "tarnic-imagegen: %s is not square\n", qPrintable(file));
            return 1;
        }
        for (int y = 0; y < thumbnail.height(); ++y) {
            thumbnailPixels.append(reinterpret_cast<const char*>(thumbnail.constScanLine(y)),
                                   static_cast<qsizetype>(thumbnail.width()) * 4);
        }
        thumbnailNames += name.toUtf8() + '\n';
        pictureEntries += QStringLiteral("        <file alias=\"%1.png\">%2</file>\n")
                              .arg(xmlEscaped(name), file);
    }
    for (const auto& [file, bytes] :
         {std::pair{QStringLiteral("thumbnails.names"), thumbnailNames},
          std::pair{QStringLiteral("thumbnails.pixels"), thumbnailPixels}}) {
        QSaveFile data(out.filePath(file));
        if (!data.open(QIODevice::WriteOnly) || data.write(bytes) != bytes.size() ||
            !data.commit()) {
            std::fprintf(stderr, "tarnic-imagegen: cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    // The pixels stay uncompressed, so that the program reads them in place.
    const QString qrc =
        QStringLiteral("<!DOCTYPE RCC>\n<RCC version=\"1.0\">\n"
                       "    <qresource prefix=\"/images\">\n") +
        pictureEntries +
        QStringLiteral("    </qresource>\n"
                       "    <qresource prefix=\"/thumbnails\">\n"
                       "        <file alias=\"names\">thumbnails.names</file>\n"
                       "        <file alias=\"pixels\" compression-algorithm=\"none\">"
                       "thumbnails.pixels</file>\n"
                       "    </qresource>\n</RCC>\n");

    QSaveFile qrcFile(out.filePath(QStringLiteral("images.qrc")));
    if (!qrcFile.open(QIODevice::WriteOnly) || qrcFile.write(qrc.toUtf8()) < 0 ||
        !qrcFile.commit()) {
        std::fprintf(stderr, "tarnic-imagegen: cannot write images.qrc\n");
        return 1;
    }
    return 0;
}
