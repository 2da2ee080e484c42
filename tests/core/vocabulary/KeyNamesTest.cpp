#include "core/vocabulary/KeyNames.h"

#include "core/vocabulary/KeyCodes.h"
#include "support/LayoutKeysyms.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace tarnic {
namespace {

using test::frenchKeysyms;
using test::germanKeysyms;
using test::usKeysyms;

KeyNames namesOf(const std::map<int, std::uint32_t>& keysyms) {
    return KeyNames::fromLayout([&keysyms](int code) -> std::optional<std::uint32_t> {
        const auto it = keysyms.find(code);
        if (it == keysyms.end()) {
            return std::nullopt;
        }
        return it->second;
    });
}

TEST(KeyNames, WithoutALayoutEveryKeyHasItsUsName) {
    const KeyNames names;
    for (const auto& [code, label] : key_codes()) {
        EXPECT_EQ(names.nameOf(code), label) << code;
        EXPECT_EQ(names.codeOf(label), code) << label;
        EXPECT_FALSE(names.isLayoutName(code));
    }
    EXPECT_EQ(names.nameOf(-1), std::nullopt);
    EXPECT_EQ(names.nameOf(999), std::nullopt);
    EXPECT_EQ(names.codeOf("Select"), std::nullopt);
    EXPECT_EQ(namesOf({}), names);
}

TEST(KeyNames, FrenchLayoutNamesTheKeysAsAzertyPrintsThem) {
    const KeyNames names = namesOf(frenchKeysyms());
    EXPECT_EQ(names.nameOf(12), "A"); // the US Q position
    EXPECT_EQ(names.nameOf(13), "Z"); // the US W position
    EXPECT_EQ(names.nameOf(0), "Q");  // the US A position
    EXPECT_EQ(names.nameOf(6), "W");  // the US Z position
    EXPECT_EQ(names.nameOf(41), "M"); // the US semicolon position
    EXPECT_EQ(names.nameOf(46), ","); // the US M position
    EXPECT_EQ(names.nameOf(19), "\u00C9");
    EXPECT_EQ(names.nameOf(33), "^");
    EXPECT_EQ(names.codeOf("W"), 6);
    EXPECT_EQ(names.codeOf("A"), 12);
    EXPECT_TRUE(names.isLayoutName(6));
    // Space prints nothing to show, Escape is no symbol, F1 is not in the layout given.
    EXPECT_EQ(names.nameOf(49), "Space");
    EXPECT_EQ(names.nameOf(53), "ESC");
    EXPECT_EQ(names.nameOf(122), "F1");
    EXPECT_FALSE(names.isLayoutName(49));
}

TEST(KeyNames, GermanLayoutSwapsYAndZ) {
    const KeyNames names = namesOf(germanKeysyms());
    EXPECT_EQ(names.nameOf(16), "Z");
    EXPECT_EQ(names.nameOf(6), "Y");
    EXPECT_EQ(names.nameOf(12), "Q");
    EXPECT_EQ(names.nameOf(27), "\u00DF");
    EXPECT_EQ(names.nameOf(41), "\u00D6");
    EXPECT_EQ(names.nameOf(24), "\u00B4");
}

TEST(KeyNames, UsLayoutNamesTheUnshiftedSymbols) {
    const KeyNames names = namesOf(usKeysyms());
    EXPECT_EQ(names.nameOf(12), "Q");
    EXPECT_EQ(names.nameOf(6), "Z");
    EXPECT_EQ(names.nameOf(41), ";");
    EXPECT_EQ(names.nameOf(43), ",");
    EXPECT_EQ(names.nameOf(10), "<");
    EXPECT_EQ(names.nameOf(50), "`");
}

TEST(KeyNames, EveryLayoutGivesEachKeyANameOfItsOwn) {
    for (const auto& keysyms : {frenchKeysyms(), germanKeysyms(), usKeysyms()}) {
        const KeyNames names = namesOf(keysyms);
        std::set<std::string> seen;
        for (const auto& entry : key_codes()) {
            const std::optional<std::string> name = names.nameOf(entry.first);
            ASSERT_TRUE(name.has_value());
            EXPECT_TRUE(seen.insert(*name).second) << *name << " twice";
            EXPECT_EQ(names.codeOf(*name), entry.first);
        }
    }
}

TEST(KeyNames, TwoPositionsPrintingOneSymbolKeepTheirUsNames) {
    // Both the Q and the W position print "a".
    const KeyNames names = namesOf({{12, 'a'}, {13, 'a'}, {14, 'e'}});
    EXPECT_EQ(names.nameOf(12), "Q");
    EXPECT_EQ(names.nameOf(13), "W");
    EXPECT_EQ(names.nameOf(14), "E");
    // And the A position, unnamed by this layout, keeps "A".
    EXPECT_EQ(names.nameOf(0), "A");
}

TEST(KeyNames, APrintedNameThatIsAnotherKeysUsNameGivesWay) {
    // The Q position prints "s"; the S position prints nothing, so it is "S" already.
    const KeyNames names = namesOf({{12, 's'}, {1, 0xff0d}});
    EXPECT_EQ(names.nameOf(12), "Q");
    EXPECT_EQ(names.nameOf(1), "S");
    // A chain: W prints "e", E prints "q", Q prints nothing. Q stays "Q", so E gives way and
    // keeps "E", and then W's "e" clashes with it and gives way too.
    const KeyNames chain = namesOf({{13, 'e'}, {14, 'q'}});
    EXPECT_EQ(chain.nameOf(12), "Q");
    EXPECT_EQ(chain.nameOf(13), "W");
    EXPECT_EQ(chain.nameOf(14), "E");
}

TEST(KeyNames, ASwapOfTwoLettersIsKept) {
    const KeyNames names = namesOf({{12, 'w'}, {13, 'q'}});
    EXPECT_EQ(names.nameOf(12), "W");
    EXPECT_EQ(names.nameOf(13), "Q");
}

} // namespace
} // namespace tarnic
