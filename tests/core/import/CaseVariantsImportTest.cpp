// The kept files against their case variants in tests/data/case-variants (made by
// tests/data/make-case-variants.py): names in any case read as the game reads them.
#include "core/import/CustomKeysImport.h"

#include "CatalogueFiles.h"
#include "core/catalogue/Catalogue.h"
#include "core/editor/GridLayout.h"
#include "core/import/AsciiCase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace tarnic {
namespace {

using test::exported;
using test::testData;

// Original file, kind of variant.
using VariantParam = std::tuple<std::string, std::string>;

std::string variantPath(const VariantParam& param) {
    const auto& [original, kind] = param;
    return "case-variants/" + original.substr(0, original.rfind(".txt")) + "." + kind + ".txt";
}

// The file's lines without their line ends.
std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.push_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

struct Imported {
    std::vector<AbilityRecord> list;
    ImportReport report;
};

Imported importInto(std::vector<AbilityRecord> list, const std::string& file) {
    const ImportReport report = importCustomKeys(list, file);
    return {std::move(list), report};
}

class CaseVariant : public ::testing::TestWithParam<VariantParam> {
protected:
    const std::string original = testData(std::get<0>(GetParam()));
    const std::string variant = testData(variantPath(GetParam()));
};

TEST_P(CaseVariant, DiffersFromItsOriginalOnlyInTheCaseOfNames) {
    ASSERT_FALSE(original.empty());
    ASSERT_NE(variant, original);
    EXPECT_TRUE(equalIgnoringAsciiCase(variant, original));
    const std::vector<std::string_view> ours = linesOf(variant);
    const std::vector<std::string_view> theirs = linesOf(original);
    ASSERT_EQ(ours.size(), theirs.size());
    std::size_t namesChanged = 0;
    for (std::size_t i = 0; i < ours.size(); ++i) {
        SCOPED_TRACE("line " + std::to_string(i + 1) + ": " + std::string(theirs[i]));
        const std::string_view line = theirs[i];
        const std::size_t equals = line.find('=');
        // Headers are names throughout; "//" comments and lines without "=" have none.
        const std::size_t nameEnd = line.starts_with('[')    ? line.size()
                                    : line.starts_with("//") ? 0
                                    : equals == line.npos    ? 0
                                                             : equals;
        EXPECT_EQ(ours[i].substr(nameEnd), line.substr(nameEnd)); // values, tips and comments
        namesChanged += ours[i].substr(0, nameEnd) != line.substr(0, nameEnd) ? 1 : 0;
    }
    EXPECT_GT(namesChanged, 100u);
}

TEST_P(CaseVariant, ImportsExactlyAsItsOriginal) {
    std::vector<AbilityRecord> laidOut = all_data();
    allQWER(laidOut);
    // From the untouched list and from one where every ability holds a key of its own, so that
    // clearing a choice counts as much as setting one.
    for (const std::vector<AbilityRecord>& start : {all_data(), laidOut}) {
        const Imported fromOriginal = importInto(start, original);
        const Imported fromVariant = importInto(start, variant);
        EXPECT_EQ(fromOriginal.report.read, 160u);
        EXPECT_EQ(fromVariant.list, fromOriginal.list);
        EXPECT_EQ(fromVariant.report, fromOriginal.report);
        EXPECT_EQ(importSummary(fromVariant.report), importSummary(fromOriginal.report));
        EXPECT_EQ(importDetails(fromVariant.report), importDetails(fromOriginal.report));
        EXPECT_EQ(exported(fromVariant.list), exported(fromOriginal.list));
    }
}

TEST_P(CaseVariant, ExportsByteForByteAsTheOriginalDoes) {
    const bool gamesOwn = std::get<0>(GetParam()) == "game-default-CustomKeys.txt";
    const std::string expected = gamesOwn ? testData("export-untouched.txt") : original;
    EXPECT_EQ(exported(importInto(all_data(), variant).list), expected);
}

INSTANTIATE_TEST_SUITE_P(KeptFiles, CaseVariant,
                         ::testing::Combine(::testing::Values("game-default-CustomKeys.txt",
                                                              "export-grid-layout.txt",
                                                              "export-hand-set.txt"),
                                            ::testing::Values("lower", "upper", "mixed")),
                         [](const ::testing::TestParamInfo<VariantParam>& info) {
                             std::string name = std::get<0>(info.param);
                             name =
                                 name.substr(0, name.rfind(".txt")) + "_" + std::get<1>(info.param);
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

TEST(CaseVariantFiles, EachKindSpellsItsNamesItsOwnWay) {
    for (const char* original :
         {"game-default-CustomKeys", "export-grid-layout", "export-hand-set"}) {
        SCOPED_TRACE(original);
        const std::string stem = std::string("case-variants/") + original;
        const std::string lower = testData(stem + ".lower.txt");
        const std::string upper = testData(stem + ".upper.txt");
        const std::string mixed = testData(stem + ".mixed.txt");
        EXPECT_NE(lower.find("\n[ahfs]"), std::string::npos);
        EXPECT_NE(lower.find("\nhotkey="), std::string::npos);
        EXPECT_EQ(lower.find("\nHotkey="), std::string::npos);
        EXPECT_NE(upper.find("\n[AHFS]"), std::string::npos);
        EXPECT_NE(upper.find("\nRESEARCHHOTKEY="), std::string::npos);
        EXPECT_EQ(upper.find("\nHotkey="), std::string::npos);
        // A hero ability as the catalogue spells it, the other sections in lower case.
        EXPECT_NE(mixed.find("\n[AHfs]"), std::string::npos);
        EXPECT_NE(mixed.find("\n[AOwk]"), std::string::npos);
        EXPECT_NE(mixed.find("\n[cmdmove]"), std::string::npos);
        EXPECT_NE(mixed.find("\n[adef]"), std::string::npos);
        EXPECT_EQ(mixed.find("\n[Adef]"), std::string::npos);
    }
}

} // namespace
} // namespace tarnic
