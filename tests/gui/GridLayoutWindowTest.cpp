#include "EditorFixture.h"

#include "core/catalogue/Catalogue.h"
#include "core/editor/RecordFactory.h"

namespace tarnic::testing {
namespace {

class GridLayoutWindow : public EditorFixture {
protected:
    void launchWithOwners(const std::vector<std::optional<std::string>>& owners) {
        auto list = generalCommands();
        int n = 0;
        for (const auto& owner : owners) {
            list.push_back(makeRecord("Ability " + std::to_string(n++), owner, "T"));
        }
        storeMainDic(list);
        launch();
    }
    // The "New" column from row 7 on, as the table shows it.
    std::vector<std::string> shownKeysFrom7() {
        std::vector<std::string> keys;
        for (int r = 7; r < editor().tableModel().rowCount(); ++r) {
            keys.push_back(editor().tableModel().index(r, 3).data().toString().toStdString());
        }
        return keys;
    }
    std::size_t rowOf(const std::string& name, const std::string& owner) {
        for (std::size_t r = 0; r < editor().mainDic().size(); ++r) {
            const auto& record = editor().mainDic()[r];
            if (record.at(name_spell) == name && record.count(name_parent) != 0 &&
                record.at(name_parent) == owner) {
                return r;
            }
        }
        ADD_FAILURE() << name << " (" << owner << ") is not in the list";
        return 0;
    }
};

using Keys = std::vector<std::string>;

TEST_F(GridLayoutWindow, SevenRecordsStayAsTheyWereButAreStored) {
    storeMainDic(generalCommands());
    launch();
    clickRow(2);
    choose(*ui().keysPopup, "X");
    const auto before = editor().mainDic();
    ASSERT_NE(storedMainDic(), before);
    click(*ui().gridButton);
    EXPECT_EQ(editor().mainDic(), before);
    EXPECT_EQ(storedMainDic(), before);
    EXPECT_EQ(ui().keysPopup->currentText(), "X");
}

TEST_F(GridLayoutWindow, FiveAbilitiesOfOneOwnerGetQWERQ) {
    launchWithOwners({"Warden", "Warden", "Warden", "Warden", "Warden"});
    click(*ui().gridButton);
    EXPECT_EQ(shownKeysFrom7(), (Keys{"Q", "W", "E", "R", "Q"}));
}

TEST_F(GridLayoutWindow, ASecondRunOfAnOwnerStartsAgainAtQ) {
    launchWithOwners({"A", "A", "B", "A"});
    click(*ui().gridButton);
    EXPECT_EQ(shownKeysFrom7(), (Keys{"Q", "W", "Q", "Q"}));
}

TEST_F(GridLayoutWindow, EmptyOwnerAtIndexSevenGetsW) {
    launchWithOwners({"", "B"});
    ui().actionGrid->trigger();
    EXPECT_EQ(shownKeysFrom7(), (Keys{"W", "Q"}));
}

TEST_F(GridLayoutWindow, HandSetKeyOnMoveSurvivesAndOnHealIsReplaced) {
    launch();
    clickRow(0);
    choose(*ui().keysPopup, "Z");
    const std::size_t heal = rowOf("Heal", "Priest");
    clickRow(static_cast<int>(heal));
    choose(*ui().keysPopup, "Z");
    click(*ui().gridButton);
    EXPECT_EQ(editor().mainDic()[0].at(new_hotkey), "Z");
    EXPECT_EQ(editor().mainDic()[heal].at(new_hotkey), "Q");
    // The selected row is Heal: the pop-up shows its laid-out letter.
    EXPECT_EQ(ui().keysPopup->currentText(), "Q");
    clickRow(0);
    EXPECT_EQ(ui().keysPopup->currentText(), "Z");
    clickRow(1);
    EXPECT_EQ(ui().keysPopup->currentText().toStdString(), all_data()[1].at(def_hotkey));
}

TEST_F(GridLayoutWindow, PopupFollowsTheLayoutForTheSelectedRow) {
    launch();
    clickRow(4);
    click(*ui().gridButton);
    EXPECT_EQ(ui().keysPopup->currentText().toStdString(), all_data()[4].at(def_hotkey));
    const std::size_t cloud = rowOf("Cloud Of Fog", "DragonHawk");
    clickRow(static_cast<int>(cloud));
    click(*ui().gridButton);
    EXPECT_EQ(ui().keysPopup->currentText(), "W");
}

TEST_F(GridLayoutWindow, CatalogueGetsTheLettersOfItsOwners) {
    launch();
    click(*ui().gridButton);
    const std::vector<std::tuple<std::string, std::string, std::string>> expected = {
        {"Call to Arms", "Peasant", "Q"},
        {"Defend", "Footman", "Q"},
        {"Aerial Shackles", "DragonHawk", "Q"},
        {"Cloud Of Fog", "DragonHawk", "W"},
        {"Heal", "Priest", "Q"},
        {"Dispel Magic", "Priest", "W"},
        {"Inner Fire", "Priest", "E"},
        {"Flame Strike", "Blood Mag", "Q"},
        {"Banish", "Blood Mag", "W"},
        {"Siphon Mana", "Blood Mag", "E"},
        {"Phoenix", "Blood Mag", "R"},
        {"Fan of Knives", "Warden", "Q"},
        {"Shadow Strike", "Warden", "W"},
        {"Blink", "Warden", "E"},
        {"Vengeance", "Warden", "R"},
        {"Spirit of Vengeance", "Vengeance", "Q"}};
    for (const auto& [name, owner, key] : expected) {
        EXPECT_EQ(editor().mainDic()[rowOf(name, owner)].at(new_hotkey), key) << name;
    }
}

TEST_F(GridLayoutWindow, StoredListReadsBackAsTheLaidOutList) {
    launch();
    click(*ui().gridButton);
    EXPECT_EQ(storedMainDic(), editor().mainDic());
    const auto laidOut = editor().mainDic();
    launch();
    EXPECT_EQ(editor().mainDic(), laidOut);
}

TEST_F(GridLayoutWindow, RunningTwiceGivesTheSameList) {
    launch();
    click(*ui().gridButton);
    const auto once = editor().mainDic();
    click(*ui().gridButton);
    EXPECT_EQ(editor().mainDic(), once);
}

} // namespace
} // namespace tarnic::testing
