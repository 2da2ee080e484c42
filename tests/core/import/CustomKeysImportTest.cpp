#include "core/import/CustomKeysImport.h"

#include "core/editor/ExportText.h"
#include "core/editor/KeyAssignment.h"
#include "core/editor/RecordFactory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

namespace tarnic {
namespace {

using test::generalCommands;
using test::makeRecord;

const std::string M = mark;

// The seven owner-less records (sections Cmd0 to Cmd6, keys M A S H P G R) and two abilities of
// a Priest: Heal (Ahea, E) and Inner Fire (Ainf, F). Each block is "Hotkey=" and
// "Researchhotkey=" with the key.
std::vector<AbilityRecord> smallList() {
    auto list = generalCommands();
    list.push_back(makeRecord("Heal", "Priest", "E", "Ahea"));
    list.push_back(makeRecord("Inner Fire", "Priest", "F", "Ainf"));
    return list;
}

AbilityRecord withKey(AbilityRecord record, const std::string& key) {
    assignKey(record, key);
    return record;
}

// A record whose default entry holds other keys than its default key: a cast key and an off
// key, like Call to Arms (C and W).
AbilityRecord castAndOff() {
    return {{name_spell, "Call"},
            {name_parent, "Peasant"},
            {def, "// Call\n[Amil]\nTip=Call\nHotkey=C\nUnhotkey=W"},
            {for_edit, "// Call\n[Amil]\nTip=Call\nHotkey=" + M + "\nUnhotkey=" + M},
            {def_hotkey, "C"},
            {new_hotkey, ""},
            {new_edit, ""}};
}

TEST(CustomKeysImport, AnotherKeyIsSetAsTheHotkeyPopUpSetsIt) {
    auto list = smallList();
    const ImportReport report =
        importCustomKeys(list, "[Ahea]\nTip=Heal\nHotkey=Q\nResearchhotkey=Q\n");
    auto expected = smallList();
    assignKey(expected[7], "Q");
    EXPECT_EQ(list, expected);
    EXPECT_EQ(report.read, 1u);
    EXPECT_EQ(report.changed, 1u);
    EXPECT_EQ(report.notInFile, 8u);
    EXPECT_EQ(report.fileSections, 1u);
    EXPECT_EQ(report.unknownSections, 0u);
    EXPECT_EQ(report.partial, 0u);
    EXPECT_EQ(report.mixed, 0u);
}

TEST(CustomKeysImport, TheDefaultKeyClearsAChoice) {
    auto list = smallList();
    assignKey(list[7], "Q");
    const ImportReport report = importCustomKeys(list, "[Ahea]\nHotkey=E\nResearchhotkey=E");
    EXPECT_EQ(list, smallList());
    EXPECT_EQ(report.read, 1u);
    EXPECT_EQ(report.changed, 1u);
}

TEST(CustomKeysImport, AbilitiesTheFileDoesNotHoldKeepTheirChoice) {
    auto list = smallList();
    assignKey(list[0], "Z");
    assignKey(list[8], "X");
    const auto before = list;
    importCustomKeys(list, "[Ahea]\nHotkey=Q\nResearchhotkey=Q");
    EXPECT_EQ(list[0], before[0]);
    EXPECT_EQ(list[8], before[8]);
    EXPECT_EQ(list[7], withKey(before[7], "Q"));
}

TEST(CustomKeysImport, ReadingTheSameKeyAgainChangesNothing) {
    auto list = smallList();
    assignKey(list[7], "Q");
    const auto before = list;
    const ImportReport report = importCustomKeys(list, "[Ahea]\nHotkey=Q\nResearchhotkey=Q");
    EXPECT_EQ(list, before);
    EXPECT_EQ(report.read, 1u);
    EXPECT_EQ(report.changed, 0u);
}

TEST(CustomKeysImport, DifferentKeysAtThePlacesTakeTheFirst) {
    auto list = smallList();
    const ImportReport report = importCustomKeys(list, "[Ahea]\nResearchhotkey=W\nHotkey=Q");
    EXPECT_EQ(list[7], withKey(smallList()[7], "Q"));
    EXPECT_EQ(report.mixed, 1u);
    EXPECT_EQ(report.partial, 0u);
}

TEST(CustomKeysImport, AnAbilityPartlyInTheFileTakesTheKeyThatIsThere) {
    auto list = smallList();
    const ImportReport report = importCustomKeys(list, "[Ahea]\nTip=Heal\nResearchhotkey=W");
    EXPECT_EQ(list[7], withKey(smallList()[7], "W"));
    EXPECT_EQ(report.partial, 1u);
    EXPECT_EQ(report.mixed, 0u);
    EXPECT_EQ(report.read, 1u);
}

TEST(CustomKeysImport, AMultiSectionAbilityWithOneSectionInTheFileTakesItsKey) {
    auto list = generalCommands();
    list.push_back({{name_spell, "Two"},
                    {name_parent, "Unit"},
                    {def, "[Aone]\nHotkey=T\n[Atwo]\nHotkey=T"},
                    {for_edit, "[Aone]\nHotkey=" + M + "\n[Atwo]\nHotkey=" + M},
                    {def_hotkey, "T"},
                    {new_hotkey, ""},
                    {new_edit, ""}});
    const ImportReport report = importCustomKeys(list, "[Atwo]\nHotkey=K");
    EXPECT_EQ(list[7].at(new_hotkey), "K");
    EXPECT_EQ(list[7].at(new_edit), "[Aone]\nHotkey=K\n[Atwo]\nHotkey=K");
    EXPECT_EQ(report.partial, 1u);
}

TEST(CustomKeysImport, APlaceWithoutALetterIsNotRead) {
    auto list = smallList();
    assignKey(list[7], "Z");
    const auto before = list;
    const ImportReport report =
        importCustomKeys(list, "[Ahea]\nHotkey=512\nResearchhotkey=\n[Ainf]\nHotkey=f");
    EXPECT_EQ(list[7], before[7]);
    EXPECT_EQ(report.read, 1u); // Inner Fire, on its default key
    EXPECT_EQ(report.notInFile, 8u);
    EXPECT_EQ(list[8], smallList()[8]);
}

TEST(CustomKeysImport, SectionsNoAbilityWritesAreCountedEachTime) {
    auto list = smallList();
    const ImportReport report = importCustomKeys(
        list, "[Xone]\nHotkey=Q\n[Ahea]\nHotkey=Q\n[Xone]\nHotkey=W\n[Xtwo]\nHotkey=E\n");
    EXPECT_EQ(report.fileSections, 4u);
    EXPECT_EQ(report.unknownSections, 3u);
    EXPECT_TRUE(report.holdsCatalogue());
}

TEST(CustomKeysImport, AFileWithoutASectionOfTheListChangesNothing) {
    // The last is "[A]" written as UTF-16, which the game's files are not.
    const std::vector<std::string> texts = {"", "just words\n", "[Xone]\nHotkey=Q\n",
                                            std::string("\xFF\xFE[\0A\0]\0", 8)};
    for (const std::string& text : texts) {
        auto list = smallList();
        assignKey(list[7], "Q");
        const auto before = list;
        const ImportReport report = importCustomKeys(list, text);
        EXPECT_EQ(list, before) << text;
        EXPECT_FALSE(report.holdsCatalogue()) << text;
        EXPECT_EQ(report.read, 0u);
        EXPECT_EQ(report.changed, 0u);
    }
}

TEST(CustomKeysImport, ADefaultEntryWithAnotherOffKeyIsNoChoice) {
    auto list = generalCommands();
    list.push_back(castAndOff());
    assignKey(list[7], "Q");
    const ImportReport report = importCustomKeys(list, "[Amil]\nHotkey=C\nUnhotkey=W");
    EXPECT_EQ(list[7], castAndOff());
    EXPECT_EQ(report.mixed, 0u);
}

TEST(CustomKeysImport, TheDefaultKeyEverywhereIsAChoiceWhenTheDefaultEntryDiffers) {
    // Exported with C set by hand, the entry holds C twice; read back it must stay C, or the
    // next export would write the default's W again.
    auto list = generalCommands();
    list.push_back(castAndOff());
    importCustomKeys(list, "[Amil]\nHotkey=C\nUnhotkey=C");
    EXPECT_EQ(list[7], withKey(castAndOff(), "C"));
}

TEST(CustomKeysImport, AKeyThatFillsTheTemplateIntoTheDefaultEntryIsNoChoice) {
    // Like Ensnare: the default key is T, the default entry holds E.
    AbilityRecord odd = makeRecord("Snare", "Raider", "T", "Aens");
    odd[def] = "// Snare\n[Aens]\nTip=Snare\nHotkey=E\nResearchhotkey=E";
    auto list = generalCommands();
    list.push_back(odd);
    assignKey(list[7], "Q");
    importCustomKeys(list, "[Aens]\nHotkey=E\nResearchhotkey=E");
    EXPECT_EQ(list[7], odd);
    importCustomKeys(list, "[Aens]\nHotkey=T\nResearchhotkey=T");
    EXPECT_EQ(list[7], withKey(odd, "T"));
}

TEST(CustomKeysImport, TwoAbilitiesWritingOneSectionTakeItsCopiesInFileOrder) {
    // Like Wind Walk and Mirror Image: the second writes the first one's block.
    auto list = generalCommands();
    list.push_back(makeRecord("Walk", "Blade", "W", "AOwk"));
    AbilityRecord image = makeRecord("Walk", "Blade", "W", "AOwk");
    image[name_spell] = "Image";
    image[def_hotkey] = "R";
    list.push_back(image);

    auto both = list;
    importCustomKeys(both, "[AOwk]\nHotkey=Q\nResearchhotkey=Q\n[AOwk]\nHotkey=E\n"
                           "Researchhotkey=E");
    EXPECT_EQ(both[7].at(new_hotkey), "Q");
    EXPECT_EQ(both[8].at(new_hotkey), "E");

    auto once = list;
    importCustomKeys(once, "[AOwk]\nHotkey=W\nResearchhotkey=W");
    EXPECT_EQ(once, list);
}

TEST(CustomKeysImport, ARecordWithoutItsTextsIsLeftAlone) {
    auto list = smallList();
    list[7].erase(std::string(for_edit));
    list[8].erase(std::string(def));
    const auto before = list;
    const ImportReport report = importCustomKeys(
        list, "[Ahea]\nHotkey=Q\nResearchhotkey=Q\n[Ainf]\nHotkey=Q\nResearchhotkey=Q");
    EXPECT_EQ(list, before);
    EXPECT_EQ(report.read, 0u);
}

TEST(CustomKeysImport, ATemplateWithoutAMarkerIsReadOnlyAsTheDefault) {
    auto list = smallList();
    list[7][for_edit] = list[7].at(def);
    assignKey(list[7], "Q");
    auto cleared = list;
    importCustomKeys(cleared, "[Ahea]\nHotkey=E\nResearchhotkey=E");
    EXPECT_EQ(cleared[7].at(new_hotkey), "");
    auto kept = list;
    const ImportReport report = importCustomKeys(kept, "[Ahea]\nHotkey=K\nResearchhotkey=K");
    EXPECT_EQ(kept, list);
    EXPECT_EQ(report.read, 0u);
}

TEST(CustomKeysImport, ExportThenImportGivesTheSameExport) {
    auto list = smallList();
    assignKey(list[0], "Q");
    assignKey(list[8], "R");
    const std::string frame = "// head\n" + M + "\n";
    const std::string first = exportText(list, frame);
    auto fresh = smallList();
    const ImportReport report = importCustomKeys(fresh, first);
    EXPECT_EQ(exportText(fresh, frame), first);
    EXPECT_EQ(fresh, list);
    EXPECT_EQ(report.read, 9u);
    EXPECT_EQ(report.changed, 2u);
}

TEST(CustomKeysImport, NamesInAnyCaseReadAsTheCatalogueSpellsThem) {
    const std::string file = "[Ahea]\nTip=Heal\nHotkey=Q\nResearchhotkey=W\n"
                             "[Ainf]\nHotkey=K\nResearchhotkey=K\n[Xone]\nHotkey=Z\n";
    auto expected = smallList();
    const ImportReport expectedReport = importCustomKeys(expected, file);
    ASSERT_EQ(expectedReport.changed, 2u);
    for (const char* spelt : {"[ahea]\ntip=Heal\nhotkey=Q\nresearchhotkey=W\n"
                              "[ainf]\nhotkey=K\nresearchhotkey=K\n[xone]\nhotkey=Z\n",
                              "[AHEA]\nTIP=Heal\nHOTKEY=Q\nRESEARCHHOTKEY=W\n"
                              "[AINF]\nHOTKEY=K\nRESEARCHHOTKEY=K\n[XONE]\nHOTKEY=Z\n",
                              "[aHEA]\nTip=Heal\nhOTKEY=Q\nResearchHotkey=W\n"
                              "[AInf]\nHotKey=K\nresearchhotkey=K\n[XOne]\nhotkey=Z\n"}) {
        auto list = smallList();
        EXPECT_EQ(importCustomKeys(list, spelt), expectedReport) << spelt;
        EXPECT_EQ(list, expected) << spelt;
    }
}

TEST(CustomKeysImport, ALowerCaseCopyOfTheDefaultEntryClearsAChoice) {
    auto list = smallList();
    assignKey(list[7], "Q");
    const ImportReport report = importCustomKeys(list, "[ahea]\nhotkey=E\nresearchhotkey=E");
    EXPECT_EQ(list, smallList());
    EXPECT_EQ(report.read, 1u);
    EXPECT_EQ(report.changed, 1u);
}

TEST(CustomKeysImport, ADefaultEntryWithAnotherOffKeyIsNoChoiceInAnyCase) {
    for (const char* text : {"[amil]\nhotkey=C\nunhotkey=W", "[AMIL]\nHOTKEY=c\nUNHOTKEY=w"}) {
        auto list = generalCommands();
        list.push_back(castAndOff());
        assignKey(list[7], "Q");
        importCustomKeys(list, text);
        EXPECT_EQ(list[7], castAndOff()) << text;
    }
    // And the default key everywhere stays a choice.
    auto list = generalCommands();
    list.push_back(castAndOff());
    importCustomKeys(list, "[amil]\nhotkey=C\nunhotkey=C");
    EXPECT_EQ(list[7], withKey(castAndOff(), "C"));
}

TEST(CustomKeysImport, TwoSpellingsOfOneSectionAreTwoCopiesTakenInFileOrder) {
    auto list = generalCommands();
    list.push_back(makeRecord("Walk", "Blade", "W", "AOwk"));
    AbilityRecord image = makeRecord("Walk", "Blade", "W", "AOwk");
    image[name_spell] = "Image";
    image[def_hotkey] = "R";
    list.push_back(image);
    const ImportReport report = importCustomKeys(
        list, "[aowk]\nhotkey=Q\nresearchhotkey=Q\n[AOWK]\nHotkey=E\nResearchhotkey=E");
    EXPECT_EQ(list[7].at(new_hotkey), "Q");
    EXPECT_EQ(list[8].at(new_hotkey), "E");
    EXPECT_EQ(report.fileSections, 2u);
    EXPECT_EQ(report.unknownSections, 0u);
}

TEST(CustomKeysImport, AnExportWithItsNamesInLowerCaseGivesTheSameExport) {
    auto list = smallList();
    assignKey(list[0], "Q");
    assignKey(list[8], "R");
    const std::string frame = "// head\n" + M + "\n";
    const std::string first = exportText(list, frame);
    // Every header and every line name lowered; comments and values as they are.
    std::string whole;
    std::size_t at = 0;
    while (at < first.size()) {
        const std::size_t end = std::min(first.find('\n', at), first.size());
        std::string line = first.substr(at, end - at);
        const std::size_t equals = line.find('=');
        const std::size_t nameEnd = line.starts_with("//")        ? 0
                                    : line.starts_with('[')       ? line.size()
                                    : equals == std::string::npos ? 0
                                                                  : equals;
        for (std::size_t i = 0; i < nameEnd; ++i) {
            line[i] = static_cast<char>(std::tolower(static_cast<unsigned char>(line[i])));
        }
        whole += line + (end < first.size() ? "\n" : "");
        at = end + 1;
    }
    ASSERT_NE(whole, first);
    auto again = smallList();
    importCustomKeys(again, whole);
    EXPECT_EQ(again, list);
    EXPECT_EQ(exportText(again, frame), first);
}

} // namespace
} // namespace tarnic
