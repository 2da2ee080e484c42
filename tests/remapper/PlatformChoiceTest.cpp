// The start-up choice of platform.
#include "platform/fake/FakePlatform.h"
#include "platform/select/MakePlatform.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tarnic {
namespace {

TEST(PlatformChoice, FakeOnlyWhenAskedForByName) {
    EXPECT_EQ(platformChoice("fake"), PlatformChoice::Fake);
    EXPECT_EQ(platformChoice(nullptr), PlatformChoice::X11);
    EXPECT_EQ(platformChoice(""), PlatformChoice::X11);
    EXPECT_EQ(platformChoice("x11"), PlatformChoice::X11);
    EXPECT_EQ(platformChoice("Fake"), PlatformChoice::X11);
    EXPECT_EQ(platformChoice("fake "), PlatformChoice::X11);
}

TEST(PlatformChoice, KnowsItsNames) {
    EXPECT_TRUE(isKnownPlatformName(nullptr));
    EXPECT_TRUE(isKnownPlatformName(""));
    EXPECT_TRUE(isKnownPlatformName("x11"));
    EXPECT_TRUE(isKnownPlatformName("fake"));
    EXPECT_FALSE(isKnownPlatformName("wayland"));
}

TEST(MakePlatform, EnvironmentVariableChoosesTheFakes) {
    ASSERT_EQ(setenv(kPlatformVariable, "fake", 1), 0);
    Platform platform = makePlatform();
    unsetenv(kPlatformVariable);
    const FakeParts fakes = fakeParts(platform);
    ASSERT_NE(fakes.keyObserver, nullptr);
    ASSERT_NE(fakes.keyPoster, nullptr);
    ASSERT_NE(fakes.frontmostApplication, nullptr);
    ASSERT_NE(fakes.accessibilityTrust, nullptr);
    EXPECT_TRUE(platform.accessibilityTrust->isProcessTrusted());
}

#ifndef TARNIC_HAVE_X11
TEST(MakePlatform, WithoutTheX11BackendTheDefaultIsAnUntrustedStandIn) {
    unsetenv(kPlatformVariable);
    Platform platform = makePlatform();
    ASSERT_NE(platform.keyObserver, nullptr);
    ASSERT_NE(platform.keyPoster, nullptr);
    ASSERT_NE(platform.frontmostApplication, nullptr);
    ASSERT_NE(platform.accessibilityTrust, nullptr);
    EXPECT_FALSE(platform.accessibilityTrust->isProcessTrusted());
}
#endif

} // namespace
} // namespace tarnic
