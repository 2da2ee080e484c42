#include "EditorFixture.h"

#include "core/catalogue/Catalogue.h"
#include "support/catalogue/CatalogueRecords.h"

#include <QIcon>
#include <QSignalSpy>

namespace tarnic::test {
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
            static_cast<int>(vc().tableModel().columnIdentifiers().indexOf("new hotkey"));
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

TEST_F(ClashMarks, TheGameKeysClashTwiceOnAttackGround) {
    EXPECT_EQ(count(), "2 clashes");
    EXPECT_TRUE(ui().clashLbl->isVisible());
    EXPECT_EQ(markedRows(), 3);
    EXPECT_TRUE(markedRow(rowOf(attack_ground_())));
    EXPECT_EQ(tip(rowOf(attack_ground_())), "G is also the key of Purge and Gold Mine.");
    EXPECT_EQ(tip(rowOf(purge_())), "G is also the key of Attack Ground.");
    EXPECT_EQ(tip(rowOf(gold_mine_())), "G is also the key of Attack Ground.");
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
    EXPECT_EQ(count(), "3 clashes");
    EXPECT_TRUE(markedRow(rowOf(holy_light_())));
    EXPECT_EQ(tip(rowOf(divine_shield_())), "D is also the key of Holy Light.");
}

TEST_F(ClashMarks, MovingAKeyAwayClearsTheMark) {
    setKey(rowOf(purge_()), "U");
    EXPECT_EQ(count(), "1 clash");
    EXPECT_FALSE(markedRow(rowOf(purge_())));
    EXPECT_EQ(tip(rowOf(attack_ground_())), "G is also the key of Gold Mine.");
}

TEST_F(ClashMarks, GridLayoutLeavesNoClash) {
    click(*ui().gridButton);
    EXPECT_EQ(count(), "No clashes");
    EXPECT_EQ(markedRows(), 0);
}

TEST_F(ClashMarks, ResetBringsBackTheGameKeysClashes) {
    click(*ui().gridButton);
    click(*ui().resetButton);
    EXPECT_EQ(count(), "2 clashes");
    EXPECT_EQ(markedRows(), 3);
}

TEST_F(ClashMarks, ImportMarksTheClashesOfTheFile) {
    click(*ui().gridButton);
    ASSERT_EQ(count(), "No clashes");
    QSignalSpy finished(&vc(), &ViewController::importFinished);
    vc().fileDialog().setNextAnswer(
        QStringLiteral(TARNIC_SOURCE_DIR "/tests/data/game-default-CustomKeys.txt"));
    ui().actionImport->trigger();
    ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    EXPECT_EQ(count(), "2 clashes");
}

TEST_F(ClashMarks, AGeneralCommandOnAnOwnersKeyClashesWithIt) {
    // Move onto Holy Light's T: every Paladin would have both.
    setKey(0, "T");
    EXPECT_TRUE(markedRow(0));
    EXPECT_TRUE(tip(0).contains("Holy Light"));
}

} // namespace
} // namespace tarnic::test
