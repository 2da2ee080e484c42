#include "core/bindings/InventoryBindings.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

TEST(InventoryBindings, StartsUnboundWithBothOptionsOff) {
    const InventoryBindings bindings;
    for (int slot = 1; slot <= InventoryBindings::kSlotCount; ++slot) {
        EXPECT_FALSE(bindings.of(slot).has_value()) << slot;
    }
    EXPECT_EQ(bindings.options, kInventoryOptionsOff);
}

TEST(InventoryBindings, SlotOneIsTheFirstOfTheSix) {
    InventoryBindings bindings;
    bindings.of(1) = SlotBinding{1, 0, 12};
    bindings.of(6) = SlotBinding{6, 56, 6};
    EXPECT_EQ(bindings.slotBindings.front(), (SlotBinding{1, 0, 12}));
    EXPECT_EQ(bindings.slotBindings.back(), (SlotBinding{6, 56, 6}));
}

TEST(InventoryBindings, ACopyIsIndependentOfTheOriginal) {
    InventoryBindings original;
    original.of(3) = SlotBinding{3, 0, 12};
    const InventoryBindings copy = original;
    original.of(3).reset();
    original.options.onlyWhileGameInFront = true;
    EXPECT_EQ(copy.of(3), (SlotBinding{3, 0, 12}));
    EXPECT_FALSE(copy.options.onlyWhileGameInFront);
    EXPECT_NE(copy, original);
}

TEST(InventoryBindingsDeathTest, ASlotOutsideOneToSixIsAProgrammingError) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    InventoryBindings bindings;
    EXPECT_DEATH(bindings.of(0), "Index out of range");
    EXPECT_DEATH(bindings.of(7), "Index out of range");
}

} // namespace
} // namespace tarnic
