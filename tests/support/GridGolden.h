#pragma once

#include "core/catalogue/Catalogue.h"
#include "core/editor/ExportText.h"
#include "core/editor/GridLayout.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

namespace tarnic::test {

inline std::string sourceFile(const std::string& path) {
    std::ifstream in(std::string(TARNIC_SOURCE_DIR) + "/" + path, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return in ? bytes.str() : std::string("<missing ") + path + ">";
}

inline std::string replaced(std::string text, char from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at)) {
        text.replace(at, 1, to);
        at += to.size();
    }
    return text;
}

// The golden grid export (tests/data/export-grid-layout.txt) with `letters` in place of Q, W, E
// and R wherever the grid put them, and only there. Where: the catalogue laid out with four
// control characters instead of letters and exported through the shipped template must give the
// golden file once they are read as Q, W, E and R (checked here, non-fatally); read as `letters`,
// it is the expected export.
inline std::string goldenGridExportWith(const GridLetters& letters) {
    std::vector<AbilityRecord> list = all_data();
    allQWER(list, GridLetters{"\x01", "\x02", "\x03", "\x04"});
    const std::string marked = exportText(list, sourceFile("resources/defaultkeys"));
    const GridLetters qwer = qwerLetters();
    std::string asGolden = marked;
    std::string expected = marked;
    for (std::size_t i = 0; i < 4; ++i) {
        asGolden = replaced(asGolden, static_cast<char>(i + 1), qwer[i]);
        expected = replaced(expected, static_cast<char>(i + 1), letters[i]);
    }
    EXPECT_EQ(asGolden, sourceFile("tests/data/export-grid-layout.txt"))
        << "the grid's places are not those of the golden grid export";
    return expected;
}

} // namespace tarnic::test
