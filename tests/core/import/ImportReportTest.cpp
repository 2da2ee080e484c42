#include "core/import/ImportReport.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

ImportReport reportOf(std::size_t read, std::size_t changed, std::size_t sections,
                      std::size_t unknown) {
    ImportReport report;
    report.read = read;
    report.changed = changed;
    report.fileSections = sections;
    report.unknownSections = unknown;
    return report;
}

TEST(ImportSummary, CountsWhatWasReadAndChangedAndLeftOut) {
    EXPECT_EQ(importSummary(reportOf(142, 12, 180, 37)),
              "142 hotkeys read, 12 changed; 37 sections of the file are not in the catalogue "
              "and were left out.");
}

TEST(ImportSummary, SaysNothingOfSectionsWhenAllAreKnown) {
    EXPECT_EQ(importSummary(reportOf(160, 0, 181, 0)), "160 hotkeys read, 0 changed.");
}

TEST(ImportSummary, OneIsSingular) {
    EXPECT_EQ(importSummary(reportOf(1, 1, 2, 1)),
              "1 hotkey read, 1 changed; 1 section of the file is not in the catalogue and was "
              "left out.");
}

TEST(ImportDetails, NothingRareSaysNothing) {
    EXPECT_EQ(importDetails(reportOf(160, 3, 181, 0)), "");
}

TEST(ImportDetails, OneSentenceForEachKindOfNews) {
    ImportReport report = reportOf(150, 3, 170, 0);
    report.notInFile = 10;
    report.partial = 2;
    report.mixed = 3;
    EXPECT_EQ(importDetails(report),
              "10 abilities have no key in the file and kept what they had. "
              "2 abilities are only partly in the file; the key found was given to all of their "
              "places. "
              "3 abilities have different keys at their places in the file; the first was taken.");
}

TEST(ImportDetails, OneAbilityIsSingular) {
    ImportReport report = reportOf(159, 0, 181, 0);
    report.notInFile = 1;
    report.partial = 1;
    report.mixed = 1;
    EXPECT_EQ(importDetails(report),
              "1 ability has no key in the file and kept what it had. "
              "1 ability is only partly in the file; the key found was given to all of its "
              "places. "
              "1 ability has different keys at its places in the file; the first was taken.");
}

TEST(ImportReport, HoldsTheCatalogueWhenASectionIsKnown) {
    EXPECT_FALSE(reportOf(0, 0, 0, 0).holdsCatalogue());
    EXPECT_FALSE(reportOf(0, 0, 5, 5).holdsCatalogue());
    EXPECT_TRUE(reportOf(0, 0, 5, 4).holdsCatalogue());
}

} // namespace
} // namespace tarnic
