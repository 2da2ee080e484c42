// The glue between the remapper and a platform: what it installs and what it leaves out.
#include "core/remapper/RemapperSession.h"
#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

#include <future>
#include <memory>
#include <optional>
#include <thread>

namespace tarnic {
namespace {

using Posts = std::vector<std::string>;

TEST(RemapperSession, ObservesNothingUntilInstalled) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    InventoryBindings bindings;
    bindings.of(1) = SlotBinding{1, 0, 12};
    RemapperSession session(platform);
    session.setBindings(bindings);
    fakes.keyObserver->pressKey(12);
    fakes.keyObserver->changeModifier(56);
    EXPECT_TRUE(fakes.keyPoster->posts().empty());
    EXPECT_FALSE(session.remapper().isFlag);
    EXPECT_EQ(fakes.keyObserver->keyDownMonitorCount(), 0U);
}

TEST(RemapperSession, InstallsOneKeyDownAndOneModifierMonitor) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    InventoryBindings bindings;
    bindings.of(2) = SlotBinding{2, 56, 12};
    RemapperSession session(platform);
    session.setBindings(bindings);
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
    RemapperSession session(platform);
    fakes.frontmostApplication->setBundleIdentifier("com.blizzard.WarcraftIII");
    EXPECT_FALSE(session.remapper().isWarRun);
    EXPECT_EQ(session.eventWithTimer(), std::optional<bool>(true));
    EXPECT_TRUE(session.remapper().isWarRun);
    EXPECT_EQ(fakes.frontmostApplication->queryCount(), 1U);
}

TEST(RemapperSession, ATickThatCannotTakeTheKeyPathSkipsAndSaysSo) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    RemapperSession session(platform);
    fakes.frontmostApplication->setBundleIdentifier("com.blizzard.WarcraftIII");
    std::optional<bool> seen = false;
    // Another thread holds the lock, as the key thread does while it shows a fatal error.
    std::promise<void> held;
    std::promise<void> release;
    std::thread holder([&] {
        const std::lock_guard lock(session.keyPathLock());
        held.set_value();
        release.get_future().wait();
    });
    held.get_future().wait();
    seen = session.eventWithTimer();
    release.set_value();
    holder.join();
    EXPECT_EQ(seen, std::nullopt);
    EXPECT_FALSE(session.remapper().isWarRun);
    EXPECT_EQ(fakes.frontmostApplication->queryCount(), 0U);
}

TEST(RemapperSession, NewBindingsTakeEffectAtTheNextPress) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    RemapperSession session(platform);
    session.installObservers();
    fakes.keyObserver->pressKey(12);
    InventoryBindings bindings;
    bindings.of(5) = SlotBinding{5, 0, 12};
    session.setBindings(bindings);
    fakes.keyObserver->pressKey(12);
    EXPECT_EQ(fakes.keyPoster->posts(), (Posts{"83 down", "83 up"}));
}

TEST(RemapperSession, KeepsACopyOfTheBindingsItWasHanded) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    RemapperSession session(platform);
    session.installObservers();
    InventoryBindings bindings;
    bindings.of(5) = SlotBinding{5, 0, 12};
    session.setBindings(bindings);
    bindings.of(5).reset();
    fakes.keyObserver->pressKey(12);
    EXPECT_EQ(fakes.keyPoster->posts(), (Posts{"83 down", "83 up"}));
    session.setBindings(bindings);
    fakes.keyObserver->pressKey(12);
    EXPECT_EQ(fakes.keyPoster->posts(), (Posts{"83 down", "83 up"}));
}

TEST(RemapperSession, MonitorsFallSilentWhenTheSessionIsGone) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    InventoryBindings bindings;
    bindings.of(1) = SlotBinding{1, 0, 12};
    auto session = std::make_unique<RemapperSession>(platform);
    session->setBindings(bindings);
    session->installObservers();
    session.reset();
    fakes.keyObserver->pressKey(12);
    fakes.keyObserver->changeModifier(56);
    EXPECT_TRUE(fakes.keyPoster->posts().empty());
}

TEST(RemapperSession, FollowsTheFrontmostWatcherFromTheStateItHasAtInstallation) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    RemapperSession session(platform);
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

TEST(RemapperSession, NewOptionsTakeEffectAtTheNextPress) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    InventoryBindings bindings;
    bindings.of(1) = SlotBinding{1, 0, 12};
    RemapperSession session(platform);
    session.installObservers();
    fakes.frontmostWatcher->announce("notepad.exe");
    bindings.options.onlyWhileGameInFront = true;
    session.setBindings(bindings);
    fakes.keyObserver->pressKey(12);
    EXPECT_TRUE(fakes.keyPoster->posts().empty());
    bindings.options.onlyWhileGameInFront = false;
    session.setBindings(bindings);
    fakes.keyObserver->pressKey(12);
    EXPECT_EQ(fakes.keyPoster->posts(), (Posts{"89 down", "89 up"}));
}

TEST(RemapperSession, KeyPressTakesInWindowChangesOnlyWhileAnOptionIsOn) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    RemapperSession session(platform);
    session.installObservers();
    fakes.keyObserver->pressKey(12);
    EXPECT_EQ(fakes.frontmostWatcher->takeInCount(), 0U) << "both options off: nothing changes";
    InventoryBindings bindings;
    bindings.options.onlyWhileGameInFront = true;
    session.setBindings(bindings);
    fakes.keyObserver->pressKey(12);
    EXPECT_EQ(fakes.frontmostWatcher->takeInCount(), 1U);
    bindings.options = {false, true};
    session.setBindings(bindings);
    fakes.keyObserver->pressKey(12);
    EXPECT_EQ(fakes.frontmostWatcher->takeInCount(), 2U);
    // Modifier changes never ask.
    fakes.keyObserver->changeModifier(56);
    EXPECT_EQ(fakes.frontmostWatcher->takeInCount(), 2U);
}

TEST(RemapperSession, WindowChangesFallSilentWhenTheSessionIsGone) {
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    auto session = std::make_unique<RemapperSession>(platform);
    session->installObservers();
    session.reset();
    fakes.frontmostWatcher->announce("com.blizzard.WarcraftIII");
    EXPECT_EQ(fakes.frontmostWatcher->frontmostIdentifier(), "com.blizzard.WarcraftIII");
}

TEST(RemapperSessionDeathTest, PlatformWithoutAPosterIsAProgrammingError) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    Platform platform = makeFakePlatform();
    platform.keyPoster.reset();
    EXPECT_DEATH(RemapperSession{platform}, "no key poster");
}

TEST(RemapperSessionDeathTest, PlatformWithoutAFrontmostWatcherIsAProgrammingError) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    Platform platform = makeFakePlatform();
    platform.frontmostWatcher.reset();
    EXPECT_DEATH(RemapperSession{platform}, "no frontmost watcher");
}

} // namespace
} // namespace tarnic
