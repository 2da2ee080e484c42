// The decisions of the keypad claim, on keymaps written out here: no X server.
#include "platform/x11/KeypadClaimPlanner.h"

#include "platform/x11/X11KeyCodes.h"

#include <X11/keysym.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace tarnic::x11 {
namespace {

constexpr int kMinKeycode = 8;
constexpr int kMaxKeycode = 255;
constexpr int kPerKeycode = 4;

// A keymap where every keycode up to `lastUsed` holds a letter and the rest hold nothing.
class Keymap {
public:
    explicit Keymap(unsigned lastUsed) {
        for (unsigned k = kMinKeycode; k <= lastUsed; ++k) {
            set(k, {XK_a});
        }
    }
    void set(unsigned keycode, std::vector<Keysym> syms) {
        syms.resize(kPerKeycode, kNoSymbol);
        std::copy(syms.begin(), syms.end(),
                  keysyms_.begin() + (keycode - kMinKeycode) * kPerKeycode);
    }
    KeymapRows rows() const { return {kMinKeycode, kMaxKeycode, kPerKeycode, keysyms_}; }

private:
    std::vector<Keysym> keysyms_ =
        std::vector<Keysym>((kMaxKeycode - kMinKeycode + 1) * kPerKeycode, kNoSymbol);
};

const std::array<Keysym, 6> kDigitsInSlotOrder = {XK_KP_7, XK_KP_8, XK_KP_4,
                                                  XK_KP_5, XK_KP_1, XK_KP_2};

TEST(KeypadClaimPlanner, SlotsTapKeypadSevenEightFourFiveOneTwo) {
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(keypadDigitOfSlot(i), kDigitsInSlotOrder[i]) << "slot " << i + 1;
    }
    EXPECT_EQ(keypadDigitOfSlot(6), kNoSymbol);
}

TEST(KeypadClaimPlanner, FreshClaimTakesFreeKeycodesFromTheTopDown) {
    // 255 down to 248 are not in the key table (it names no physical key that high).
    ASSERT_FALSE(macKeyCodeOfXKeycode(255).has_value());
    const KeypadClaimPlan plan = planKeypadClaim(Keymap(200).rows(), {}, {}, {});
    EXPECT_EQ(plan.keycodes, (SlotKeycodes{255, 254, 253, 252, 251, 250}));
    EXPECT_TRUE(plan.kept.empty());
    EXPECT_TRUE(plan.cleared.empty());
    std::vector<KeycodeMapping> expected;
    for (std::size_t i = 0; i < 6; ++i) {
        expected.push_back({255 - static_cast<unsigned>(i), kDigitsInSlotOrder[i]});
    }
    EXPECT_EQ(plan.claimed, expected);
    EXPECT_EQ(plan.mappingChanges(), expected);
}

TEST(KeypadClaimPlanner, UsedAndModifierKeycodesAreNeverTaken) {
    Keymap keymap(200);
    keymap.set(254, {XK_F20});
    keymap.set(252, {kNoSymbol, kNoSymbol, XK_b}); // a keysym at a higher level only
    const KeypadClaimPlan plan = planKeypadClaim(keymap.rows(), {}, {}, {255, 251});
    EXPECT_EQ(plan.keycodes, (SlotKeycodes{253, 250, 249, 248, 247, 246}));
}

TEST(KeypadClaimPlanner, KeycodesOfPhysicalKeysAreTakenLast) {
    // Keycodes above 110 free, but only the ones the key table does not name come first.
    const KeypadClaimPlan plan = planKeypadClaim(Keymap(110).rows(), {}, {}, {});
    for (const unsigned keycode : plan.keycodes) {
        EXPECT_FALSE(macKeyCodeOfXKeycode(keycode).has_value()) << keycode;
    }
    // With only physical keys' keycodes free, they are taken after all.
    Keymap crowded(255);
    unsigned physical = 0;
    for (unsigned k = 255; k >= kMinKeycode && physical == 0; --k) {
        if (macKeyCodeOfXKeycode(k)) {
            physical = k;
        }
    }
    ASSERT_NE(physical, 0U);
    crowded.set(physical, {});
    const KeypadClaimPlan fallback = planKeypadClaim(crowded.rows(), {}, {}, {});
    EXPECT_EQ(fallback.keycodes, (SlotKeycodes{physical, 0, 0, 0, 0, 0}));
}

TEST(KeypadClaimPlanner, OwnKeycodesThatHoldTheirDigitAreKept) {
    Keymap keymap(200);
    const SlotKeycodes ours{240, 241, 242, 243, 244, 245};
    for (std::size_t i = 0; i < 6; ++i) {
        keymap.set(ours[i], {kDigitsInSlotOrder[i]});
    }
    const KeypadClaimPlan plan = planKeypadClaim(keymap.rows(), ours, ours, {});
    EXPECT_EQ(plan.keycodes, ours);
    EXPECT_EQ(plan.kept, (std::vector<unsigned>{240, 241, 242, 243, 244, 245}));
    EXPECT_TRUE(plan.mappingChanges().empty());
}

