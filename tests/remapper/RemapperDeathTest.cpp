// A binding cut short outside the program (fewer than three elements) cannot be read: the
// program stops with the index-out-of-range message at the first key press tested against it,
// and not before.
#include "core/bindings/BindingArray.h"
#include "core/remapper/RemapperSession.h"
#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

class RemapperDeathTest : public ::testing::Test {
protected:
    void SetUp() override {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        session.installObservers();
    }

    // Binds slot `slot` to the stored array `values`, as the store would read it.
    void bind(int slot, const std::vector<std::int64_t>& values) {
        bindings.of(slot) = bindingFromArray(values);
        session.setBindings(bindings);
    }

    Platform platform = makeFakePlatform();
    FakeParts fakes = fakeParts(platform);
    InventoryBindings bindings;
    RemapperSession session{platform};
};

TEST_F(RemapperDeathTest, TwoElementBindingEndsTheProgramAtTheFirstKeyPress) {
    bind(3, {3, 0});
    EXPECT_DEATH(fakes.keyObserver->pressKey(12), "Fatal error: Index out of range");
}

TEST_F(RemapperDeathTest, OneElementBindingEndsTheProgramWithAModifierHeld) {
    bind(1, {1});
    fakes.keyObserver->changeModifier(56);
    EXPECT_DEATH(fakes.keyObserver->pressKey(0), "Fatal error: Index out of range");
}

TEST_F(RemapperDeathTest, AnyKeyIsTestedAgainstTheShortBinding) {
    // Not only the key it might have named: every press reads every binding.
    bind(6, {6, 56});
    EXPECT_DEATH(fakes.keyObserver->pressKey(65535), "Index out of range");
}

TEST_F(RemapperDeathTest, WellFormedBindingsAroundItDoNotSaveIt) {
    bind(1, {1, 0, 12});
    bind(2, {2, 0});
    bind(3, {3, 0, 12});
    EXPECT_DEATH(fakes.keyObserver->pressKey(12), "Index out of range");
    // Without the short binding the same press taps both others.
    bind(2, {});
    fakes.keyObserver->pressKey(12);
    EXPECT_EQ(fakes.keyPoster->posts(),
              (std::vector<std::string>{"89 down", "89 up", "86 down", "86 up"}));
}

TEST_F(RemapperDeathTest, ShortBindingIsHarmlessUntilAKeyIsPressed) {
    bind(4, {4, 56});
    fakes.keyObserver->changeModifier(56);
    fakes.keyObserver->changeModifier(56);
    fakes.frontmostApplication->setBundleIdentifier("com.blizzard.WarcraftIII");
    session.eventWithTimer();
    EXPECT_TRUE(session.remapper().isWarRun);
    EXPECT_TRUE(fakes.keyPoster->posts().empty());
}

TEST_F(RemapperDeathTest, KeysInOwnWindowNeverReachTheShortBinding) {
    bind(1, {1, 0});
    fakes.keyObserver->setOwnApplicationFrontmost(true);
    EXPECT_FALSE(fakes.keyObserver->pressKey(12));
}

TEST_F(RemapperDeathTest, ModifierKeysAloneNeverReachTheShortBinding) {
    bind(1, {1, 56});
    for (const int modifier : {56, 60, 59, 58, 55, 57}) {
        EXPECT_TRUE(fakes.keyObserver->changeModifier(modifier));
    }
    EXPECT_TRUE(fakes.keyPoster->posts().empty());
}

TEST_F(RemapperDeathTest, UntrustedTheShortBindingIsNeverTested) {
    bind(1, {1, 0});
    fakes.accessibilityTrust->setTrusted(false);
    EXPECT_FALSE(fakes.keyObserver->pressKey(12));
}

// With an option holding the bound keys back, a key that may not tap tests no binding either: the
// short one ends the program only at a key that could have tapped.
class RemapperOptionsDeathTest : public ::testing::Test {
protected:
    void SetUp() override {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        session.installObservers();
    }

    void bind(int slot, const std::vector<std::int64_t>& values) {
        bindings.of(slot) = bindingFromArray(values);
        session.setBindings(bindings);
    }
    void setOptions(const InventoryOptions& options) {
        bindings.options = options;
        session.setBindings(bindings);
    }

    Platform platform = makeFakePlatform();
    FakeParts fakes = fakeParts(platform);
    InventoryBindings bindings;
    RemapperSession session{platform};
};

TEST_F(RemapperOptionsDeathTest, OnlyWhileTheGameIsInFrontKeysInOtherProgramsDoNotEndIt) {
    bind(2, {2, 0});
    setOptions({.onlyWhileGameInFront = true});
    fakes.frontmostWatcher->announce("notepad.exe");
    EXPECT_TRUE(fakes.keyObserver->pressKey(12));
    fakes.frontmostWatcher->announce("com.blizzard.WarcraftIII");
    EXPECT_DEATH(fakes.keyObserver->pressKey(12), "Index out of range");
}

TEST_F(RemapperOptionsDeathTest, WhileChatPausesTheKeysTheyDoNotEndIt) {
    bind(2, {2, 0});
    setOptions({.pauseWhileTypingInChat = true});
    fakes.frontmostWatcher->announce("com.blizzard.WarcraftIII");
    session.remapper().chatOpen = true;
    EXPECT_TRUE(fakes.keyObserver->pressKey(12));
    EXPECT_TRUE(fakes.keyObserver->pressKey(53)); // Escape closes the chat line
    EXPECT_DEATH(fakes.keyObserver->pressKey(12), "Index out of range");
}

} // namespace
} // namespace tarnic
