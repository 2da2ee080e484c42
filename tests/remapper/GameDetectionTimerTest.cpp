// The game-detection timer: a repeating 2-second tick that refreshes isWarRun. The ticking tests
// run it on a short interval and wait for the ticks themselves (bounded), never for a stretch of
// time.
#include "core/remapper/RemapperSession.h"
#include "platform/fake/FakePlatform.h"
#include "platform/timer/GameDetectionTimer.h"

#include <QCoreApplication>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace tarnic {
namespace {

constexpr std::chrono::milliseconds kTestInterval{20};
// Generous: a loaded test machine may deliver a tick late.
constexpr int kTickWaitMs = 5000;

class GameDetectionTimerTest : public ::testing::Test {
protected:
    Platform platform = makeFakePlatform();
    FakeParts fakes = fakeParts(platform);
    RemapperSession session{platform};
};

TEST_F(GameDetectionTimerTest, RepeatsEveryTwoSecondsFromTheStart) {
    GameDetectionTimer timer(session);
    EXPECT_TRUE(timer.timer().isActive());
    EXPECT_FALSE(timer.timer().isSingleShot());
    EXPECT_EQ(timer.timer().interval(), 2000);
}

TEST_F(GameDetectionTimerTest, DoesNotTickAtOnce) {
    fakes.frontmostApplication->setBundleIdentifier("com.blizzard.WarcraftIII");
    GameDetectionTimer timer(session);
    QSignalSpy ticks(&timer, &GameDetectionTimer::ticked);
    QCoreApplication::processEvents();
    EXPECT_EQ(ticks.count(), 0);
    EXPECT_EQ(fakes.frontmostApplication->queryCount(), 0U);
    EXPECT_FALSE(session.remapper().isWarRun);
}

TEST_F(GameDetectionTimerTest, EachTickRefreshesTheGameFlag) {
    fakes.frontmostApplication->setBundleIdentifier("com.blizzard.WarcraftIII");
    GameDetectionTimer timer(session, nullptr, kTestInterval);
    QSignalSpy ticks(&timer, &GameDetectionTimer::ticked);
    ASSERT_TRUE(ticks.wait(kTickWaitMs));
    EXPECT_TRUE(session.remapper().isWarRun);

    fakes.frontmostApplication->setBundleIdentifier(std::nullopt);
    ASSERT_TRUE(ticks.wait(kTickWaitMs)); // it repeats
    EXPECT_FALSE(session.remapper().isWarRun);
    EXPECT_EQ(ticks.count(), 2);
    EXPECT_EQ(fakes.frontmostApplication->queryCount(), 2U);
}

TEST_F(GameDetectionTimerTest, EachTickSaysWhetherTheGameRuns) {
    fakes.frontmostApplication->setBundleIdentifier("com.blizzard.WarcraftIII");
    GameDetectionTimer timer(session, nullptr, kTestInterval);
    QSignalSpy looks(&timer, &GameDetectionTimer::gameLooked);
    ASSERT_TRUE(looks.wait(kTickWaitMs));
    EXPECT_EQ(looks.takeFirst().at(0).toBool(), true);

    fakes.frontmostApplication->setBundleIdentifier(std::nullopt);
    ASSERT_TRUE(looks.wait(kTickWaitMs));
    EXPECT_EQ(looks.takeLast().at(0).toBool(), false);
}

TEST_F(GameDetectionTimerTest, StopsWithItsOwner) {
    auto* owner = new QObject;
    auto* timer = new GameDetectionTimer(session, owner);
    QSignalSpy destroyed(timer, &QObject::destroyed);
    delete owner;
    EXPECT_EQ(destroyed.count(), 1);
}

} // namespace
} // namespace tarnic
