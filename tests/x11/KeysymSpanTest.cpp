// The one-request keymap change worked out on a span of key entries written out here: our
// keycodes become one-level keys with a lone keysym or empty keys, every key between them is sent
// back exactly as it was.
#include "platform/x11/KeysymSpan.h"

#include <X11/keysym.h>
#include <gtest/gtest.h>

namespace tarnic::x11 {
namespace {

// Type indices as XKB numbers its canonical types.
constexpr std::uint8_t kOneLevel = 0;
constexpr std::uint8_t kTwoLevel = 1;
constexpr std::uint8_t kAlphabetic = 2;
constexpr std::uint8_t kKeypad = 3;

KeySymEntry letter(Keysym lower, Keysym upper) {
    // Two groups (the second a Cyrillic letter), the out-of-range "redirect" bits set.
    return {{kAlphabetic, kTwoLevel, kOneLevel, kOneLevel},
            0x82,
            2,
            {lower, upper, XK_Cyrillic_a, XK_Cyrillic_A}};
}

KeySymEntry empty() {
    return {{kOneLevel, kOneLevel, kOneLevel, kOneLevel}, 0, 0, {}};
}

KeySymSpan spanFrom(unsigned first, std::vector<KeySymEntry> entries) {
    return {first, std::move(entries)};
}

TEST(KeysymSpan, SpanRunsFromTheLowestToTheHighestKeycodeWhateverTheOrder) {
    EXPECT_EQ(spanOf({{248, XK_KP_7}, {202, XK_KP_2}, {230, XK_KP_8}}),
              (std::pair<unsigned, unsigned>{202, 248}));
    EXPECT_EQ(spanOf({{100, kNoSymbol}}), (std::pair<unsigned, unsigned>{100, 100}));
    EXPECT_EQ(spanOf({}), (std::pair<unsigned, unsigned>{0, 0}));
}

TEST(KeysymSpan, ClaimedKeycodesGetOneLevelAndOnlyTheirKeysymOthersStayAsTheyWere) {
    const KeySymEntry keypadKey = {
        {kKeypad, kOneLevel, kOneLevel, kOneLevel}, 0, 2, {XK_KP_Home, XK_KP_7}};
    KeySymSpan span = spanFrom(200, {empty(), letter(XK_q, XK_Q), keypadKey, empty(), empty()});
    const KeySymSpan before = span;

    ASSERT_TRUE(applyMappings(span, {{204, XK_KP_8}, {200, XK_KP_7}}));

    ASSERT_EQ(span.entries.size(), 5u);
    EXPECT_EQ(span.entries[0].syms, std::vector<Keysym>{XK_KP_7});
    EXPECT_EQ(span.entries[0].types[0], kOneLevel);
    EXPECT_EQ(span.entries[0].groupInfo & 0x0f, 1);
    EXPECT_EQ(span.entries[0].width, 1);
    EXPECT_EQ(span.entries[4].syms, std::vector<Keysym>{XK_KP_8});
    EXPECT_EQ(span.entries[4].groupInfo, 1);
    // Between them: byte for byte what they were, the unused keycode too.
    EXPECT_EQ(span.entries[1], before.entries[1]);
    EXPECT_EQ(span.entries[2], before.entries[2]);
    EXPECT_EQ(span.entries[3], before.entries[3]);
}

TEST(KeysymSpan, EmptiedKeycodesLoseEveryGroupAndKeysym) {
    KeySymEntry ours = {{kOneLevel, kTwoLevel, kOneLevel, kOneLevel}, 0x01, 1, {XK_KP_4}};
    KeySymSpan span = spanFrom(10, {ours, letter(XK_w, XK_W)});
    const KeySymEntry between = span.entries[1];

    ASSERT_TRUE(applyMappings(span, {{10, kNoSymbol}}));

    EXPECT_TRUE(span.entries[0].syms.empty());
    EXPECT_EQ(span.entries[0].groupInfo & 0x0f, 0);
    EXPECT_EQ(span.entries[0].types, (std::array<std::uint8_t, 4>{0, 0, 0, 0}));
    EXPECT_EQ(span.entries[1], between);
}

TEST(KeysymSpan, AKeycodeThatHeldAWiderKeyBecomesOneLevelKeepingItsOutOfRangeHandling) {
    KeySymSpan span = spanFrom(50, {letter(XK_e, XK_E)});
    ASSERT_TRUE(applyMappings(span, {{50, XK_KP_5}}));
    EXPECT_EQ(span.entries[0].syms, std::vector<Keysym>{XK_KP_5});
    EXPECT_EQ(span.entries[0].groupInfo, 0x81);
    EXPECT_EQ(span.entries[0].width, 1);
}

TEST(KeysymSpan, AMappingOutsideTheSpanChangesNothing) {
    KeySymSpan span = spanFrom(20, {empty(), empty()});
    const KeySymSpan before = span;
    EXPECT_FALSE(applyMappings(span, {{20, XK_KP_1}, {22, XK_KP_2}}));
    EXPECT_FALSE(applyMappings(span, {{19, XK_KP_1}}));
    EXPECT_EQ(span.entries, before.entries);
    KeySymSpan none;
    EXPECT_FALSE(applyMappings(none, {{0, XK_KP_1}}));
    EXPECT_TRUE(applyMappings(span, {}));
    EXPECT_EQ(span.entries, before.entries);
}

} // namespace
} // namespace tarnic::x11
