#include "core/editor/InventoryBinding.h"

#include "core/bindings/BindingArray.h"
#include "core/vocabulary/KeyCodes.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

// A binding as the store's array form gives it, cut short or not.
std::optional<SlotBinding> stored(const std::vector<std::int64_t>& values) {
    return bindingFromArray(values);
}

TEST(InventoryBinding, SlotThreeWithoutShiftOnQ) {
    EXPECT_EQ(bindingFrom(3, "Q", false), (SlotBinding{3, 0, 12}));
}

TEST(InventoryBinding, SlotOneWithShiftOnOne) {
    EXPECT_EQ(bindingFrom(1, "1", true), (SlotBinding{1, 56, 18}));
}

TEST(InventoryBinding, SelectGivesNoKey) {
    EXPECT_EQ(bindingFrom(4, select, false), (SlotBinding{4, 0, -1}));
    EXPECT_EQ(bindingFrom(6, select, true), (SlotBinding{6, 56, -1}));
}

TEST(InventoryBinding, NoSlotChosenKeepsNothing) {
    EXPECT_FALSE(bindingFrom(0, "Q", true).has_value());
    EXPECT_FALSE(bindingFrom(7, "Q", true).has_value());
}

TEST(InventoryBinding, EveryPopupLabelHasItsOwnCode) {
    for (auto label : keyboardKeys) {
        EXPECT_EQ(triggerCodeOf(label), codeOfLabel(label).value());
    }
    for (auto label : keyboardKeysNum) {
        EXPECT_EQ(triggerCodeOf(label), codeOfLabel(label).value());
    }
    EXPECT_EQ(triggerCodeOf("no such key"), -1);
}

TEST(InventoryBinding, UnboundSlotShowsSelectAndNoShift) {
    const auto shown = displayOf(std::nullopt);
    EXPECT_EQ(shown.title, "Select");
    EXPECT_FALSE(shown.shift);
}

TEST(InventoryBinding, BoundModelShowsItsKeyAndModifier) {
    EXPECT_EQ(displayOf(SlotBinding{3, 0, 12}).title, "Q");
    EXPECT_FALSE(displayOf(SlotBinding{3, 0, 12}).shift);
    EXPECT_EQ(displayOf(SlotBinding{1, 56, 18}).title, "1");
    EXPECT_TRUE(displayOf(SlotBinding{1, 56, 18}).shift);
}

TEST(InventoryBinding, UnknownCodeShowsSelectWithTheStoredModifier) {
    const auto shown = displayOf(SlotBinding{5, 56, 999});
    EXPECT_EQ(shown.title, "Select");
    EXPECT_TRUE(shown.shift);
    EXPECT_EQ(displayOf(SlotBinding{2, 0, -1}).title, "Select");
    EXPECT_FALSE(displayOf(SlotBinding{2, 0, -1}).shift);
}

TEST(InventoryBinding, AnyNonZeroModifierTicksTheBox) {
    EXPECT_TRUE(displayOf(SlotBinding{2, 59, 12}).shift);
}

TEST(InventoryBinding, SelectRoundTripsThroughDisplay) {
    const auto model = *bindingFrom(2, select, true);
    const auto shown = displayOf(model);
    EXPECT_EQ(shown.title, "Select");
    EXPECT_TRUE(shown.shift);
}

TEST(InventoryBinding, SlotTitleNamesTheBindingOrNone) {
    EXPECT_EQ(slotTitle(1, std::nullopt), "Slot 1  none");
    EXPECT_EQ(slotTitle(1, SlotBinding{1, 56, 6}), "Slot 1  Shift+Z");
    EXPECT_EQ(slotTitle(3, SlotBinding{3, 0, 12}), "Slot 3  Q");
    EXPECT_EQ(slotTitle(6, SlotBinding{6, 0, 49}), "Slot 6  Space");
    EXPECT_EQ(slotTitle(2, SlotBinding{2, 56, 18}), "Slot 2  Shift+1");
}

TEST(InventoryBinding, SlotTitleOfABindingWithoutAKeySaysSo) {
    EXPECT_EQ(slotTitle(2, SlotBinding{2, 0, -1}), "Slot 2  (no key)");
    EXPECT_EQ(slotTitle(5, SlotBinding{5, 56, -1}), "Slot 5  Shift+(no key)");
    // A key code with no label in the pop-up can be a key all the same.
    EXPECT_EQ(slotTitle(5, SlotBinding{5, 0, 127}), "Slot 5  (no key)");
    // Any modifier but 0 shows as Shift, as the panel's box does.
    EXPECT_EQ(slotTitle(4, SlotBinding{4, 59, 12}), "Slot 4  Shift+Q");
}

TEST(InventoryBinding, SlotTitleOfAShortBindingSaysItIsDamagedInsteadOfEndingTheProgram) {
    EXPECT_EQ(slotTitle(2, stored({2, 0})), "Slot 2  (damaged)");
    EXPECT_EQ(slotTitle(3, stored({3})), "Slot 3  (damaged)");
}

TEST(InventoryBinding, SlotTitleOfABindingThatCanNeverTapSaysItIsDamaged) {
    // The slot is the stored value itself: the game has no seventh slot, and nothing taps.
    EXPECT_EQ(slotTitle(1, SlotBinding{7, 0, 6}), "Slot 1  (damaged)");
    EXPECT_EQ(slotTitle(1, SlotBinding{0, 0, 6}), "Slot 1  (damaged)");
    EXPECT_EQ(slotTitle(2, SlotBinding{-2, 56, 6}), "Slot 2  (damaged)");
    // No key has a code past 127, or below 0 but "Select"'s -1.
    EXPECT_EQ(slotTitle(5, SlotBinding{5, 56, 999}), "Slot 5  (damaged)");
    EXPECT_EQ(slotTitle(5, SlotBinding{5, 0, -2}), "Slot 5  (damaged)");
    EXPECT_EQ(slotTitle(3, SlotBinding{3, 4096, 12}), "Slot 3  (damaged)");
    EXPECT_EQ(slotTitle(3, SlotBinding{3, -1, 12}), "Slot 3  (damaged)");
    // The edges that can still tap.
    EXPECT_EQ(slotTitle(6, SlotBinding{6, 0, 0}), "Slot 6  A");
    EXPECT_EQ(slotTitle(1, SlotBinding{1, 60, 6}), "Slot 1  Shift+Z");
}

TEST(InventoryBinding, SlotTitleIsTheButtonsSlotWhateverTheModelSays) {
    EXPECT_EQ(slotTitle(4, SlotBinding{1, 0, 12}), "Slot 4  Q");
}

TEST(InventoryBindingDeathTest, ShortBindingIsAnIndexOutOfRange) {
    EXPECT_DEATH(displayOf(stored({1, 0})), "Index out of range");
}

} // namespace
} // namespace tarnic
