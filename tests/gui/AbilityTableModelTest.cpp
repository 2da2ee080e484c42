#include "gui/AbilityTableModel.h"

#include "core/catalogue/Catalogue.h"
#include "core/editor/RecordFactory.h"

#include "gui/GuiResources.h"
#include "gui/Pictures.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace tarnic::test {
namespace {

const QStringList kKeys = {"name", "name parent", "def hotkey", "new hotkey"};
const QStringList kTitles = {"Ability", "Owner", "Default", "New"};

TEST(AbilityTableModel, PassesTheModelTesterOverTheCatalogue) {
    std::vector<AbilityRecord> list = all_data();
    AbilityTableModel model(list);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setColumns(kKeys, kTitles);
    EXPECT_EQ(model.rowCount(), static_cast<int>(list.size()));
    EXPECT_EQ(model.columnCount(), 4);
    for (int r = 0; r < model.rowCount(); ++r) {
        for (int c = 0; c < 4; ++c) {
            const auto it = list[static_cast<std::size_t>(r)].find(kKeys[c].toStdString());
            const QVariant cell = model.index(r, c).data();
            if (it == list[static_cast<std::size_t>(r)].end()) {
                EXPECT_FALSE(cell.isValid());
            } else {
                EXPECT_EQ(cell.toString().toStdString(), it->second);
            }
        }
    }
}

TEST(AbilityTableModel, AbilityNamesComeWithTheirPictureAndKeysAreCentred) {
    std::vector<AbilityRecord> list = all_data();
    list.push_back(makeRecord("Nothing Drawn For This", "Unit", "N"));
    AbilityTableModel model(list);
    model.setColumns(kKeys, kTitles);
    for (int r = 0; r + 1 < model.rowCount(); ++r) {
        const QPixmap picture = model.index(r, 0).data(Qt::DecorationRole).value<QPixmap>();
        EXPECT_FALSE(picture.isNull()) << r;
        EXPECT_EQ(picture.width(), AbilityTableModel::kThumbnail);
        EXPECT_FALSE(model.index(r, 1).data(Qt::DecorationRole).isValid());
    }
    EXPECT_TRUE(
        model.index(model.rowCount() - 1, 0).data(Qt::DecorationRole).value<QPixmap>().isNull());
    EXPECT_EQ(model.index(0, 2).data(Qt::TextAlignmentRole).value<Qt::Alignment>(),
              Qt::AlignCenter);
    EXPECT_EQ(model.index(0, 3).data(Qt::TextAlignmentRole).value<Qt::Alignment>(),
              Qt::AlignCenter);
    EXPECT_FALSE(model.index(0, 0).data(Qt::TextAlignmentRole).isValid());
}

TEST(AbilityTableModel, ThumbnailsAreThePicturesScaledSmoothly) {
    initGuiResources();
    const QStringList files = QDir(QStringLiteral(":/picture-files/%1@1x").arg(kAbilityPictureEdge))
                                  .entryList(QDir::Files);
    ASSERT_GT(files.size(), 100);
    for (const QString& file : files) {
        const QString name = file.chopped(4);
        const QPixmap picture = pictureNamed(name, kAbilityPictureEdge);
        ASSERT_FALSE(picture.isNull()) << file.toStdString();
        const QImage expected =
            picture
                .scaled(AbilityTableModel::kThumbnail, AbilityTableModel::kThumbnail,
                        Qt::KeepAspectRatio, Qt::SmoothTransformation)
                .toImage();
        const QImage shown = thumbnailNamed(name).toImage();
        EXPECT_EQ(shown.format(), expected.format()) << file.toStdString();
        EXPECT_EQ(shown, expected) << file.toStdString();
    }
    EXPECT_TRUE(thumbnailNamed(QStringLiteral("Nothing Drawn For This")).isNull());
}

TEST(AbilityTableModel, HeaderTitlesFollowTheColumns) {
    std::vector<AbilityRecord> list = generalCommands();
    AbilityTableModel model(list);
    model.setColumns(kKeys, kTitles);
    for (int c = 0; c < 4; ++c) {
        EXPECT_EQ(model.headerData(c, Qt::Horizontal).toString(), kTitles[c]);
    }
}

TEST(AbilityTableModel, ColumnOfAKeyNoRecordHasShowsEmptyCells) {
    std::vector<AbilityRecord> list = generalCommands();
    AbilityTableModel model(list);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setColumns({"no such key", "name"}, {"?", "Ability"});
    for (int r = 0; r < model.rowCount(); ++r) {
        EXPECT_FALSE(model.index(r, 0).data().isValid());
        EXPECT_EQ(model.index(r, 1).data().toString().toStdString(),
                  list[static_cast<std::size_t>(r)].at(name_spell));
    }
}

TEST(AbilityTableModel, ReloadFollowsAListThatGrowsShrinksOrChangesInPlace) {
    std::vector<AbilityRecord> list = generalCommands();
    AbilityTableModel model(list);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setColumns(kKeys, kTitles);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);

    list.push_back(makeRecord("Extra", "Unit", "X"));
    model.reload();
    EXPECT_EQ(model.rowCount(), 8);
    EXPECT_EQ(resets.size(), 1);
    EXPECT_EQ(model.index(7, 1).data().toString(), "Unit");

    fillTemplate(list[7], "Q");
    model.reload();
    EXPECT_EQ(resets.size(), 1);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(model.index(7, 3).data().toString(), "Q");

    fillTemplate(list[2], "E");
    model.rowChanged(2);
    EXPECT_EQ(changes.size(), 2);
    EXPECT_EQ(model.index(2, 3).data().toString(), "E");

    list.clear();
    model.reload();
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(resets.size(), 2);
}

TEST(AbilityTableModel, RowCountWaitsForTheReload) {
    std::vector<AbilityRecord> list = generalCommands();
    AbilityTableModel model(list);
    model.setColumns(kKeys, kTitles);
    list.resize(3);
    // Until told, the views keep the shape they know, and vanished rows read as empty.
    EXPECT_EQ(model.rowCount(), 7);
    EXPECT_FALSE(model.index(5, 0).data().isValid());
    model.reload();
    EXPECT_EQ(model.rowCount(), 3);
}

TEST(AbilityTableModel, WithoutColumnsThereIsNothingToShow) {
    std::vector<AbilityRecord> list = generalCommands();
    AbilityTableModel model(list);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setColumns({}, {});
    EXPECT_EQ(model.columnCount(), 0);
    model.reload();
    model.rowChanged(0);
}

} // namespace
} // namespace tarnic::test
