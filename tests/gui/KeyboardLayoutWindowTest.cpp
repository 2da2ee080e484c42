// The window names keys as the player's keyboard layout prints them, and "Grid follows my
// keyboard" lays the grid out on the layout's letters.
#include "EditorFixture.h"

#include "platform/null/NullPlatform.h"
#include "store/ProgramOptions.h"
#include "support/GridGolden.h"
#include "support/LayoutKeysyms.h"

#include <QSignalSpy>

namespace tarnic::test {
namespace {

class KeyboardLayoutWindow : public EditorFixture {
protected:
    // Starts on the fakes with this layout known from the start.
    void launchWith(std::map<int, std::uint32_t> keysyms) {
        Platform platform = makeFakePlatform();
        fakeParts(platform).keyLabels->setKeysyms(std::move(keysyms));
        launch(std::move(platform));
    }
    QCheckBox& gridFollowsBox() {
        auto* box = window().findChild<QCheckBox*>(QStringLiteral("gridFollowsBox"));
        EXPECT_NE(box, nullptr);
        return *box;
    }
    QStringList popupTitles() {
        QStringList titles;
        for (int i = 0; i < ui().inventPopup->count(); ++i) {
            titles.append(ui().inventPopup->itemText(i));
        }
        return titles;
    }
    QByteArray exported() {
        QSignalSpy finished(&exchange(), &FileExchangeController::exportFinished);
        const QString path = tempPath("CustomKeys.txt");
        exchange().fileDialog().setNextAnswer(path);
        click(*ui().exportButton);
        EXPECT_TRUE(!finished.isEmpty() || finished.wait(5000));
        return bytesOf(path);
    }
    bool storedGridOption() {
        QSettings file(programOptionsPath(), QSettings::IniFormat);
        return ProgramOptions(file).gridFollowsKeyboard();
    }
};

TEST_F(KeyboardLayoutWindow, WithoutALayoutThePopUpKeepsItsUsTitles) {
    launch();
    const QStringList titles = popupTitles();
    ASSERT_EQ(titles.size(), 49);
    EXPECT_EQ(titles[0], "Select");
    EXPECT_EQ(titles[16], ":");
    EXPECT_EQ(titles[23], "Q");
    EXPECT_EQ(titles[48], "M");
}

TEST_F(KeyboardLayoutWindow, NullPlatformKeepsTheUsNames) {
    storeInventoryModel(1, {1, 56, 6});
    launch(makeNullPlatform());
    EXPECT_EQ(ui().invent1->text(), "Slot 1  Shift+Z");
    EXPECT_EQ(popupTitles()[23], "Q");
}

TEST_F(KeyboardLayoutWindow, AzertyNamesThePopUpAndTheSlotsAsTheKeysPrint) {
    storeInventoryModel(1, {1, 56, 6});
    storeInventoryModel(3, {3, 0, 12});
    launchWith(frenchKeysyms());
    // Same keys in the same order, named as AZERTY prints them.
    const QStringList titles = popupTitles();
    ASSERT_EQ(titles.size(), 49);
    EXPECT_EQ(titles.mid(1, 10),
              QStringList({"&", "\u00C9", "\"", "'", "(", "-", "\u00C8", "_", "\u00C7", "\u00C0"}));
    EXPECT_EQ(titles.mid(23, 4), QStringList({"A", "Z", "E", "R"}));
    EXPECT_EQ(titles.mid(42, 7), QStringList({"W", "X", "C", "V", "B", "N", ","}));
    EXPECT_EQ(ui().invent1->text(), "Slot 1  Shift+W");
    EXPECT_EQ(ui().invent3->text(), "Slot 3  A");
    // Choosing a slot shows its key by the same name.
    click(*ui().invent1);
    EXPECT_EQ(ui().inventPopup->currentText(), "W");
    EXPECT_TRUE(ui().isShiftBox->isChecked());
}

TEST_F(KeyboardLayoutWindow, AKeyChosenByItsLayoutNameIsStoredByPosition) {
    launchWith(frenchKeysyms());
    click(*ui().invent2);
    choose(*ui().inventPopup, "A"); // the US Q position
    EXPECT_EQ(storedInventoryModel(2), (SlotBinding{2, 0, 12}));
    choose(*ui().inventPopup, "M"); // the US semicolon position
    EXPECT_EQ(storedInventoryModel(2), (SlotBinding{2, 0, 41}));
    choose(*ui().inventPopup, "\u00C9"); // the US 2 position
    EXPECT_EQ(storedInventoryModel(2), (SlotBinding{2, 0, 19}));
    EXPECT_EQ(ui().invent2->text(), "Slot 2  \u00C9");
}

TEST_F(KeyboardLayoutWindow, ANewLayoutRenamesTheKeysAndChangesNoBinding) {
    storeInventoryModel(1, {1, 56, 6});
    launch();
    EXPECT_EQ(ui().invent1->text(), "Slot 1  Shift+Z");
    click(*ui().invent1);
    EXPECT_EQ(ui().inventPopup->currentText(), "Z");

    fakes().keyLabels->switchTo(frenchKeysyms());
    EXPECT_EQ(ui().invent1->text(), "Slot 1  Shift+W");
    EXPECT_EQ(ui().inventPopup->currentText(), "W");
    EXPECT_EQ(ui().inventPopup->currentData().toInt(), 6);

    fakes().keyLabels->switchTo(germanKeysyms());
    EXPECT_EQ(ui().invent1->text(), "Slot 1  Shift+Y");
    EXPECT_EQ(popupTitles()[16], "\u00D6");

    fakes().keyLabels->switchTo(usKeysyms());
    EXPECT_EQ(ui().invent1->text(), "Slot 1  Shift+Z");
    EXPECT_EQ(popupTitles()[16], ";");

    EXPECT_EQ(storedInventoryModel(1), (SlotBinding{1, 56, 6}));
    EXPECT_EQ(app().inventoryBindings().of(1), (SlotBinding{1, 56, 6}));
}

TEST_F(KeyboardLayoutWindow, GridOptionStartsOffAndTheGridIsTheUsualOne) {
    launchWith(frenchKeysyms());
    EXPECT_FALSE(gridFollowsBox().isChecked());
    EXPECT_EQ(gridFollowsBox().text(), "Grid follows my &keyboard");
    click(*ui().gridButton);
    EXPECT_EQ(exported(), golden("export-grid-layout.txt"));
}

TEST_F(KeyboardLayoutWindow, GridFollowsAzerty) {
    launchWith(frenchKeysyms());
    click(gridFollowsBox());
    EXPECT_TRUE(storedGridOption());
    click(*ui().gridButton);
    EXPECT_EQ(exported().toStdString(), goldenGridExportWith({"A", "Z", "E", "R"}));
}

TEST_F(KeyboardLayoutWindow, GridFollowsQwertzAndUsWithTheUsualLetters) {
    for (const auto& keysyms : {germanKeysyms(), usKeysyms()}) {
        launchWith(keysyms);
        if (!gridFollowsBox().isChecked()) {
            click(gridFollowsBox());
        }
        click(*ui().gridButton);
        EXPECT_EQ(exported(), golden("export-grid-layout.txt"));
        shutDown();
    }
}

TEST_F(KeyboardLayoutWindow, TheOptionChangesOnlyTheNextGridLayout) {
    launchWith(frenchKeysyms());
    click(*ui().gridButton);
    const std::vector<AbilityRecord> laidOut = editor().mainDic();
    click(gridFollowsBox());
    EXPECT_EQ(editor().mainDic(), laidOut);
    EXPECT_EQ(storedMainDic(), laidOut);
    // The layout changing does not lay the grid out again either.
    fakes().keyLabels->switchTo(germanKeysyms());
    EXPECT_EQ(editor().mainDic(), laidOut);
    fakes().keyLabels->switchTo(frenchKeysyms());
    click(*ui().gridButton);
    EXPECT_NE(editor().mainDic(), laidOut);
    EXPECT_EQ(storedMainDic(), editor().mainDic());
}

TEST_F(KeyboardLayoutWindow, TheOptionIsKeptForTheNextStart) {
    launch();
    click(gridFollowsBox());
    shutDown();
    EXPECT_TRUE(storedGridOption());
    launchWith(frenchKeysyms());
    EXPECT_TRUE(gridFollowsBox().isChecked());
    click(gridFollowsBox());
    EXPECT_FALSE(storedGridOption());
    shutDown();
    launch();
    EXPECT_FALSE(gridFollowsBox().isChecked());
}

TEST_F(KeyboardLayoutWindow, ADamagedOptionValueIsOff) {
    {
        QSettings file(programOptionsPath(), QSettings::IniFormat);
        file.setValue(QStringLiteral("GridLayout/followsKeyboard"), QStringLiteral("yes please"));
    }
    launchWith(frenchKeysyms());
    EXPECT_FALSE(gridFollowsBox().isChecked());
    click(*ui().gridButton);
    EXPECT_EQ(exported(), golden("export-grid-layout.txt"));
}

} // namespace
} // namespace tarnic::test
