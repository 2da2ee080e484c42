#include "support/catalogue/CatalogueRecords.h"

#include <gtest/gtest.h>

#include <string_view>

namespace tarnic {
namespace {

// The blocks exactly as the catalogue must hold them, written here independently.
constexpr std::string_view moveDefault = R"(//move
[CmdMove]
Tip=|cffffcc00M|rove
Hotkey=M)";

constexpr std::string_view moveForEdit = R"(//move
[CmdMove]
Tip=|cffffcc00M|rove
Hotkey=✔︎)";

constexpr std::string_view defendDefault = R"(// Defend
[Adef]
Tip=|cffffcc00D|refend
Untip=Stop |cffffcc00D|refend
Hotkey=D
Unhotkey=D)";

constexpr std::string_view flameStrikeDefault = R"(// Flame Strike
[AHfs]
Tip=|cffffcc00F|rlame Strike - [|cffffcc00Level 1|r],|cffffcc00F|rlame Strike - [|cffffcc00Level 2|r],|cffffcc00F|rlame Strike - [|cffffcc00Level 3|r]
Hotkey=F
Researchtip="Learn |cffffcc00F|rlame Strike - [|cffffcc00Level %d|r]"
Researchhotkey=F)";

constexpr std::string_view repairDefault = R"(
[Arep]
Tip=|cffffcc00R|repair
Untip="|cffc3dbffRight-click to activate auto-casting.|r"
Hotkey=R
Unhotkey=R
[Arst]
Tip=|cffffcc00R|restore
Untip="|cffc3dbffRight-click to activate auto-casting."
Hotkey=R
Unhotkey=R)";

constexpr std::string_view pocketFactoryDefault = R"(// Pocket Factory
[ANsy]
Tip=Pocket |cffffcc00F|ractory - [|cffffcc00Level 1|r],Pocket |cffffcc00F|ractory - [|cffffcc00Level 2|r],Pocket |cffffcc00F|ractory - [|cffffcc00Level 3|r]
Hotkey=F
Researchtip="Learn Pocket |cffffcc00F|ractory - [|cffffcc00Level %d|r]"
Researchhotkey=F
// Pocket Factory
[ANs1]
Tip=Pocket |cffffcc00F|ractory - [|cffffcc00Level 1|r],Pocket |cffffcc00F|ractory - [|cffffcc00Level 2|r],Pocket |cffffcc00F|ractory - [|cffffcc00Level 3|r]
Hotkey=F
Researchtip="Learn Pocket |cffffcc00F|ractory - [|cffffcc00Level %d|r]"
Researchhotkey=F
// Pocket Factory
[ANs2]
Tip=Pocket |cffffcc00F|ractory - [|cffffcc00Level 1|r],Pocket |cffffcc00F|ractory - [|cffffcc00Level 2|r],Pocket |cffffcc00F|ractory - [|cffffcc00Level 3|r]
Hotkey=F
Researchtip="Learn Pocket |cffffcc00F|ractory - [|cffffcc00Level %d|r]"
Researchhotkey=F
// Pocket Factory
[ANs3]
Tip=Pocket |cffffcc00F|ractory - [|cffffcc00Level 1|r],Pocket |cffffcc00F|ractory - [|cffffcc00Level 2|r],Pocket |cffffcc00F|ractory - [|cffffcc00Level 3|r]
Hotkey=F
Researchtip="Learn Pocket |cffffcc00F|ractory - [|cffffcc00Level %d|r]"
Researchhotkey=F)";

constexpr std::string_view kaboomDefault = R"(///Kaboom
[Asdg]
Tip=Ka|cffffcc00b|room!
Hotkey=B
Unhotkey=B
[Asd2]
Tip=Ka|cffffcc00b|room!
Hotkey=B
Unhotkey=B
[Asd3]
Tip=Ka|cffffcc00b|room!
Hotkey=B
Unhotkey=B)";

constexpr std::string_view kaboomForEdit = R"(//Kaboom
[Asdg]
Tip=Ka|cffffcc00b|room!
Hotkey=✔︎
Unhotkey=✔︎
[Asd2]
Tip=Ka|cffffcc00b|room!
Hotkey=✔︎
Unhotkey=✔︎
[Asd3]
Tip=Ka|cffffcc00b|room!
Hotkey=✔︎
Unhotkey=✔︎)";

constexpr std::string_view roboGoblinForEdit = R"(// Robo-Goblin
[ANg1]
Tip="Ro|cffffcc00b|ro-Goblin"
Hotkey=✔︎
Untip="Revert to |cffffcc00T|rinker Form"
Unhotkey=T
Researchtip="Learn Ro|cffffcc00b|ro-Goblin"
Researchhotkey=✔︎
// Robo-Goblin
[ANg2]
Tip="Ro|cffffcc00b|roGoblin"
Hotkey=✔︎
Untip="Revert to |cffffcc00T|rinker Form"
Unhotkey=T
Researchtip="Learn Ro|cffffcc00b|ro-Goblin"
Researchhotkey=✔︎
// Robo-Goblin
[ANg3]
Tip="Ro|cffffcc00b|ro-Goblin"
Hotkey=✔︎
Untip="Revert to |cffffcc00T|rinker Form"
Unhotkey=T
Researchtip="Learn Ro|cffffcc00b|ro-Goblin"
Researchhotkey=✔︎
// Robo-Goblin
[ANrg]
Tip="Ro|cffffcc00b|ro-Goblin"
Hotkey=✔︎
Untip="Revert to |cffffcc00T|rinker Form"
Unhotkey=T
Researchtip="Learn Ro|cffffcc00b|ro-Goblin"
Researchhotkey=✔︎)";

constexpr std::string_view frostArrowsJoinedLine =
    R"(Untip="|cffc3dbffRight-click to activate auto-casting.|r"Hotkey=R)";

TEST(PrintedBlocks, Move) {
    EXPECT_EQ(move_().at(def), moveDefault);
    EXPECT_EQ(move_().at(for_edit), moveForEdit);
    // The expected text itself must carry the whole two-code-point marker.
    EXPECT_TRUE(moveForEdit.ends_with(mark));
}

TEST(PrintedBlocks, Defend) {
    EXPECT_EQ(defend_().at(def), defendDefault);
}

TEST(PrintedBlocks, FlameStrike) {
    EXPECT_EQ(flame_strike_().at(def), flameStrikeDefault);
}

TEST(PrintedBlocks, RepairOpensWithAnEmptyLine) {
    EXPECT_EQ(repair_().at(def), repairDefault);
}

TEST(PrintedBlocks, PocketFactoryRepeatsItsComment) {
    EXPECT_EQ(pocket_factory_().at(def), pocketFactoryDefault);
}

TEST(PrintedBlocks, KaboomDefaultAndTemplate) {
    EXPECT_EQ(kaboom_().at(def), kaboomDefault);
    EXPECT_EQ(kaboom_().at(for_edit), kaboomForEdit);
}

TEST(PrintedBlocks, RoboGoblinTemplate) {
    EXPECT_EQ(robogoblin_().at(for_edit), roboGoblinForEdit);
}

TEST(PrintedBlocks, FrostArrowsJoinsTipAndHotkey) {
    const std::string& text = frostarrows_().at(def);
    EXPECT_NE(text.find(std::string("\n") + std::string(frostArrowsJoinedLine) + "\n"),
              std::string::npos);
}

} // namespace
} // namespace tarnic
