// Draws the pictures of the hotkey editor: an emblem for every ability name and every owner name
// of the catalogue, and the "empty" picture, all drawn here from the name alone, each at the size
// of the view that shows it. Writes them, and the small copies the ability table shows, as raw
// pixels in the form gui/Pictures.h describes (:/pictures/... and :/thumbnails/...), with the Qt
// resource file that serves them (pictures.qrc). The same pictures are written as PNGs too, with a
// resource file of their own (picture-files.qrc, :/picture-files/<edge>@<ratio>x/<name>.png), for
// the tests to compare the raw pixels with and for a person to look at. It also copies the pixels
// of the image of Qt's that Fusion draws group boxes from (gui/StyleImages.h), as
// :/style-images/... in the same resource file.
//
// Usage: tarnic-imagegen <output folder>

#include "core/catalogue/Catalogue.h"
#include "gui/Pictures.h"
#include "gui/StyleImages.h"

#include <QDir>
#include <QFile>
#include <QApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QImage>
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
#include <vector>

namespace {

// The emblems are laid out on a square of this many units, and scaled to the pixels they are
// drawn at.
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

QImage drawEmblem(const QString& name, Kind kind, int pixels) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(static_cast<double>(pixels) / kSize, static_cast<double>(pixels) / kSize);
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

// The pixels as the program keeps them: RGBA8888 premultiplied, row by row, which reads the
// same whatever the byte order of the machine.
QByteArray rawPixels(const QImage& image) {
    const QImage rgba = image.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    QByteArray bytes;
    bytes.reserve(static_cast<qsizetype>(rgba.width()) * rgba.height() * 4);
    for (int y = 0; y < rgba.height(); ++y) {
        bytes.append(reinterpret_cast<const char*>(rgba.constScanLine(y)),
                     static_cast<qsizetype>(rgba.width()) * 4);
    }
    return bytes;
}

// The table's small copy of a picture, made as the table would make it from the picture the
// program keeps: that picture in a pixmap, scaled smoothly.
QImage thumbnailOf(const QImage& picture) {
    const QImage kept = picture.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    return QPixmap::fromImage(kept)
        .scaled(tarnic::kThumbnailEdge, tarnic::kThumbnailEdge, Qt::KeepAspectRatio,
                Qt::SmoothTransformation)
        .toImage();
}

// One picture as the program keeps it: for a view `edge` pixels square on a screen of device
// pixel ratio `ratio`.
struct Version {
    int edge;
    int ratio;
};

// An ability's picture is shown in the ability view; an owner's (and "empty") in the owner view,
// and there on screens of ratio 1 and 2 alike. A name that is both keeps the owner's emblem in
// both views.
std::vector<Version> versionsOf(bool isAbility, Kind kind) {
    std::vector<Version> versions;
    if (isAbility) {
        versions.push_back({tarnic::kAbilityPictureEdge, 1});
    }
    if (kind != Kind::Ability) {
        versions.push_back({tarnic::kOwnerPictureEdge, 1});
        versions.push_back({tarnic::kOwnerPictureEdge, 2});
    }
    return versions;
}

bool writeFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

// The qrc entry for raw pixels: they stay uncompressed, so that the program reads them in place.
QString rawEntry(const QString& alias, const QString& file) {
    return QStringLiteral("        <file alias=\"%1\" compression-algorithm=\"none\">%2</file>\n")
        .arg(alias, file);
}

// Copies the pixels of a style image of Qt's as gui/StyleImages.h describes; the qrc entries for
// them, or an empty text when this Qt has no such image (the program then reads Qt's file).
QString copyStyleImage(const QDir& out, const QString& qtFile, const QString& name) {
    const QFileInfo file(qtFile);
    const QImage image(qtFile);
    if (!file.exists() || image.isNull()) {
        return {};
    }
    const QByteArray source = QByteArray::number(image.width()) + ' ' +
                              QByteArray::number(image.height()) + ' ' +
                              QByteArray::number(file.size()) + ' ' +
                              QByteArray::number(file.lastModified().toSecsSinceEpoch()) + '\n';
    const QString pixelsFile = name + QStringLiteral(".rgba");
    const QString sourceFile = name + QStringLiteral(".source");
    if (!writeFile(out.filePath(pixelsFile), rawPixels(image)) ||
        !writeFile(out.filePath(sourceFile), source)) {
        return {};
    }
    return rawEntry(name, pixelsFile) +
           QStringLiteral("        <file alias=\"%1.source\">%2</file>\n").arg(name, sourceFile);
}

} // namespace

