#include "EditorFixture.h"

#include "core/catalogue/Catalogue.h"
#include "core/editor/RecordFactory.h"

namespace tarnic::testing {
namespace {

class HotkeyAssignment : public EditorFixture {
protected:
    int selected() {
        const auto rows = ui().tableView->selectionModel()->selectedRows();
        return rows.size() == 1 ? rows.first().row() : -1;
    }
};

TEST_F(HotkeyAssignment, MoveOnQEndsInHotkeyQ) {
    launch();
    clickRow(0);
    choose(*ui().keysPopup, "Q");
    const AbilityRecord& move = editor().mainDic()[0];
    EXPECT_EQ(move.at(new_hotkey), "Q");
    std::string expected = all_data()[0].at(def);
    ASSERT_EQ(expected.substr(expected.size() - 9), "\nHotkey=M");
    expected.back() = 'Q';
    EXPECT_EQ(move.at(new_edit), expected);
    // The table shows the new key at once.
    EXPECT_EQ(editor().tableModel().index(0, 3).data().toString(), "Q");
}

TEST_F(HotkeyAssignment, EveryMarkerOfEverySectionGetsTheKey) {
    auto list = generalCommands();
    AbilityRecord twoSections = makeRecord("Two Sections", "Unit", "T");
    twoSections[for_edit] = std::string("// A\n[A001]\nTip=a\nHotkey=") + mark +
                            "\nUnhotkey=" + mark + "\n// B\n[A002]\nTip=b\nResearchhotkey=" + mark;
    list.push_back(twoSections);
    storeMainDic(list);
    launch();
    clickRow(7);
    choose(*ui().keysPopup, "K");
    EXPECT_EQ(editor().mainDic()[7].at(new_edit),
              "// A\n[A001]\nTip=a\nHotkey=K\nUnhotkey=K\n// B\n[A002]\nTip=b\nResearchhotkey=K");
}

TEST_F(HotkeyAssignment, TemplateWithoutMarkerIsTakenUnchanged) {
    auto list = generalCommands();
    list[2][for_edit] = "// stop\n[CmdStop]\nTip=Stop\nHotkey=S";
    storeMainDic(list);
    launch();
    clickRow(2);
    choose(*ui().keysPopup, "X");
    EXPECT_EQ(editor().mainDic()[2].at(new_edit), "// stop\n[CmdStop]\nTip=Stop\nHotkey=S");
    EXPECT_EQ(editor().mainDic()[2].at(new_hotkey), "X");
}

TEST_F(HotkeyAssignment, TwoAbilitiesOfOneUnitMayShareALetter) {
    launch();
    const auto& list = all_data();
    std::size_t first = 7;
    while (first + 1 < list.size() &&
           list[first].at(name_parent) != list[first + 1].at(name_parent)) {
        ++first;
    }
    ASSERT_LT(first + 1, list.size());
    clickRow(static_cast<int>(first));
    choose(*ui().keysPopup, "D");
    clickRow(static_cast<int>(first + 1));
    choose(*ui().keysPopup, "D");
    EXPECT_EQ(editor().mainDic()[first].at(new_hotkey), "D");
    EXPECT_EQ(editor().mainDic()[first + 1].at(new_hotkey), "D");
}

TEST_F(HotkeyAssignment, AssignmentChangesOnlyThatRecordAndIsNotStored) {
    launch();
    clickRow(20);
    choose(*ui().keysPopup, "Y");
    for (std::size_t r = 0; r < all_data().size(); ++r) {
        if (r != 20) {
            EXPECT_EQ(editor().mainDic()[r], all_data()[r]);
        }
    }
    EXPECT_EQ(storedMainDic(), all_data());
}

TEST_F(HotkeyAssignment, ResetDropsEveryChoiceAndShowsTheDefault) {
    launch();
    for (int row : {0, 9, 30}) {
        clickRow(row);
        choose(*ui().keysPopup, "Z");
    }
    clickRow(30);
    click(*ui().resetButton);
    EXPECT_EQ(editor().mainDic(), all_data());
    for (const AbilityRecord& record : editor().mainDic()) {
        EXPECT_EQ(record.at(new_edit), "");
    }
    EXPECT_EQ(selected(), 30);
    EXPECT_EQ(ui().keysPopup->currentText().toStdString(), all_data()[30].at(def_hotkey));
    EXPECT_EQ(editor().tableModel().index(9, 3).data().toString(), "");
}

TEST_F(HotkeyAssignment, ResetWithAnotherRowSelectedKeepsThatRow) {
    launch();
    clickRow(5);
    choose(*ui().keysPopup, "B");
    clickRow(44);
    ui().actionReset->trigger();
    EXPECT_EQ(selected(), 44);
    EXPECT_EQ(ui().spellLbl->text().toStdString(), all_data()[44].at(name_spell));
}

TEST_F(HotkeyAssignment, ResetDoesNotWriteTheStore) {
    launch();
    click(*ui().gridButton);
    const auto laidOut = editor().mainDic();
    ASSERT_NE(laidOut, all_data());
    click(*ui().resetButton);
    EXPECT_EQ(storedMainDic(), laidOut);
}

TEST_F(HotkeyAssignment, ResetOfAShorterStoredListBringsBackTheWholeCatalogue) {
    auto list = generalCommands();
    list.push_back(makeRecord("Old", "Unit", "O"));
    storeMainDic(list);
    launch();
    clickRow(3);
    click(*ui().resetButton);
    EXPECT_EQ(editor().tableModel().rowCount(), static_cast<int>(all_data().size()));
    EXPECT_EQ(selected(), 3);
    EXPECT_EQ(ui().spellLbl->text().toStdString(), all_data()[3].at(name_spell));
}

} // namespace
} // namespace tarnic::testing
