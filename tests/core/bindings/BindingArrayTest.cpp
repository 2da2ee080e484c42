#include "core/bindings/BindingArray.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

using Values = std::vector<std::int64_t>;

TEST(BindingArray, EmptyArrayIsNoBinding) {
    EXPECT_FALSE(bindingFromArray(Values{}).has_value());
}

TEST(BindingArray, ThreeValuesAreSlotModifierAndKey) {
    const std::optional<SlotBinding> binding = bindingFromArray(Values{3, 56, 12});
    ASSERT_TRUE(binding.has_value());
    EXPECT_EQ(binding->slot, 3);
    EXPECT_EQ(binding->modifier, 56);
    EXPECT_EQ(binding->key, 12);
    EXPECT_FALSE(binding->isCutShort());
    EXPECT_EQ(arrayOf(*binding), (Values{3, 56, 12}));
}

TEST(BindingArray, ValuesAreKeptAsStoredWhateverTheirRange) {
    // A slot the game does not have, and codes no key has: kept, so that the panel can say the
    // binding is damaged and the remapper taps nothing for it.
    const SlotBinding binding = bindingFromArray(Values{-9, 4096, 999}).value();
    EXPECT_EQ(binding, (SlotBinding{-9, 4096, 999}));
    EXPECT_EQ(arrayOf(binding), (Values{-9, 4096, 999}));
}

TEST(BindingArray, ALongerArrayBindsByItsFirstThreeValues) {
    EXPECT_EQ(bindingFromArray(Values{5, 0, 12, 7, -1}), (SlotBinding{5, 0, 12}));
}

TEST(BindingArray, AShortArrayKeepsWhatItHasAndHowMany) {
    const SlotBinding two = bindingFromArray(Values{2, 56}).value();
    EXPECT_TRUE(two.isCutShort());
    EXPECT_EQ(two.held, 2u);
    EXPECT_EQ(two.slot, 2);
    EXPECT_EQ(two.modifier, 56);
    EXPECT_EQ(arrayOf(two), (Values{2, 56}));
    const SlotBinding one = bindingFromArray(Values{4}).value();
    EXPECT_EQ(one.held, 1u);
    EXPECT_EQ(arrayOf(one), (Values{4}));
    EXPECT_NE(one, (SlotBinding{4}));
}

TEST(BindingArray, ModifierAndKeyOfAWholeBindingAreItsValues) {
    EXPECT_EQ(modifierOf(SlotBinding{1, 56, 6}), 56);
    EXPECT_EQ(keyOf(SlotBinding{1, 56, 6}), 6);
}

TEST(BindingArrayDeathTest, ReadingAValueAShortBindingLacksIsAnIndexOutOfRange) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const SlotBinding two = bindingFromArray(Values{2, 56}).value();
    EXPECT_EQ(modifierOf(two), 56);
    EXPECT_DEATH(keyOf(two), "Index out of range.*2 elements, element 2 was read");
    const SlotBinding one = bindingFromArray(Values{2}).value();
    EXPECT_DEATH(modifierOf(one), "Index out of range.*1 elements, element 1 was read");
}

} // namespace
} // namespace tarnic
