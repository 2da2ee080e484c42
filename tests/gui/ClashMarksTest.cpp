#include "EditorFixture.h"

#include "core/catalogue/Catalogue.h"
#include "core/catalogue/CatalogueRecords.h"

#include <QIcon>
#include <QSignalSpy>

namespace tarnic::testing {
namespace {

int rowOf(const AbilityRecord& record) {
    const auto& list = all_data();
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (&list[i] == &record) {
            return static_cast<int>(i);
        }
    }
    ADD_FAILURE() << "not in the catalogue";
    return 0;
}

class ClashMarks : public EditorFixture {
protected:
    void SetUp() override {
        EditorFixture::SetUp();
        launch();
    }
    // The "New" column's cell of a row.
    QModelIndex newCell(int row) {
        const int column =
            static_cast<int>(editor().tableModel().columnIdentifiers().indexOf("new hotkey"));
        EXPECT_GE(column, 0);
        return ui().tableView->model()->index(row, column);
    }
    bool markedRow(int row) {
        return !newCell(row).data(Qt::DecorationRole).value<QIcon>().isNull();
    }
    QString tip(int row) { return newCell(row).data(Qt::ToolTipRole).toString(); }
    QString count() { return ui().clashLbl->text(); }
    int markedRows() {
        int rows = 0;
        for (int r = 0; r < ui().tableView->model()->rowCount(); ++r) {
            rows += markedRow(r) ? 1 : 0;
        }
        return rows;
    }
    void setKey(int row, const QString& key) {
        clickRow(row);
        choose(*ui().keysPopup, key);
    }
};

TEST_F(ClashMarks, TheGameKeysAloneHaveNoClash) {
    // Attack Ground, Purge and Gold Mine share the game's G: that is no clash of the player's.
    EXPECT_EQ(count(), "No clashes");
    EXPECT_TRUE(ui().clashLbl->isVisible());
    EXPECT_EQ(markedRows(), 0);
    EXPECT_EQ(tip(rowOf(attack_ground_())), "");
    EXPECT_EQ(tip(rowOf(purge_())), "");
}

TEST_F(ClashMarks, TheGamesOwnLetterPickedByHandClashes) {
    // Purge picked on G, its default letter: the player's key now meets Attack Ground's.
    setKey(rowOf(purge_()), "G");
    EXPECT_EQ(count(), "1 clash");
    EXPECT_EQ(markedRows(), 2);
    EXPECT_EQ(tip(rowOf(attack_ground_())), "G is also the key of Purge.");
    EXPECT_EQ(tip(rowOf(purge_())), "G is also the key of Attack Ground.");
    EXPECT_FALSE(markedRow(rowOf(gold_mine_())));
}

TEST_F(ClashMarks, ARowWithoutAClashHasNoMarkAndNoTip) {
    const int row = rowOf(holy_light_());
    EXPECT_FALSE(markedRow(row));
    EXPECT_EQ(tip(row), "");
    // The other columns carry no mark either.
    EXPECT_FALSE(ui().tableView->model()
                     ->index(rowOf(attack_ground_()), 2)
                     .data(Qt::DecorationRole)
                     .isValid());
}

TEST_F(ClashMarks, AKeySetByHandMarksTheNewClashAtOnce) {
    // Holy Light (T) onto Divine Shield's key, D.
    setKey(rowOf(holy_light_()), "D");
    EXPECT_EQ(count(), "1 clash");
    EXPECT_EQ(markedRows(), 2);
    EXPECT_TRUE(markedRow(rowOf(holy_light_())));
    EXPECT_EQ(tip(rowOf(divine_shield_())), "D is also the key of Holy Light.");
}

TEST_F(ClashMarks, MovingAKeyAwayClearsTheMark) {
    setKey(rowOf(holy_light_()), "D");
    ASSERT_EQ(count(), "1 clash");
    setKey(rowOf(holy_light_()), "U");
    EXPECT_EQ(count(), "No clashes");
    EXPECT_FALSE(markedRow(rowOf(holy_light_())));
    EXPECT_FALSE(markedRow(rowOf(divine_shield_())));
    EXPECT_EQ(tip(rowOf(divine_shield_())), "");
}

TEST_F(ClashMarks, GridLayoutLeavesNoClash) {
    click(*ui().gridButton);
    EXPECT_EQ(count(), "No clashes");
    EXPECT_EQ(markedRows(), 0);
}

TEST_F(ClashMarks, ResetClearsThePlayersClashes) {
    setKey(rowOf(holy_light_()), "D");
    ASSERT_EQ(count(), "1 clash");
    click(*ui().resetButton);
    EXPECT_EQ(count(), "No clashes");
    EXPECT_EQ(markedRows(), 0);
}

TEST_F(ClashMarks, ImportMarksTheClashesOfTheFile) {
    // A file that puts Holy Light on Divine Shield's D: a key the import chose.
    const QString file = tempPath(QStringLiteral("CustomKeys.txt"));
    writeFile(file, "[AHhb]\r\nHotkey=D\r\n");
    QSignalSpy finished(&exchange(), &FileExchangeController::importFinished);
    exchange().fileDialog().setNextAnswer(file);
    ui().actionImport->trigger();
    ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    EXPECT_EQ(count(), "1 clash");
    EXPECT_EQ(tip(rowOf(divine_shield_())), "D is also the key of Holy Light.");
}

TEST_F(ClashMarks, ImportingTheGamesOwnFileLeavesNoClash) {
    setKey(rowOf(holy_light_()), "D");
    ASSERT_EQ(count(), "1 clash");
    QSignalSpy finished(&exchange(), &FileExchangeController::importFinished);
    exchange().fileDialog().setNextAnswer(
        QStringLiteral(TARNIC_SOURCE_DIR "/tests/data/game-default-CustomKeys.txt"));
    ui().actionImport->trigger();
    ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    EXPECT_EQ(count(), "No clashes");
    EXPECT_EQ(markedRows(), 0);
}

TEST_F(ClashMarks, AGeneralCommandOnAnOwnersKeyClashesWithIt) {
    // Move onto Holy Light's T: every Paladin would have both.
    setKey(0, "T");
    EXPECT_TRUE(markedRow(0));
    EXPECT_TRUE(tip(0).contains("Holy Light"));
}

} // namespace
} // namespace tarnic::testing
