#include "EditorFixture.h"

#include "core/catalogue/Catalogue.h"
#include "core/editor/GridLayout.h"
#include "core/editor/RecordFactory.h"
#include "gui/AbilityTableView.h"
#include "gui/Pictures.h"

#include <QHeaderView>
#include <QTest>

namespace tarnic::test {
namespace {

// The picture drawn for a view `edge` pixels square, as its PNG file, to compare pixel by pixel
// whatever the format the program keeps it in.
QImage pictureFile(const QString& name, int edge) {
    return QImage(QStringLiteral(":/picture-files/%1@1x/%2.png").arg(edge).arg(name))
        .convertToFormat(QImage::Format_ARGB32);
}

QImage shown(const QLabel& label) {
    return label.pixmap().toImage().convertToFormat(QImage::Format_ARGB32);
}

// The table as the window has it, with QTableView's own measure of a column (every row through
// the delegate) at hand to compare with.
class MeasuredTable : public AbilityTableView {
public:
    int measured(int column) const { return sizeHintForColumn(column); }
    int everyRow(int column) const { return QTableView::sizeHintForColumn(column); }
};

class AbilityTable : public EditorFixture {
protected:
    struct Display {
        QString spell, parent, defLine, popup;
        QImage spellPicture, parentPicture;
        bool operator==(const Display&) const = default;
    };
    Display display() {
        return {ui().spellLbl->text(),         ui().parentLbl->text(),  ui().defHotkey->text(),
                ui().keysPopup->currentText(), shown(*ui().spellImage), shown(*ui().parentImage)};
    }
    int selected() {
        const auto rows = ui().tableView->selectionModel()->selectedRows();
        return rows.size() == 1 ? rows.first().row() : -1;
    }
};

TEST_F(AbilityTable, HoldsTheCatalogueWithMoveFirst) {
    launch();
    ASSERT_FALSE(all_data().empty());
    EXPECT_EQ(editor().tableModel().rowCount(), static_cast<int>(all_data().size()));
    EXPECT_EQ(editor().tableModel().index(0, 0).data().toString(), "Move");
    EXPECT_EQ(ui().spellLbl->text(), "Move");
}

TEST_F(AbilityTable, ColumnsAreTheAbilityOwnerAndKeys) {
    launch();
    const auto& model = editor().tableModel();
    ASSERT_EQ(model.columnCount(), 4);
    const QStringList titles = {"Ability", "Owner", "Default", "New"};
    for (int c = 0; c < 4; ++c) {
        EXPECT_EQ(model.headerData(c, Qt::Horizontal).toString(), titles[c]);
    }
    EXPECT_EQ(model.columnIdentifiers(),
              QStringList({"name", "name parent", "def hotkey", "new hotkey"}));
}

TEST_F(AbilityTable, EveryRowShowsItsRecordInTheDetailArea) {
    launch();
    const auto& list = all_data();
    for (std::size_t r = 0; r < list.size(); ++r) {
        clickRow(static_cast<int>(r));
        ASSERT_EQ(selected(), static_cast<int>(r));
        const AbilityRecord& record = list[r];
        const QString name = QString::fromStdString(record.at(name_spell));
        const auto owner = record.find(name_parent);
        EXPECT_EQ(ui().spellLbl->text(), name);
        EXPECT_EQ(shown(*ui().spellImage), pictureFile(name, kAbilityPictureEdge))
            << name.toStdString();
        EXPECT_FALSE(ui().spellImage->pixmap().isNull()) << name.toStdString();
        if (owner == record.end()) {
            EXPECT_EQ(ui().parentLbl->text(), "");
            EXPECT_EQ(shown(*ui().parentImage), pictureFile("empty", kOwnerPictureEdge));
        } else {
            const QString ownerName = QString::fromStdString(owner->second);
            EXPECT_EQ(ui().parentLbl->text(), ownerName);
            EXPECT_EQ(shown(*ui().parentImage), pictureFile(ownerName, kOwnerPictureEdge));
            EXPECT_FALSE(ui().parentImage->pixmap().isNull()) << owner->second;
        }
        EXPECT_EQ(ui().defHotkey->text().toStdString(),
                  "Default hotkey < " + record.at(def_hotkey) + " >");
        EXPECT_EQ(ui().keysPopup->currentText().toStdString(), record.at(def_hotkey));
    }
}

TEST_F(AbilityTable, MoveShowsTheEmptyOwnerPictureAndPeasantAbilityShowsThePeasant) {
    launch();
    clickRow(0);
    EXPECT_EQ(ui().parentLbl->text(), "");
    EXPECT_EQ(shown(*ui().parentImage), pictureFile("empty", kOwnerPictureEdge));
    EXPECT_FALSE(pictureFile("empty", kOwnerPictureEdge).isNull());
    const auto& list = all_data();
    const auto peasant = std::find_if(list.begin(), list.end(), [](const AbilityRecord& r) {
        return r.count(name_parent) != 0 && r.at(name_parent) == "Peasant";
    });
    ASSERT_NE(peasant, list.end());
    clickRow(static_cast<int>(peasant - list.begin()));
    EXPECT_EQ(ui().parentLbl->text(), "Peasant");
    EXPECT_EQ(shown(*ui().parentImage), pictureFile("Peasant", kOwnerPictureEdge));
}

TEST_F(AbilityTable, DetailPicturesAreShownAtTheSizeTheyWereDrawn) {
    launch();
    ASSERT_EQ(ui().spellImage->minimumSize(), QSize(kAbilityPictureEdge, kAbilityPictureEdge));
    ASSERT_EQ(ui().spellImage->maximumSize(), ui().spellImage->minimumSize());
    ASSERT_EQ(ui().parentImage->minimumSize(), QSize(kOwnerPictureEdge, kOwnerPictureEdge));
    ASSERT_EQ(ui().parentImage->maximumSize(), ui().parentImage->minimumSize());
    const auto& list = all_data();
    // Move (no owner: "empty"), an ability of the Peasant, and the abilities named like an owner.
    std::vector<int> rows = {0};
    for (std::size_t r = 0; r < list.size(); ++r) {
        const std::string& name = list[r].at(name_spell);
        if (name == "Call to Arms" || name == "Summon Bear" || name == "Destroyer") {
            rows.push_back(static_cast<int>(r));
        }
    }
    ASSERT_EQ(rows.size(), 4u);
    for (const int row : rows) {
        clickRow(row);
        for (QLabel* view : {ui().spellImage, ui().parentImage}) {
            const QPixmap shownPixmap = view->pixmap();
            ASSERT_FALSE(shownPixmap.isNull()) << row;
            EXPECT_EQ(shownPixmap.deviceIndependentSize().toSize(), view->size()) << row;
            EXPECT_EQ(shownPixmap.devicePixelRatio(), view->devicePixelRatio()) << row;
            // The view shows the pixmap as it is: nothing to scale when it paints.
            EXPECT_FALSE(view->hasScaledContents());
        }
    }
    // On a screen of device pixel ratio 2 the owner's picture has the pixels of that screen.
    const QPixmap sharp = pictureNamed(QStringLiteral("Peasant"), kOwnerPictureEdge, 2.0);
    EXPECT_EQ(sharp.size(), QSize(2 * kOwnerPictureEdge, 2 * kOwnerPictureEdge));
    EXPECT_EQ(sharp.deviceIndependentSize().toSize(), ui().parentImage->size());
}

TEST_F(AbilityTable, PopupShowsTheChosenKeyElseTheDefault) {
    launch();
    clickRow(9);
    choose(*ui().keysPopup, "Q");
    clickRow(10);
    EXPECT_EQ(ui().keysPopup->currentText().toStdString(), all_data()[10].at(def_hotkey));
    clickRow(9);
    EXPECT_EQ(ui().keysPopup->currentText(), "Q");
}

TEST_F(AbilityTable, DefaultHotkeyLineIsExactlyTheKeyInBrackets) {
    auto list = generalCommands();
    list.push_back(makeRecord("Thunder", "Giant", "T"));
    storeMainDic(list);
    launch();
    clickRow(7);
    EXPECT_EQ(ui().defHotkey->text(), QString("Default hotkey < ") + "T" + " >");
}

TEST_F(AbilityTable, DetailTextIsShownAsWrittenNeverAsMarkup) {
    // "< B >" would read as a bold tag if the labels took their text for rich text, and the
    // key would vanish from the line.
    auto list = generalCommands();
    list.push_back(makeRecord("<i>Blizzard</i>", "<b>ArchMage</b>", "B"));
    storeMainDic(list);
    launch();
    clickRow(7);
    for (QLabel* label : {ui().defHotkey, ui().spellLbl, ui().parentLbl}) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
    }
    EXPECT_EQ(ui().defHotkey->text(), "Default hotkey < B >");
    EXPECT_EQ(ui().spellLbl->text(), "<i>Blizzard</i>");
    EXPECT_EQ(ui().parentLbl->text(), "<b>ArchMage</b>");
}

TEST_F(AbilityTable, MissingPicturesClearTheViews) {
    auto list = generalCommands();
    list.push_back(makeRecord("Nothing Drawn For This", std::string(), "N"));
    storeMainDic(list);
    launch();
    ASSERT_FALSE(ui().spellImage->pixmap().isNull());
    ASSERT_FALSE(ui().parentImage->pixmap().isNull());
    clickRow(7);
    EXPECT_TRUE(ui().spellImage->pixmap().isNull());
    EXPECT_TRUE(ui().parentImage->pixmap().isNull());
    EXPECT_EQ(ui().parentLbl->text(), "");
    EXPECT_EQ(ui().spellLbl->text(), "Nothing Drawn For This");
}

TEST_F(AbilityTable, HandlerRunAgainForOneChangeGivesTheSameDisplay) {
    launch();
    clickRow(12);
    const Display once = display();
    editor().tableViewSelectionDidChange();
    editor().tableViewSelectionDidChange();
    EXPECT_EQ(display(), once);
    EXPECT_EQ(once.spell.toStdString(), all_data()[12].at(name_spell));
}

TEST_F(AbilityTable, KeyboardMovesTheSelectionAndTheDetailFollows) {
    launch();
    clickRow(4);
    ui().tableView->setFocus();
    QTest::keyClick(ui().tableView, Qt::Key_Down);
    EXPECT_EQ(selected(), 5);
    EXPECT_EQ(ui().spellLbl->text().toStdString(), all_data()[5].at(name_spell));
}

TEST_F(AbilityTable, TheSelectionCannotBeEmptied) {
    launch();
    clickRow(6);
    QTableView& table = *ui().tableView;
    const QModelIndex index = table.model()->index(6, 0);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::ControlModifier,
                      table.visualRect(index).center());
    EXPECT_EQ(selected(), 6);
    QTest::keyClick(&table, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(selected(), 6);
}

TEST_F(AbilityTable, ACellOfAKeyTheRecordLacksIsEmpty) {
    launch();
    // Move has no owner.
    EXPECT_FALSE(editor().tableModel().index(0, 1).data().isValid());
    EXPECT_EQ(editor().tableModel().index(0, 2).data().toString(), "M");
}

TEST_F(AbilityTable, ColumnsFitTheirContentsAsEveryRowMeasuredWould) {
    launch();
    std::vector<AbilityRecord> list = all_data();
    list.push_back(
        makeRecord("A Rather Long Ability Name Of Its Own", "An Owner Nobody Else Has", "Y"));
    allQWER(list);
    list[3][new_hotkey] = "Escape";
    AbilityTableModel model(list);
    model.setColumns(editor().tableModel().columnIdentifiers(),
                     {"Ability", "Owner", "Default", "New"});
    MeasuredTable table;
    table.setModel(&model);
    table.resize(900, 600);
    for (bool shown : {false, true}) {
        if (shown) {
            table.show();
            ASSERT_TRUE(QTest::qWaitForWindowExposed(&table));
        }
        for (int column = 0; column < model.columnCount(); ++column) {
            EXPECT_GT(table.measured(column), 0) << column;
            EXPECT_EQ(table.measured(column), table.everyRow(column)) << column;
        }
    }
    auto expectSameWidths = [&](const char* after) {
        for (int column = 0; column < model.columnCount(); ++column) {
            EXPECT_EQ(table.measured(column), table.everyRow(column)) << after << ", " << column;
        }
    };
    table.setRowHidden(static_cast<int>(list.size()) - 1, true);
    expectSameWidths("a hidden row");
    // Widths measured before are kept; a change of text, font or icon size measures anew.
    list[5][new_hotkey] = "Shift+Num 7";
    model.reload();
    expectSameWidths("a new text");
    // A column's width is kept between layout passes, until its cells change.
    list[6][name_parent] = "An owner whose name is longer than any other owner's";
    const int owners = table.measured(1);
    model.rowChanged(6);
    EXPECT_GT(table.measured(1), owners);
    expectSameWidths("one row's new text");
    list.pop_back();
    model.reload();
    expectSameWidths("one row fewer");
    QFont larger = table.font();
    larger.setPointSize(larger.pointSize() + 6);
    const int before = table.measured(1);
    table.setFont(larger);
    EXPECT_GT(table.measured(1), before);
    expectSameWidths("a larger font");
    table.setIconSize(QSize(40, 40));
    expectSameWidths("larger pictures");
}

using AbilityTableDeathTest = AbilityTable;

TEST_F(AbilityTableDeathTest, NoSelectedRowIsAnIndexOutOfRange) {
    storeMainDic({});
    launch();
    EXPECT_EQ(editor().tableModel().rowCount(), 0);
    EXPECT_DEATH(editor().tableViewSelectionDidChange(), "Index out of range");
}

TEST_F(AbilityTableDeathTest, AnEmptyListEndsTheProgramWhenAHotkeyIsChosen) {
    // A store whose list was emptied by hand: the table is empty, no row is selected, and a key
    // chosen in the Hotkey pop-up has no ability to go to.
    storeMainDic({});
    launch();
    ASSERT_EQ(editor().tableModel().rowCount(), 0);
    EXPECT_DEATH(choose(*ui().keysPopup, "K"), "Fatal error: Index out of range: row -1 of 0");
}

TEST_F(AbilityTableDeathTest, RecordWithoutNameEndsTheProgramWhenSelected) {
    auto list = generalCommands();
    list[1].erase(name_spell);
    storeMainDic(list);
    launch();
    EXPECT_DEATH(clickRow(1), "Unexpectedly found nil while unwrapping an Optional value");
}

} // namespace
} // namespace tarnic::test
