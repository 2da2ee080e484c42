// The glue between the remapper and a platform: what it installs and what it leaves out.
#include "core/remapper/RemapperSession.h"
#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

#include <memory>

namespace tarnic {
namespace {

using Posts = std::vector<std::string>;

TEST(RemapperSession, ObservesNothingUntilInstalled) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    InventoryRemapper::Models models;
    models[0] = {1, 0, 12};
    RemapperSession session(models, platform);
    fakes.keyObserver->pressKey(12);
    fakes.keyObserver->changeModifier(56);
    EXPECT_TRUE(fakes.keyPoster->posts().empty());
    EXPECT_FALSE(session.remapper().isFlag);
    EXPECT_EQ(fakes.keyObserver->keyDownMonitorCount(), 0U);
}

TEST(RemapperSession, InstallsOneKeyDownAndOneModifierMonitor) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    InventoryRemapper::Models models;
    models[1] = {2, 56, 12};
    RemapperSession session(models, platform);
    session.installObservers();
    EXPECT_EQ(fakes.keyObserver->keyDownMonitorCount(), 1U);
    EXPECT_EQ(fakes.keyObserver->flagsChangedMonitorCount(), 1U);
    fakes.keyObserver->changeModifier(56);
    EXPECT_EQ(session.remapper().flagHold, 56);
    EXPECT_TRUE(session.remapper().isFlag);
    fakes.keyObserver->pressKey(12);
    EXPECT_EQ(fakes.keyPoster->posts(), (Posts{"91 down", "91 up"}));
}

TEST(RemapperSession, TickAsksThePlatformForTheFrontmostApplication) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    InventoryRemapper::Models models;
    RemapperSession session(models, platform);
    fakes.frontmostApplication->setBundleIdentifier("com.blizzard.WarcraftIII");
    EXPECT_FALSE(session.remapper().isWarRun);
    session.eventWithTimer();
    EXPECT_TRUE(session.remapper().isWarRun);
    EXPECT_EQ(fakes.frontmostApplication->queryCount(), 1U);
}

TEST(RemapperSession, ReadsTheOwnersBindingsAtEveryPress) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    InventoryRemapper::Models models;
    RemapperSession session(models, platform);
    session.installObservers();
    fakes.keyObserver->pressKey(12);
    models[4] = {5, 0, 12};
    fakes.keyObserver->pressKey(12);
    EXPECT_EQ(fakes.keyPoster->posts(), (Posts{"83 down", "83 up"}));
}

TEST(RemapperSession, MonitorsFallSilentWhenTheSessionIsGone) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    InventoryRemapper::Models models;
    models[0] = {1, 0, 12};
    auto session = std::make_unique<RemapperSession>(models, platform);
    session->installObservers();
    session.reset();
    fakes.keyObserver->pressKey(12);
    fakes.keyObserver->changeModifier(56);
    EXPECT_TRUE(fakes.keyPoster->posts().empty());
}

TEST(RemapperSession, FollowsTheFrontmostWatcherFromTheStateItHasAtInstallation) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    InventoryRemapper::Models models;
    RemapperSession session(models, platform);
    fakes.frontmostWatcher->announce("com.blizzard.WarcraftIII");
    EXPECT_FALSE(session.remapper().gameInFront) << "nothing is followed before installation";
    session.installObservers();
    EXPECT_EQ(fakes.frontmostWatcher->changeMonitorCount(), 1U);
    EXPECT_TRUE(session.remapper().gameInFront);
    fakes.frontmostWatcher->announce("notepad.exe");
    EXPECT_FALSE(session.remapper().gameInFront);
    // The timer's flag is not the watcher's business.
    EXPECT_FALSE(session.remapper().isWarRun);
}

TEST(RemapperSession, ReadsTheOwnersOptionsAtEveryPress) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    InventoryRemapper::Models models;
    models[0] = {1, 0, 12};
    InventoryOptions options;
    RemapperSession session(models, options, platform);
    session.installObservers();
    fakes.frontmostWatcher->announce("notepad.exe");
    options.onlyWhileGameInFront = true;
    fakes.keyObserver->pressKey(12);
    EXPECT_TRUE(fakes.keyPoster->posts().empty());
    options.onlyWhileGameInFront = false;
    fakes.keyObserver->pressKey(12);
    EXPECT_EQ(fakes.keyPoster->posts(), (Posts{"89 down", "89 up"}));
}

TEST(RemapperSession, KeyPressTakesInWindowChangesOnlyWhileAnOptionIsOn) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    InventoryRemapper::Models models;
    InventoryOptions options;
    RemapperSession session(models, options, platform);
    session.installObservers();
    fakes.keyObserver->pressKey(12);
    EXPECT_EQ(fakes.frontmostWatcher->takeInCount(), 0U) << "both options off: nothing changes";
    options.onlyWhileGameInFront = true;
    fakes.keyObserver->pressKey(12);
    EXPECT_EQ(fakes.frontmostWatcher->takeInCount(), 1U);
    options = {false, true};
    fakes.keyObserver->pressKey(12);
    EXPECT_EQ(fakes.frontmostWatcher->takeInCount(), 2U);
    // Modifier changes never ask.
    fakes.keyObserver->changeModifier(56);
    EXPECT_EQ(fakes.frontmostWatcher->takeInCount(), 2U);
}

TEST(RemapperSession, WindowChangesFallSilentWhenTheSessionIsGone) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    InventoryRemapper::Models models;
    auto session = std::make_unique<RemapperSession>(models, platform);
    session->installObservers();
    session.reset();
    fakes.frontmostWatcher->announce("com.blizzard.WarcraftIII");
    EXPECT_EQ(fakes.frontmostWatcher->frontmostIdentifier(), "com.blizzard.WarcraftIII");
}

TEST(RemapperSessionDeathTest, PlatformWithoutAPosterIsAProgrammingError) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    Platform platform = makeFakePlatform();
    platform.keyPoster.reset();
    InventoryRemapper::Models models;
    EXPECT_DEATH(RemapperSession(models, platform), "no key poster");
}

TEST(RemapperSessionDeathTest, PlatformWithoutAFrontmostWatcherIsAProgrammingError) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    Platform platform = makeFakePlatform();
    platform.frontmostWatcher.reset();
    InventoryRemapper::Models models;
    EXPECT_DEATH(RemapperSession(models, platform), "no frontmost watcher");
}

} // namespace
} // namespace tarnic
