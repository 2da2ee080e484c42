#include "platform/x11/X11KeyRouter.h"
#include "support/XKeycodes.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <algorithm>
#include <string>
#include <vector>

namespace tarnic::x11 {
namespace {

using test::x;

class X11KeyRouterTest : public ::testing::Test {
protected:
    X11KeyRouterTest() {
        router.addKeyDownHandler(
            [this](int code) { seen.push_back("down " + std::to_string(code)); });
        router.addFlagsChangedHandler(
            [this](int code) { seen.push_back("flags " + std::to_string(code)); });
    }

    bool ownActive = false;
    std::vector<std::string> seen;
    X11KeyRouter router{[this] { return ownActive; }};
};

TEST_F(X11KeyRouterTest, KeyPressesAreKeyDownsInMacCodes) {
    router.keyPressed(x(KEY_Q));
    router.keyPressed(x(KEY_Q)); // auto-repeat
    router.keyPressed(x(KEY_KP7));
    EXPECT_EQ(seen, (std::vector<std::string>{"down 12", "down 12", "down 89"}));
}

TEST_F(X11KeyRouterTest, TheChatLinesKeysAreKeyDownsToo) {
    // Return, keypad Enter and Escape open, send and close the game's chat line.
    router.keyPressed(x(KEY_ENTER));
    router.keyPressed(x(KEY_KPENTER));
    router.keyPressed(x(KEY_ESC));
    router.keyReleased(x(KEY_ENTER));
    EXPECT_EQ(seen, (std::vector<std::string>{"down 36", "down 76", "down 53"}));
}

TEST_F(X11KeyRouterTest, OrdinaryReleasesAreDropped) {
    router.keyReleased(x(KEY_Q));
    router.keyReleased(x(KEY_KP7));
    EXPECT_TRUE(seen.empty());
}

TEST_F(X11KeyRouterTest, ModifierPressesAndReleasesAreModifierChanges) {
    router.keyPressed(x(KEY_LEFTSHIFT));
    router.keyReleased(x(KEY_LEFTSHIFT));
    router.keyPressed(x(KEY_RIGHTSHIFT));
    router.keyPressed(x(KEY_RIGHTCTRL));
    router.keyPressed(x(KEY_LEFTALT));
    router.keyPressed(x(KEY_RIGHTMETA));
    router.keyReleased(x(KEY_CAPSLOCK));
    EXPECT_EQ(seen, (std::vector<std::string>{"flags 56", "flags 56", "flags 60", "flags 62",
                                              "flags 58", "flags 54", "flags 57"}));
}

TEST_F(X11KeyRouterTest, UnknownKeycodesAreNotReported) {
    router.keyPressed(0);
    router.keyPressed(x(KEY_FN));
    router.keyReleased(x(KEY_FN));
    EXPECT_TRUE(seen.empty());
}

TEST_F(X11KeyRouterTest, NothingIsReportedWhileOwnWindowIsActive) {
    ownActive = true;
    router.keyPressed(x(KEY_Q));
    router.keyPressed(x(KEY_LEFTSHIFT));
    router.keyReleased(x(KEY_LEFTSHIFT));
    EXPECT_TRUE(seen.empty());
    ownActive = false;
    router.keyPressed(x(KEY_Q));
    EXPECT_EQ(seen, (std::vector<std::string>{"down 12"}));
}

TEST(X11KeyRouter, KeycodesOfOurOwnTapsAreNeitherKeyDownsNorModifierChanges) {
    std::vector<std::string> seen;
    // 248: a keycode no key uses; F13 and the left Shift: keycodes the table knows, which the
    // router must drop all the same while they are ours.
    const std::vector<unsigned> own = {248, x(KEY_F13), x(KEY_LEFTSHIFT)};
    X11KeyRouter router{
        [] { return false; },
        [&](unsigned keycode) { return std::find(own.begin(), own.end(), keycode) != own.end(); }};
    router.addKeyDownHandler([&](int code) { seen.push_back("down " + std::to_string(code)); });
    router.addFlagsChangedHandler(
        [&](int code) { seen.push_back("flags " + std::to_string(code)); });
    for (const unsigned keycode : own) {
        router.keyPressed(keycode);
        router.keyReleased(keycode);
    }
    EXPECT_TRUE(seen.empty());
    router.keyPressed(x(KEY_Q));
    router.keyPressed(x(KEY_RIGHTSHIFT));
    router.keyReleased(x(KEY_RIGHTSHIFT));
    EXPECT_EQ(seen, (std::vector<std::string>{"down 12", "flags 60", "flags 60"}));
}

TEST(X11KeyRouter, EveryHandlerRunsInOrderAndMayAddAnother) {
    std::vector<std::string> seen;
    X11KeyRouter router{[] { return false; }};
    router.addKeyDownHandler([&](int code) {
        seen.push_back("first " + std::to_string(code));
        if (seen.size() == 1) {
            router.addKeyDownHandler([&](int c) { seen.push_back("late " + std::to_string(c)); });
        }
    });
    router.addKeyDownHandler([&](int code) { seen.push_back("second " + std::to_string(code)); });
    router.keyPressed(x(KEY_A));
    router.keyPressed(x(KEY_S));
    EXPECT_EQ(seen, (std::vector<std::string>{"first 0", "second 0", "late 0", "first 1",
                                              "second 1", "late 1"}));
}

TEST(X11KeyRouter, WithoutAPredicateEveryKeyIsOthers) {
    int downs = 0;
    X11KeyRouter router{{}};
    router.addKeyDownHandler([&](int) { ++downs; });
    router.keyPressed(x(KEY_Q));
    EXPECT_EQ(downs, 1);
}

} // namespace
} // namespace tarnic::x11