int main(int argc, char** argv) {
    // QApplication: Qt's own style images are resources of its widgets library.
    QApplication app(argc, argv);
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
    std::map<QString, std::pair<Kind, bool>> pictures; // name: kind, and whether an ability
    for (const auto& record : tarnic::all_data()) {
        pictures[QString::fromStdString(record.at(tarnic::name_spell))] = {Kind::Ability, true};
    }
    for (const auto& record : tarnic::all_data()) {
        if (const auto it = record.find(tarnic::name_parent); it != record.end()) {
            pictures[QString::fromStdString(it->second)].first = Kind::Owner;
        }
    }
    pictures[QStringLiteral("empty")].first = Kind::Empty;

    QString pictureEntries;
    QString thumbnailEntries;
    QString pngEntries;
    int n = 0;
    for (const auto& [name, what] : pictures) {
        const auto [kind, isAbility] = what;
        for (const Version version : versionsOf(isAbility, kind)) {
            const QImage picture = drawEmblem(name, kind, version.edge * version.ratio);
            const QString file = QStringLiteral("picture%1.png").arg(n++, 3, 10, QLatin1Char('0'));
            if (!picture.save(out.filePath(file), "PNG")) {
                std::fprintf(stderr, "tarnic-imagegen: cannot write %s\n", qPrintable(file));
                return 1;
            }
            const QString rawFile = file.chopped(4) + QStringLiteral(".rgba");
            if (!writeFile(out.filePath(rawFile), rawPixels(picture))) {
                std::fprintf(stderr, "tarnic-imagegen: cannot write %s\n", qPrintable(rawFile));
                return 1;
            }
            const QString alias = QStringLiteral("%1@%2x/%3")
                                      .arg(QString::number(version.edge),
                                           QString::number(version.ratio), xmlEscaped(name));
            pictureEntries += rawEntry(alias, rawFile);
            pngEntries +=
                QStringLiteral("        <file alias=\"%1.png\">%2</file>\n").arg(alias, file);
        }
        // Every name has its small copy, made from the picture at the ability view's size.
        const QImage thumbnail = thumbnailOf(drawEmblem(name, kind, tarnic::kAbilityPictureEdge));
        if (thumbnail.width() != tarnic::kThumbnailEdge ||
            thumbnail.height() != tarnic::kThumbnailEdge) {
            std::fprintf(stderr, "tarnic-imagegen: the copy of %s is not square\n",
                         qPrintable(name));
            return 1;
        }
        const QString thumbnailFile =
            QStringLiteral("thumbnail%1.rgba").arg(n++, 3, 10, QLatin1Char('0'));
        if (!writeFile(out.filePath(thumbnailFile), rawPixels(thumbnail))) {
            std::fprintf(stderr, "tarnic-imagegen: cannot write %s\n", qPrintable(thumbnailFile));
            return 1;
        }
        thumbnailEntries += rawEntry(xmlEscaped(name), thumbnailFile);
    }
    const QString styleEntries =
        copyStyleImage(out, tarnic::groupBoxFramePath(), QStringLiteral("fusion_groupbox"));
    const QString qrc = QStringLiteral("<!DOCTYPE RCC>\n<RCC version=\"1.0\">\n"
                                       "    <qresource prefix=\"/pictures\">\n") +
                        pictureEntries +
                        QStringLiteral("    </qresource>\n"
                                       "    <qresource prefix=\"/thumbnails\">\n") +
                        thumbnailEntries +
                        QStringLiteral("    </qresource>\n"
                                       "    <qresource prefix=\"/style-images\">\n") +
                        styleEntries + QStringLiteral("    </qresource>\n</RCC>\n");
    const QString filesQrc = QStringLiteral("<!DOCTYPE RCC>\n<RCC version=\"1.0\">\n"
                                            "    <qresource prefix=\"/picture-files\">\n") +
                             pngEntries + QStringLiteral("    </qresource>\n</RCC>\n");
    for (const auto& [file, text] : {std::pair{QStringLiteral("picture-files.qrc"), filesQrc},
                                     std::pair{QStringLiteral("pictures.qrc"), qrc}}) {
        if (!writeFile(out.filePath(file), text.toUtf8())) {
            std::fprintf(stderr, "tarnic-imagegen: cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
