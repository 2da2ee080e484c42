// Import against the real catalogue, the shipped template and the files in tests/data.
#include "core/import/CustomKeysImport.h"

#include "CatalogueFiles.h"
#include "core/catalogue/Catalogue.h"
#include "support/catalogue/CatalogueRecords.h"
#include "core/editor/GridLayout.h"
#include "core/editor/KeyAssignment.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>

namespace tarnic {
namespace {

using test::exported;
using test::testData;

// Export, start again from the catalogue, import the file, export again.
std::string roundTrip(const std::string& file) {
    std::vector<AbilityRecord> fresh = all_data();
    importCustomKeys(fresh, file);
    return exported(fresh);
}

std::size_t indexOf(const AbilityRecord& record) {
    const auto& list = all_data();
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (&list[i] == &record) {
            return i;
        }
    }
    return list.size();
}

TEST(CatalogueImport, TheGamesOwnFileLeavesTheUntouchedListAsItIs) {
    std::vector<AbilityRecord> list = all_data();
    const ImportReport report = importCustomKeys(list, testData("game-default-CustomKeys.txt"));
    EXPECT_EQ(list, all_data());
    EXPECT_EQ(exported(list), testData("export-untouched.txt"));
    EXPECT_EQ(report.read, 160u);
    EXPECT_EQ(report.changed, 0u);
    EXPECT_EQ(report.notInFile, 0u);
    EXPECT_EQ(report.partial, 0u);
    EXPECT_EQ(report.mixed, 0u);
    EXPECT_EQ(report.fileSections, 445u);
    // The catalogue writes 181 of the game's sections; the rest are units and abilities the
    // editor does not offer.
    EXPECT_EQ(report.unknownSections, 445u - 181u);
}

TEST(CatalogueImport, TheGamesOwnFileClearsHandSetKeys) {
    std::vector<AbilityRecord> list = all_data();
    allQWER(list);
    const ImportReport report = importCustomKeys(list, testData("game-default-CustomKeys.txt"));
    EXPECT_EQ(list, all_data());
    EXPECT_EQ(report.changed, all_data().size() - kFirstLaidOutIndex);
}

TEST(CatalogueImport, TheHandSetExportReadsBackItsThreeKeys) {
    std::vector<AbilityRecord> list = all_data();
    const ImportReport report = importCustomKeys(list, testData("export-hand-set.txt"));
    std::vector<AbilityRecord> expected = all_data();
    assignKey(expected[0], "Q");
    assignKey(expected[9], "Z");
    assignKey(expected[40], "M");
    EXPECT_EQ(list, expected);
    EXPECT_EQ(report.read, 160u);
    EXPECT_EQ(report.changed, 3u);
    EXPECT_EQ(report.unknownSections, 0u);
    EXPECT_EQ(exported(list), testData("export-hand-set.txt"));
}

TEST(CatalogueImport, TheGridLayoutExportRoundTrips) {
    const std::string file = testData("export-grid-layout.txt");
    EXPECT_EQ(roundTrip(file), file);
}

TEST(CatalogueImport, TheGridLayoutReadsBackAsTheLayoutWherePlayedKeysShow) {
    std::vector<AbilityRecord> laidOut = all_data();
    allQWER(laidOut);
    std::vector<AbilityRecord> read = all_data();
    importCustomKeys(read, exported(laidOut));
    // An ability whose key fills its template into its own default entry word for word cannot
    // be told from an untouched one; every other ability reads back its key.
    for (std::size_t i = 0; i < read.size(); ++i) {
        SCOPED_TRACE(read[i].at(name_spell));
        const std::string filled =
            replaceAll(laidOut[i].at(for_edit), mark,
                       laidOut[i].at(new_hotkey).empty() ? laidOut[i].at(def_hotkey)
                                                         : laidOut[i].at(new_hotkey));
        if (laidOut[i].at(new_hotkey).empty() || filled == laidOut[i].at(def)) {
            EXPECT_EQ(read[i], all_data()[i]);
        } else {
            EXPECT_EQ(read[i], laidOut[i]);
        }
    }
}

TEST(CatalogueImport, EveryAbilityOnItsOwnRoundTripsWithEveryKeyThatMatters) {
    const auto& catalogue = all_data();
    for (std::size_t i = 0; i < catalogue.size(); ++i) {
        SCOPED_TRACE(std::to_string(i) + " " + catalogue[i].at(name_spell));
        // The default key, every key the default entry holds, and one it does not.
        std::set<std::string> keys = {catalogue[i].at(def_hotkey)};
        for (const char* line : {"Hotkey=", "Unhotkey=", "Researchhotkey="}) {
            const std::string& text = catalogue[i].at(def);
            const std::size_t at = text.find(line);
            if (at != std::string::npos) {
                keys.insert(text.substr(at + std::string(line).size(), 1));
            }
        }
        keys.insert(keys.contains("Z") ? "J" : "Z");
        for (const std::string& key : keys) {
            std::vector<AbilityRecord> list = catalogue;
            assignKey(list[i], key);
            const std::string file = exported(list);
            EXPECT_EQ(roundTrip(file), file) << "key " << key;
        }
    }
}

TEST(CatalogueImport, WholeListsOfChosenKeysRoundTrip) {
    std::mt19937 draw(12); // fixed seed: the same lists every run
    std::uniform_int_distribution<int> letter(0, 25);
    std::uniform_int_distribution<int> chance(0, 2);
    for (int run = 0; run < 8; ++run) {
        std::vector<AbilityRecord> list = all_data();
        for (AbilityRecord& record : list) {
            if (chance(draw) != 0) {
                assignKey(record, std::string(1, static_cast<char>('A' + letter(draw))));
            }
        }
        const std::string file = exported(list);
        EXPECT_EQ(roundTrip(file), file) << "run " << run;
    }
}

TEST(CatalogueImport, MirrorImageAndWindWalkReadTheirOwnCopiesOfTheSection) {
    std::vector<AbilityRecord> list = all_data();
    assignKey(list[indexOf(wind_walk_())], "Q");
    assignKey(list[indexOf(mirror_image_())], "E");
    std::vector<AbilityRecord> read = all_data();
    importCustomKeys(read, exported(list));
    EXPECT_EQ(read[indexOf(wind_walk_())].at(new_hotkey), "Q");
    EXPECT_EQ(read[indexOf(mirror_image_())].at(new_hotkey), "E");
}

TEST(CatalogueImport, TheCopiesOfASectionAreReadInFileOrderWhateverTheirCase) {
    std::vector<AbilityRecord> list = all_data();
    assignKey(list[indexOf(wind_walk_())], "Q");
    assignKey(list[indexOf(mirror_image_())], "E");
    std::string file = exported(list);
    // The second copy, Mirror Image's, spelt as the game would find it too.
    const std::size_t first = file.find("[AOwk]");
    const std::size_t second = file.find("[AOwk]", first + 1);
    ASSERT_NE(second, std::string::npos);
    file.replace(second, 6, "[aowk]");
    std::vector<AbilityRecord> read = all_data();
    const ImportReport report = importCustomKeys(read, file);
    EXPECT_EQ(read[indexOf(wind_walk_())].at(new_hotkey), "Q");
    EXPECT_EQ(read[indexOf(mirror_image_())].at(new_hotkey), "E");
    EXPECT_EQ(report.unknownSections, 0u);
    EXPECT_EQ(exported(read), exported(list));
    // Lowered first instead, the copies still go in file order.
    file.replace(second, 6, "[AOwk]");
    file.replace(first, 6, "[aowk]");
    read = all_data();
    importCustomKeys(read, file);
    EXPECT_EQ(read[indexOf(wind_walk_())].at(new_hotkey), "Q");
    EXPECT_EQ(read[indexOf(mirror_image_())].at(new_hotkey), "E");
}

TEST(CatalogueImport, BerserkWithAKeyIsReadFromTheSecondResurrectionSection) {
    std::vector<AbilityRecord> list = all_data();
    assignKey(list[indexOf(berserk_())], "Q");
    std::vector<AbilityRecord> read = all_data();
    importCustomKeys(read, exported(list));
    EXPECT_EQ(read[indexOf(resurrection_())], resurrection_());
    EXPECT_EQ(read[indexOf(berserk_())].at(new_hotkey), "Q");
}

TEST(CatalogueImport, FrostArrowsWrittenTheGamesWayIsReadWhole) {
    // The game's file writes Frost Arrows' hotkey on a line of its own; the catalogue joins it to
    // the auto-cast tip.
    std::vector<AbilityRecord> list = all_data();
    const ImportReport report = importCustomKeys(
        list, "[ANfa]\nUntip=\"|cffc3dbffRight-click to activate auto-casting.|r\"\n"
              "Hotkey=Q\nUnhotkey=Q\nResearchhotkey=Q\n");
    EXPECT_EQ(list[indexOf(frostarrows_())].at(new_hotkey), "Q");
    EXPECT_EQ(report.partial, 0u);
    EXPECT_EQ(report.mixed, 0u);
}

TEST(CatalogueImport, CallToArmsWithTheGamesOffKeyIsUntouchedAndWithOneKeyIsThatKey) {
    std::vector<AbilityRecord> list = all_data();
    importCustomKeys(list, "[Amil]\nHotkey=C\nUnhotkey=W\n[Amic]\nHotkey=C\nUnhotkey=W\n");
    EXPECT_EQ(list[indexOf(calltoArms_())], calltoArms_());
    importCustomKeys(list, "[Amil]\nHotkey=Q\nUnhotkey=Q\n[Amic]\nHotkey=Q\nUnhotkey=Q\n");
    EXPECT_EQ(list[indexOf(calltoArms_())].at(new_hotkey), "Q");
}

TEST(CatalogueImport, AFileWithCrlfAndAByteOrderMarkReadsLikeOneWithout) {
    std::vector<AbilityRecord> chosen = all_data();
    allQWER(chosen);
    const std::string lf = exported(chosen);
    std::string crlf = "\xEF\xBB\xBF";
    for (char c : lf) {
        if (c == '\n') {
            crlf += '\r';
        }
        crlf += c;
    }
    std::vector<AbilityRecord> fromLf = all_data();
    std::vector<AbilityRecord> fromCrlf = all_data();
    importCustomKeys(fromLf, lf);
    importCustomKeys(fromCrlf, crlf);
    EXPECT_EQ(fromCrlf, fromLf);
    EXPECT_NE(fromLf, all_data());
}

} // namespace
} // namespace tarnic
