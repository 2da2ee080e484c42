#include "platform/x11/OwnWindowRule.h"

#include <gtest/gtest.h>

namespace tarnic::x11 {
namespace {

constexpr long kOurs = 4242;

TEST(OwnWindowRule, OurProcessOnOurMachineIsOurs) {
    EXPECT_TRUE(isOwnWindow({kOurs, "desk"}, kOurs, "desk"));
    // Host names are the same name whatever their case.
    EXPECT_TRUE(isOwnWindow({kOurs, "Desk"}, kOurs, "desk"));
}

TEST(OwnWindowRule, AnotherProcessIsNotOurs) {
    EXPECT_FALSE(isOwnWindow({kOurs + 1, "desk"}, kOurs, "desk"));
    EXPECT_FALSE(isOwnWindow({1, "desk"}, kOurs, "desk"));
}

TEST(OwnWindowRule, OurProcessIdOnAnotherMachineIsNotOurs) {
    EXPECT_FALSE(isOwnWindow({kOurs, "other"}, kOurs, "desk"));
    EXPECT_FALSE(isOwnWindow({kOurs, "desk.example"}, kOurs, "desk"));
    EXPECT_FALSE(isOwnWindow({kOurs, ""}, kOurs, "desk"));
}

TEST(OwnWindowRule, AWindowThatDoesNotSayWhoMadeItIsNotOurs) {
    EXPECT_FALSE(isOwnWindow({}, kOurs, "desk"));
    EXPECT_FALSE(isOwnWindow({std::nullopt, "desk"}, kOurs, "desk"));
    // A process id without a machine could be any machine's.
    EXPECT_FALSE(isOwnWindow({kOurs, std::nullopt}, kOurs, "desk"));
}

TEST(OwnWindowRule, WithoutAHostNameOfOurOwnNothingIsOurs) {
    EXPECT_FALSE(isOwnWindow({kOurs, ""}, kOurs, ""));
}

} // namespace
} // namespace tarnic::x11