TEST(KeypadClaimPlanner, RecordedLeftoversAreReusedOnlyWhileTheyHoldExactlyTheirDigit) {
    Keymap keymap(200);
    keymap.set(240, {XK_KP_7});          // a leftover: reused
    keymap.set(241, {XK_KP_8, XK_KP_8}); // repeated in the second group: still only KP_8
    keymap.set(242, {XK_KP_4, XK_Left}); // the player's own mapping: not ours
    keymap.set(243, {XK_KP_1});          // recorded for slot 4, but holds slot 5's digit
    const SlotKeycodes recorded{240, 241, 242, 243, 0, 0};
    const KeypadClaimPlan plan = planKeypadClaim(keymap.rows(), {}, recorded, {});
    EXPECT_EQ(plan.keycodes[0], 240U);
    EXPECT_EQ(plan.keycodes[1], 241U);
    EXPECT_NE(plan.keycodes[2], 242U);
    EXPECT_NE(plan.keycodes[3], 243U);
    EXPECT_EQ(plan.kept, (std::vector<unsigned>{240, 241}));
    EXPECT_TRUE(plan.cleared.empty());
    for (const KeycodeMapping& mapping : plan.mappingChanges()) {
        EXPECT_TRUE(mapping.keycode != 242 && mapping.keycode != 243) << mapping.keycode;
    }
}

TEST(KeypadClaimPlanner, ALeftoverOfADigitAlreadyHeldElsewhereIsCleared) {
    Keymap keymap(200);
    keymap.set(250, {XK_KP_7}); // ours
    keymap.set(230, {XK_KP_7}); // the record's, from another run
    SlotKeycodes ours{};
    ours[0] = 250;
    SlotKeycodes recorded{};
    recorded[0] = 230;
    const KeypadClaimPlan plan = planKeypadClaim(keymap.rows(), ours, recorded, {});
    EXPECT_EQ(plan.keycodes[0], 250U);
    EXPECT_EQ(plan.cleared, (std::vector<unsigned>{230}));
    ASSERT_FALSE(plan.mappingChanges().empty());
    EXPECT_EQ(plan.mappingChanges().front(), (KeycodeMapping{230, kNoSymbol}));
    EXPECT_EQ(std::count(plan.keycodes.begin(), plan.keycodes.end(), 230U), 0);
}

TEST(KeypadClaimPlanner, WhenFreeKeycodesRunOutTheLastSlotsGetNone) {
    const KeypadClaimPlan plan = planKeypadClaim(Keymap(251).rows(), {}, {}, {});
    EXPECT_EQ(plan.keycodes, (SlotKeycodes{255, 254, 253, 252, 0, 0}));
    EXPECT_EQ(plan.claimed.size(), 4U);
}

TEST(KeypadClaimPlanner, AnEmptyKeymapGivesNothing) {
    const KeypadClaimPlan plan = planKeypadClaim(KeymapRows(), {}, {}, {});
    EXPECT_EQ(plan.keycodes, SlotKeycodes{});
    EXPECT_TRUE(plan.mappingChanges().empty());
    // A reply shorter than its own range counts as no keymap.
    const KeymapRows truncated(8, 255, 2, std::vector<Keysym>(10, kNoSymbol));
    EXPECT_FALSE(truncated.unused(9));
    EXPECT_EQ(planKeypadClaim(truncated, {}, {}, {}).keycodes, SlotKeycodes{});
}

TEST(KeypadClaimPlanner, KeycodesNoLongerHoldingTheirDigitAreDropped) {
    Keymap keymap(200);
    keymap.set(250, {XK_KP_7});
    keymap.set(249, {XK_z}); // a new keymap put a key there
    keymap.set(248, {XK_KP_5});
    const SlotKeycodes held = keycodesStillHeld(keymap.rows(), {250, 249, 0, 248, 300, 0});
    EXPECT_EQ(held, (SlotKeycodes{250, 0, 0, 248, 0, 0}));
}

TEST(KeypadClaimPlanner, ReleaseClearsWhatStillHoldsItsDigitAndTakesOursOutOfTheRecord) {
    Keymap keymap(200);
    keymap.set(250, {XK_KP_7});
    keymap.set(249, {XK_z});
    const KeypadReleasePlan plan =
        planKeypadRelease(keymap.rows(), {250, 249, 0, 0, 0, 0}, {250, 249, 0, 0, 0, 230});
    EXPECT_EQ(plan.cleared, (std::vector<unsigned>{250}));
    // Another instance's record of slot 6 stays.
    EXPECT_EQ(plan.record, (SlotKeycodes{0, 0, 0, 0, 0, 230}));
}

} // namespace
} // namespace tarnic::x11
