#include "core/platform/KeyGate.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnic {
namespace {

using Seen = std::vector<std::string>;

class KeyGateTest : public ::testing::Test {
protected:
    KeyGateTest() {
        gate.addKeyDownHandler(
            [this](int code) { seen.push_back("down " + std::to_string(code)); });
        gate.addFlagsChangedHandler(
            [this](int code) { seen.push_back("flags " + std::to_string(code)); });
    }

    bool ownWindowActive = false;
    bool trusted = true;
    Seen seen;
    KeyGate gate{[this] { return ownWindowActive; }, [this] { return trusted; }};
};

TEST_F(KeyGateTest, KeysOfOtherApplicationsReachTheirHandlers) {
    EXPECT_TRUE(gate.keyDown(12));
    EXPECT_TRUE(gate.flagsChanged(56));
    EXPECT_EQ(seen, (Seen{"down 12", "flags 56"}));
}

TEST_F(KeyGateTest, NothingPassesWhileOwnWindowIsActive) {
    ownWindowActive = true;
    EXPECT_FALSE(gate.passes());
    EXPECT_FALSE(gate.keyDown(12));
    EXPECT_FALSE(gate.flagsChanged(56));
    EXPECT_TRUE(seen.empty());
    ownWindowActive = false;
    EXPECT_TRUE(gate.keyDown(12));
    EXPECT_EQ(seen, (Seen{"down 12"}));
}

TEST_F(KeyGateTest, NothingPassesWhileUntrusted) {
    trusted = false;
    EXPECT_FALSE(gate.passes());
    EXPECT_FALSE(gate.keyDown(12));
    EXPECT_FALSE(gate.flagsChanged(56));
    EXPECT_TRUE(seen.empty());
    trusted = true;
    EXPECT_TRUE(gate.flagsChanged(56));
    EXPECT_EQ(seen, (Seen{"flags 56"}));
}

TEST_F(KeyGateTest, TheQuestionsAreAskedAtEachKey) {
    int asked = 0;
    KeyGate counting{[&] {
        ++asked;
        return false;
    }};
    counting.keyDown(12);
    counting.keyDown(12);
    counting.flagsChanged(56);
    EXPECT_EQ(asked, 3);
}

TEST(KeyGate, WithoutPredicatesEveryKeyPasses) {
    KeyGate gate{{}};
    int reported = 0;
    gate.addKeyDownHandler([&](int) { ++reported; });
    EXPECT_TRUE(gate.passes());
    EXPECT_TRUE(gate.keyDown(12));
    EXPECT_EQ(reported, 1);
}

TEST(KeyGate, WithoutHandlersAPassingKeyGoesNowhere) {
    KeyGate gate{{}};
    EXPECT_TRUE(gate.keyDown(12));
    EXPECT_TRUE(gate.flagsChanged(56));
    EXPECT_EQ(gate.keyDownHandlerCount(), 0U);
    EXPECT_EQ(gate.flagsChangedHandlerCount(), 0U);
}

TEST(KeyGate, EveryHandlerRunsInOrderAndMayAddAnother) {
    KeyGate gate{{}};
    Seen seen;
    gate.addKeyDownHandler([&](int code) {
        seen.push_back("first " + std::to_string(code));
        if (gate.keyDownHandlerCount() == 2) {
            gate.addKeyDownHandler(
                [&](int later) { seen.push_back("added " + std::to_string(later)); });
        }
    });
    gate.addKeyDownHandler([&](int code) { seen.push_back("second " + std::to_string(code)); });
    gate.keyDown(12);
    EXPECT_EQ(seen, (Seen{"first 12", "second 12", "added 12"}));
    EXPECT_EQ(gate.keyDownHandlerCount(), 3U);
}

} // namespace
} // namespace tarnic
