// The platform of a session without an X server, and the start-up choice that falls back to it.
#include "platform/null/NullPlatform.h"
#include "platform/select/MakePlatform.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tarnic {
namespace {

TEST(NullPlatform, IsUntrustedForWantOfAServerObservesNothingAndKnowsNoFrontmostApplication) {
    Platform platform = makeNullPlatform();
    ASSERT_NE(platform.keyObserver, nullptr);
    ASSERT_NE(platform.keyPoster, nullptr);
    ASSERT_NE(platform.frontmostApplication, nullptr);
    ASSERT_NE(platform.accessibilityTrust, nullptr);
    ASSERT_NE(platform.frontmostWatcher, nullptr);
    EXPECT_FALSE(platform.accessibilityTrust->isProcessTrusted());
    EXPECT_EQ(platform.accessibilityTrust->untrustedReason(), UntrustedReason::NoDisplayServer);
    EXPECT_EQ(platform.frontmostApplication->bundleIdentifier(), std::nullopt);
    EXPECT_EQ(platform.frontmostWatcher->frontmostIdentifier(), std::nullopt);
    // Handlers may be installed, changes taken in and keys posted; none of it does anything.
    int calls = 0;
    platform.keyObserver->addKeyDownMonitor([&calls](int) { ++calls; });
    platform.keyObserver->addFlagsChangedMonitor([&calls](int) { ++calls; });
    platform.frontmostWatcher->addChangeMonitor(
        [&calls](const std::optional<std::string>&) { ++calls; });
    platform.frontmostWatcher->takeInChanges();
    platform.keyPoster->postKeyDown(89);
    platform.keyPoster->postKeyUp(89);
    EXPECT_EQ(calls, 0);
}

TEST(MakePlatform, WithoutAnXServerTheProgramRunsUntrusted) {
    // A display name that no server answers to: what a session without X11 or XWayland gives.
    ASSERT_EQ(setenv("DISPLAY", ":65000", 1), 0);
    testing::internal::CaptureStderr();
    Platform platform = makePlatform();
    const std::string said = testing::internal::GetCapturedStderr();
    ASSERT_NE(platform.accessibilityTrust, nullptr);
    EXPECT_FALSE(platform.accessibilityTrust->isProcessTrusted());
    EXPECT_EQ(platform.accessibilityTrust->untrustedReason(), UntrustedReason::NoDisplayServer);
    EXPECT_EQ(platform.frontmostApplication->bundleIdentifier(), std::nullopt);
    EXPECT_NE(said.find("no X server"), std::string::npos) << said;
}

} // namespace
} // namespace tarnic
