#include "gui/GuiResources.h"
#include "gui/Pictures.h"

#include "core/editor/SelectionDetail.h"

#include <QDir>
#include <QImage>
#include <QPixmap>

#include <gtest/gtest.h>

namespace tarnic::test {
namespace {

QImage comparable(const QImage& image) {
    return image.convertToFormat(QImage::Format_ARGB32);
}

// The PNG files the picture tool wrote beside the raw pixels, one folder "<edge>@<ratio>x" for
// each size it draws at.
struct DrawnSize {
    int edge;
    int ratio;
};

TEST(Pictures, EachIsItsDrawingPixelForPixelAtEachSizeItWasDrawnAt) {
    initGuiResources();
    int checked = 0;
    for (const DrawnSize size : {DrawnSize{kAbilityPictureEdge, 1}, DrawnSize{kOwnerPictureEdge, 1},
                                 DrawnSize{kOwnerPictureEdge, 2}}) {
        const QString folder =
            QStringLiteral(":/picture-files/%1@%2x/").arg(size.edge).arg(size.ratio);
        const QStringList files = QDir(folder).entryList(QDir::Files);
        ASSERT_GT(files.size(), size.edge == kOwnerPictureEdge ? 50 : 100) << folder.toStdString();
        for (const QString& file : files) {
            const QString name = file.chopped(4);
            const QImage drawn(folder + file);
            ASSERT_EQ(drawn.size(), QSize(size.edge * size.ratio, size.edge * size.ratio));
            const QPixmap picture = pictureNamed(name, size.edge, size.ratio);
            ASSERT_FALSE(picture.isNull()) << file.toStdString();
            EXPECT_EQ(picture.devicePixelRatio(), size.ratio) << file.toStdString();
            EXPECT_EQ(picture.deviceIndependentSize().toSize(), QSize(size.edge, size.edge));
            EXPECT_EQ(comparable(picture.toImage()), comparable(drawn)) << file.toStdString();
            ++checked;
        }
    }
    EXPECT_GT(checked, 250);
}

TEST(Pictures, TheEmptyPictureIsDrawnForTheOwnerView) {
    const QPixmap empty = pictureNamed(QString::fromLatin1(kEmptyPicture), kOwnerPictureEdge);
    ASSERT_FALSE(empty.isNull());
    EXPECT_EQ(empty.size(), QSize(kOwnerPictureEdge, kOwnerPictureEdge));
    EXPECT_EQ(comparable(empty.toImage()),
              comparable(QImage(
                  QStringLiteral(":/picture-files/%1@1x/empty.png").arg(kOwnerPictureEdge))));
}

TEST(Pictures, ANameWithoutAPictureGivesNone) {
    for (const int edge : {kAbilityPictureEdge, kOwnerPictureEdge}) {
        EXPECT_TRUE(pictureNamed(QStringLiteral("Nothing Drawn For This"), edge).isNull());
        EXPECT_TRUE(pictureNamed(QString(), edge).isNull());
    }
    EXPECT_TRUE(pictureNamed(QStringLiteral("Holy Light"), 0).isNull());
}

TEST(Pictures, APictureDrawnForTheOtherViewIsScaledToThisOne) {
    // An ability's name given as an owner (a list edited by hand), and the other way round.
    const QPixmap ability = pictureNamed(QStringLiteral("Holy Light"), kOwnerPictureEdge);
    ASSERT_FALSE(ability.isNull());
    EXPECT_EQ(ability.size(), QSize(kOwnerPictureEdge, kOwnerPictureEdge));
    const QPixmap owner = pictureNamed(QStringLiteral("Peasant"), kAbilityPictureEdge);
    ASSERT_FALSE(owner.isNull());
    EXPECT_EQ(owner.size(), QSize(kAbilityPictureEdge, kAbilityPictureEdge));
    const QPixmap sharp = pictureNamed(QStringLiteral("Peasant"), kAbilityPictureEdge, 2.0);
    EXPECT_EQ(sharp.size(), QSize(2 * kAbilityPictureEdge, 2 * kAbilityPictureEdge));
    EXPECT_EQ(sharp.devicePixelRatio(), 2.0);
}

} // namespace
} // namespace tarnic::test
