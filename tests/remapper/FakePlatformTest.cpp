// The recording fakes behave as the real platform would, so that the scenarios mean something.
#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

using Posts = std::vector<std::string>;

TEST(FakeKeyObserver, ReportsKeysToEveryInstalledHandlerInOrder) {
    FakeKeyObserver observer;
    std::vector<std::string> seen;
    observer.addKeyDownMonitor([&](int code) { seen.push_back("a down " + std::to_string(code)); });
    observer.addKeyDownMonitor([&](int code) { seen.push_back("b down " + std::to_string(code)); });
    observer.addFlagsChangedMonitor(
        [&](int code) { seen.push_back("flags " + std::to_string(code)); });
    EXPECT_TRUE(observer.pressKey(12));
    EXPECT_TRUE(observer.changeModifier(56));
    EXPECT_EQ(seen, (Posts{"a down 12", "b down 12", "flags 56"}));
    EXPECT_EQ(observer.keyDownMonitorCount(), 2U);
    EXPECT_EQ(observer.flagsChangedMonitorCount(), 1U);
}

TEST(FakeKeyObserver, WithoutHandlersAKeyGoesNowhere) {
    FakeKeyObserver observer;
    EXPECT_TRUE(observer.pressKey(12));
    EXPECT_TRUE(observer.changeModifier(56));
}

TEST(FakeKeyObserver, ReportsNothingWhileOwnWindowIsActive) {
    FakeKeyObserver observer;
    int reported = 0;
    observer.addKeyDownMonitor([&](int) { ++reported; });
    observer.addFlagsChangedMonitor([&](int) { ++reported; });
    observer.setOwnApplicationFrontmost(true);
    EXPECT_FALSE(observer.pressKey(12));
    EXPECT_FALSE(observer.changeModifier(56));
    EXPECT_EQ(reported, 0);
    observer.setOwnApplicationFrontmost(false);
    EXPECT_TRUE(observer.pressKey(12));
    EXPECT_EQ(reported, 1);
}

TEST(FakeKeyObserver, ReportsNothingWhileUntrusted) {
    FakeAccessibilityTrust trust;
    FakeKeyObserver observer(&trust);
    int reported = 0;
    observer.addKeyDownMonitor([&](int) { ++reported; });
    trust.setTrusted(false);
    EXPECT_FALSE(observer.pressKey(12));
    trust.setTrusted(true);
    EXPECT_TRUE(observer.pressKey(12));
    EXPECT_EQ(reported, 1);
}

TEST(FakeKeyObserver, HandlerMayInstallAnotherMonitorWhileRunning) {
    FakeKeyObserver observer;
    int later = 0;
    observer.addKeyDownMonitor([&](int) {
        if (observer.keyDownMonitorCount() == 1) {
            observer.addKeyDownMonitor([&](int) { ++later; });
        }
    });
    observer.pressKey(1);
    observer.pressKey(2);
    EXPECT_EQ(later, 2); // the new one already hears the press that installed it
    EXPECT_EQ(observer.keyDownMonitorCount(), 2U);
}

TEST(RecordingKeyPoster, RecordsDownsAndUpsInOrder) {
    RecordingKeyPoster poster;
    poster.postKeyDown(89);
    poster.postKeyUp(89);
    poster.postKeyUp(7);
    EXPECT_EQ(poster.posts(), (Posts{"89 down", "89 up", "7 up"}));
    EXPECT_EQ(poster.requestCount(), 3U);
}

TEST(RecordingKeyPoster, FailsOnlyTheNextKeyDown) {
    RecordingKeyPoster poster;
    poster.failNextKeyDown();
    poster.postKeyUp(91); // a key-up does not use up the failure
    poster.postKeyDown(91);
    poster.postKeyDown(91);
    EXPECT_EQ(poster.posts(), (Posts{"91 up", "91 down"}));
    EXPECT_EQ(poster.requestCount(), 3U);
}

TEST(RecordingKeyPoster, ClearForgetsPostsAndPendingFailure) {
    RecordingKeyPoster poster;
    poster.postKeyDown(1);
    poster.failNextKeyDown();
    poster.clear();
    poster.postKeyDown(2);
    EXPECT_EQ(poster.posts(), (Posts{"2 down"}));
}

TEST(FakeFrontmostApplication, StartsWithNoneAndReturnsWhatWasSet) {
    FakeFrontmostApplication frontmost;
    EXPECT_EQ(frontmost.bundleIdentifier(), std::nullopt);
    frontmost.setBundleIdentifier("notepad.exe");
    EXPECT_EQ(frontmost.bundleIdentifier(), std::optional<std::string>("notepad.exe"));
    frontmost.setBundleIdentifier(std::nullopt);
    EXPECT_EQ(frontmost.bundleIdentifier(), std::nullopt);
    EXPECT_EQ(frontmost.queryCount(), 3U);
}

