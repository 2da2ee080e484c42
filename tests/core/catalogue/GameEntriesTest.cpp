#include "support/catalogue/AbilityRows.h"
#include "core/catalogue/BlockParsing.h"
#include "core/catalogue/Catalogue.h"
#include "support/catalogue/CatalogueRecords.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace tarnic {
namespace {

using test::AbilityRow;
using test::abilityRows;
using test::gameSections;

const AbilityRecord& recordOf(const AbilityRow& row) {
    return all_data().at(static_cast<std::size_t>(row.number - 1));
}

std::string traceOf(const AbilityRow& row) {
    return "row " + std::to_string(row.number) + " (" + std::string(row.name) + ")";
}

bool joinsTipAndHotkey(const AbilityRecord& record) {
    return &record == &frostarrows_() || &record == &blackarrow_();
}

std::vector<std::string> tipLines(const std::vector<std::string>& lines) {
    std::vector<std::string> tips;
    for (const std::string& line : lines) {
        if (test::isTipKey(test::lineKey(line))) {
            tips.push_back(line);
        }
    }
    return tips;
}

// The section as the catalogue writes it: the game's tip lines and the row's hotkey lines, in
// the game's order, with the few changes the catalogue makes on purpose.
std::vector<std::string> expectedLines(const AbilityRow& row, std::string_view id) {
    const AbilityRecord& record = recordOf(row);
    std::vector<std::string> lines;
    for (const std::string& line : gameSections().at(std::string(id)).lines) {
        const std::string_view key = test::lineKey(line);
        const bool listed =
            std::find(row.hotkeyLines.begin(), row.hotkeyLines.end(), key) != row.hotkeyLines.end();
        if (test::isTipKey(key) || listed) {
            lines.push_back(line);
        } else if (key == "Hotkey" && joinsTipAndHotkey(record)) {
            lines.back() += line;
        }
    }
    if (&record == &robogoblin_() && id == "ANg2") {
        lines.at(0) = "Tip=\"Ro|cffffcc00b|roGoblin\"";
    }
    return lines;
}

TEST(GameEntries, TheKeptCopyIsTheGameFile) {
    std::ifstream in(TARNIC_GAME_KEYS_FILE, std::ios::binary);
    ASSERT_TRUE(in.good()) << TARNIC_GAME_KEYS_FILE;
    const std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    EXPECT_EQ(bytes.size(), 60274u);
    EXPECT_TRUE(bytes.starts_with("\xEF\xBB\xBF"));
    EXPECT_EQ(test::countOf(bytes, "\r\n"), 2697u);
    EXPECT_EQ(gameSections().size(), 445u);
}

TEST(GameEntries, EveryTableSectionIsAGameSection) {
    for (const AbilityRow& row : abilityRows()) {
        SCOPED_TRACE(traceOf(row));
        for (std::string_view id : row.sections) {
            EXPECT_TRUE(gameSections().contains(id)) << id;
        }
    }
}

TEST(GameEntries, TipLinesAreTheGameTipLinesOfTheirSections) {
    ASSERT_EQ(all_data().size(), 160u);
    int checked = 0;
    for (const AbilityRow& row : abilityRows()) {
        const AbilityRecord& record = recordOf(row);
        if (joinsTipAndHotkey(record) || &record == &robogoblin_()) {
            continue; // their tips differ from the game's on purpose, checked below
        }
        SCOPED_TRACE(traceOf(row));
        const test::ParsedBlock block = test::parseBlock(record.at(def));
        ASSERT_EQ(block.sections.size(), row.sections.size());
        for (std::size_t s = 0; s < block.sections.size(); ++s) {
            const std::string& id = block.sections[s].id;
            ASSERT_TRUE(gameSections().contains(id)) << id;
            EXPECT_EQ(tipLines(block.sections[s].lines),
                      tipLines(gameSections().at(std::string(id)).lines))
                << "section " << id;
        }
        ++checked;
    }
    EXPECT_EQ(checked, 157);
}

TEST(GameEntries, SectionsAreTheGameEntriesWithTheListedHotkeyLines) {
    ASSERT_EQ(all_data().size(), 160u);
    for (const AbilityRow& row : abilityRows()) {
        SCOPED_TRACE(traceOf(row));
        const test::ParsedBlock block = test::parseBlock(recordOf(row).at(def));
        ASSERT_EQ(block.sections.size(), row.sections.size());
        for (std::size_t s = 0; s < block.sections.size(); ++s) {
            const std::string& id = block.sections[s].id;
            ASSERT_EQ(id, row.sections[s]);
            ASSERT_TRUE(gameSections().contains(id)) << id;
            EXPECT_EQ(block.sections[s].lines, expectedLines(row, id)) << "section " << id;
        }
    }
}

TEST(GameEntries, SectionCommentsAreTheGameComments) {
    ASSERT_EQ(all_data().size(), 160u);
    for (const AbilityRow& row : abilityRows()) {
        SCOPED_TRACE(traceOf(row));
        const AbilityRecord& record = recordOf(row);
        const test::ParsedBlock block = test::parseBlock(record.at(def));
        for (std::size_t s = 0; s < block.sections.size(); ++s) {
            const auto& section = block.sections[s];
            if (block.opensWithEmptyLine) {
                EXPECT_TRUE(section.comments.empty());
            } else if (&record == &kaboom_()) {
                EXPECT_EQ(section.comments, s == 0 ? std::vector<std::string>{"///Kaboom"}
                                                   : std::vector<std::string>{});
            } else {
                EXPECT_EQ(section.comments,
                          std::vector<std::string>{gameSections().at(section.id).comment});
            }
        }
    }
}

TEST(GameEntries, CatalogueChangesToTheGameTipsAreTheIntendedOnes) {
    const auto& ng2 = gameSections().at("ANg2").lines;
    EXPECT_EQ(ng2.at(0), "Tip=\"Ro|cffffcc00b|ro-Goblin\"");
    for (const char* id : {"ANfa", "ANba"}) {
        SCOPED_TRACE(id);
        const auto& lines = gameSections().at(std::string(id)).lines;
        EXPECT_EQ(lines.at(1), "Untip=\"|cffc3dbffRight-click to activate auto-casting.|r\"");
        EXPECT_TRUE(lines.at(2).starts_with("Hotkey="));
    }
    // The game's Resurrection line already joins tip and hotkey.
    EXPECT_EQ(gameSections().at("AHre").lines.at(0), "Tip=|cffffcc00R|resurrectionHotkey=R");
}

TEST(GameEntries, WaterElementalTipKeepsTheGameTrailingBlank) {
    const auto lines = test::splitLines(water_elemental_().at(def));
    ASSERT_GE(lines.size(), 3u);
    EXPECT_TRUE(lines[2].starts_with("Tip=Summon |cffffcc00W|rater Elemental"));
    EXPECT_TRUE(lines[2].ends_with("|r] "));
    EXPECT_EQ(lines[0], "// Summon Water Elemental");
}

TEST(GameEntries, CommentsCarryNoTrailingBlank) {
    for (const AbilityRecord& record : all_data()) {
        SCOPED_TRACE(record.at(name_spell));
        for (const std::string& line : test::splitLines(record.at(def))) {
            if (line.starts_with("//") || line.starts_with("[")) {
                EXPECT_FALSE(line.ends_with(" ") || line.ends_with("\t")) << line;
            }
        }
    }
    EXPECT_TRUE(spirittouch_().at(def).starts_with("// Spirit Touch\n"));
}

} // namespace
} // namespace tarnic