TEST(FakeAccessibilityTrust, TrustedUntilToldOtherwise) {
    FakeAccessibilityTrust trust;
    EXPECT_TRUE(trust.isProcessTrusted());
    EXPECT_EQ(trust.untrustedReason(), UntrustedReason::Trusted);
    trust.setTrusted(false);
    EXPECT_FALSE(trust.isProcessTrusted());
    EXPECT_EQ(trust.untrustedReason(), UntrustedReason::RecordingRefused);
    trust.setUntrusted(UntrustedReason::NoKeyRecording);
    EXPECT_FALSE(trust.isProcessTrusted());
    EXPECT_EQ(trust.untrustedReason(), UntrustedReason::NoKeyRecording);
    trust.setTrusted(true);
    EXPECT_EQ(trust.untrustedReason(), UntrustedReason::Trusted);
}

TEST(FakeFrontmostWatcher, TellsEveryHandlerOfEachRealChange) {
    FakeFrontmostWatcher watcher;
    std::vector<std::string> seen;
    watcher.addChangeMonitor([&](const std::optional<std::string>& identifier) {
        seen.push_back(identifier.value_or("none"));
    });
    EXPECT_EQ(watcher.frontmostIdentifier(), std::nullopt);
    watcher.announce("a.exe");
    watcher.announce("a.exe"); // no change: not told
    watcher.announce(std::nullopt);
    EXPECT_EQ(seen, (Posts{"a.exe", "none"}));
    EXPECT_EQ(watcher.frontmostIdentifier(), std::nullopt);
}

TEST(FakeFrontmostWatcher, UnreadAnnouncementsWaitUntilTakenIn) {
    FakeFrontmostWatcher watcher;
    std::vector<std::string> seen;
    watcher.addChangeMonitor([&](const std::optional<std::string>& identifier) {
        seen.push_back(identifier.value_or("none"));
    });
    watcher.announceUnread("a.exe");
    watcher.announceUnread("b.exe");
    EXPECT_EQ(watcher.frontmostIdentifier(), std::nullopt);
    EXPECT_TRUE(seen.empty());
    watcher.takeInChanges();
    EXPECT_EQ(seen, (Posts{"a.exe", "b.exe"}));
    EXPECT_EQ(watcher.frontmostIdentifier(), "b.exe");
    watcher.takeInChanges();
    EXPECT_EQ(seen.size(), 2U);
    EXPECT_EQ(watcher.takeInCount(), 2U);
}

TEST(FakePlatform, HoldsAllFiveFakesAndHandsThemOut) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    ASSERT_NE(fakes.keyObserver, nullptr);
    ASSERT_NE(fakes.keyPoster, nullptr);
    ASSERT_NE(fakes.frontmostApplication, nullptr);
    ASSERT_NE(fakes.accessibilityTrust, nullptr);
    ASSERT_NE(fakes.frontmostWatcher, nullptr);
    EXPECT_EQ(fakes.frontmostWatcher, platform.frontmostWatcher.get());
    EXPECT_EQ(platform.frontmostWatcher->frontmostIdentifier(), std::nullopt);
    EXPECT_EQ(fakes.keyObserver, platform.keyObserver.get());
    EXPECT_EQ(fakes.keyPoster, platform.keyPoster.get());
    EXPECT_TRUE(platform.accessibilityTrust->isProcessTrusted());
    EXPECT_EQ(platform.frontmostApplication->bundleIdentifier(), std::nullopt);
}

TEST(FakePlatform, ObserverFollowsThePlatformsTrust) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    int reported = 0;
    platform.keyObserver->addKeyDownMonitor([&](int) { ++reported; });
    fakes.accessibilityTrust->setTrusted(false);
    EXPECT_FALSE(fakes.keyObserver->pressKey(12));
    EXPECT_EQ(reported, 0);
}

// A platform of other parts gives no fakes.
class OtherPoster : public KeyPoster {
public:
    void postKeyDown(std::uint16_t) override {}
    void postKeyUp(std::uint16_t) override {}
};

TEST(FakePlatform, FakePartsAreNullForOtherImplementations) {
    Platform platform = makeFakePlatform();
    platform.keyPoster = std::make_unique<OtherPoster>();
    const FakeParts fakes = fakeParts(platform);
    EXPECT_EQ(fakes.keyPoster, nullptr);
    EXPECT_NE(fakes.keyObserver, nullptr);
    EXPECT_EQ(fakeParts(Platform{}).keyObserver, nullptr);
}

} // namespace
} // namespace tarnic
