// The lines under the slots that show the inventory keys at work: the last tap, which fades, and
// whether the game was found. Taps reach them from the key path through a TapRelay, which may be
// called on any thread.
#include "EditorFixture.h"

#include "core/vocabulary/KeyCodes.h"
#include "gui/TapRelay.h"
#include "platform/timer/GameDetectionTimer.h"
#include "support/LayoutKeysyms.h"

#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <thread>

namespace tarnic::test {
namespace {

class TapStatus : public EditorFixture {
protected:
    QLabel& tapLine() { return label("lastTapLbl"); }
    QLabel& gameLine() { return label("gameStatusLbl"); }
    QLabel& label(const char* name) {
        auto* found = window().findChild<QLabel*>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
    void bindSlot1ToShiftZ() {
        click(*ui().invent1);
        click(*ui().isShiftBox);
        choose(*ui().inventPopup, "Z");
        ASSERT_EQ(app().inventoryBindings().of(1), (SlotBinding{1, 56, 6}));
    }
    void pressShiftZ() {
        fakes().keyObserver->changeModifier(56);
        fakes().keyObserver->pressKey(6);
    }
};

TEST_F(TapStatus, NothingIsShownBeforeTheFirstTap) {
    launch();
    EXPECT_EQ(tapLine().text(), "");
    EXPECT_EQ(panel().tapStatus().shownTap(), std::nullopt);
}

TEST_F(TapStatus, ATapIsShownOnTheEventLoopNotOnTheKeyPath) {
    launch();
    bindSlot1ToShiftZ();
    pressShiftZ();
    EXPECT_EQ(fakes().keyPoster->posts(), (std::vector<std::string>{"89 down", "89 up"}));
    // The key path only queued the update.
    EXPECT_EQ(tapLine().text(), "");
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return tapLine().text() == QStringLiteral("Shift+Z \u2192 Slot 1 (keypad 7)"); },
        5000))
        << tapLine().text().toStdString();
}

TEST_F(TapStatus, TheTapIsNamedByTheLayout) {
    launch();
    bindSlot1ToShiftZ();
    fakes().keyLabels->switchTo(frenchKeysyms());
    pressShiftZ();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return tapLine().text() == QStringLiteral("Shift+W \u2192 Slot 1 (keypad 7)"); },
        5000))
        << tapLine().text().toStdString();
    // A layout switch while it is shown names it again.
    fakes().keyLabels->switchTo(germanKeysyms());
    EXPECT_EQ(tapLine().text(), QStringLiteral("Shift+Y \u2192 Slot 1 (keypad 7)"));
}

TEST_F(TapStatus, TheLastTapFadesAfterAFewSeconds) {
    launch();
    panel().tapStatus().setTimes(std::chrono::milliseconds(150), std::chrono::milliseconds(100));
    click(*ui().invent3);
    choose(*ui().inventPopup, "Q");
    fakes().keyObserver->pressKey(12);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return tapLine().text() == QStringLiteral("Q \u2192 Slot 3 (keypad 4)"); }, 5000))
        << tapLine().text().toStdString();
    EXPECT_TRUE(panel().tapStatus().shownTap().has_value());
    EXPECT_TRUE(QTest::qWaitFor([&] { return tapLine().text() == QString(); }, 5000))
        << tapLine().text().toStdString();
    EXPECT_EQ(panel().tapStatus().shownTap(), std::nullopt);
}

TEST_F(TapStatus, ANewTapShowsAgainInFull) {
    launch();
    panel().tapStatus().setTimes(std::chrono::milliseconds(150), std::chrono::milliseconds(2000));
    click(*ui().invent3);
    choose(*ui().inventPopup, "Q");
    fakes().keyObserver->pressKey(12);
    // Wait until it fades.
    auto* effect = qobject_cast<QGraphicsOpacityEffect*>(tapLine().graphicsEffect());
    ASSERT_NE(effect, nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return effect->opacity() < 0.9; }, 5000));
    fakes().keyObserver->pressKey(12);
    EXPECT_TRUE(QTest::qWaitFor([&] { return effect->opacity() == 1.0; }, 5000))
        << effect->opacity();
    EXPECT_EQ(tapLine().text(), QStringLiteral("Q \u2192 Slot 3 (keypad 4)"));
}

TEST_F(TapStatus, DefaultTimesAreAFewSeconds) {
    EXPECT_GE(TapStatusPresenter::kShownFor, std::chrono::seconds(2));
    EXPECT_LE(TapStatusPresenter::kShownFor + TapStatusPresenter::kFadingFor,
              std::chrono::seconds(6));
}

TEST_F(TapStatus, TheGameLineFollowsTheGameDetection) {
    launch();
    EXPECT_EQ(gameLine().text(), QStringLiteral("Looking for Warcraft III\u2026"));
    QSignalSpy ticks(app().gameDetectionTimer(), &GameDetectionTimer::ticked);
    ASSERT_TRUE(ticks.wait(5000));
    EXPECT_EQ(gameLine().text(), QStringLiteral("Warcraft III is not running"));
    fakes().frontmostApplication->setBundleIdentifier(war3ID);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return gameLine().text() == QStringLiteral("Warcraft III is running"); }, 5000))
        << gameLine().text().toStdString();
    fakes().frontmostApplication->setBundleIdentifier(std::nullopt);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return gameLine().text() == QStringLiteral("Warcraft III is not running"); }, 5000))
        << gameLine().text().toStdString();
}

TEST(TapRelay, TapsFromAnotherThreadAreDeliveredOnTheRelaysThreadLatestFirst) {
    std::vector<SlotTap> delivered;
    std::vector<bool> onMainThread;
    QThread* const main = QThread::currentThread();
    TapRelay relay([&](const SlotTap& tap) {
        delivered.push_back(tap);
        onMainThread.push_back(QThread::currentThread() == main);
    });
    constexpr int kTaps = 2000;
    std::thread keyPath([&relay] {
        for (int i = 0; i < kTaps; ++i) {
            relay.slotTapped({1 + i % 6, i % 2 == 0 ? 56 : 0, i % 128});
        }
        relay.slotTapped({4, 0, 41});
    });
    keyPath.join();
    // Nothing is delivered until the event loop runs.
    EXPECT_TRUE(delivered.empty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !delivered.empty(); }, 5000));
    QCoreApplication::processEvents();
    EXPECT_EQ(delivered.back(), (SlotTap{4, 0, 41}));
    // Coalesced: at most one update was on its way at any time, so far fewer than the taps.
    EXPECT_LE(delivered.size(), relay.postedCount());
    EXPECT_LT(relay.postedCount(), static_cast<std::uint64_t>(kTaps));
    for (bool each : onMainThread) {
        EXPECT_TRUE(each);
    }
}

TEST(TapRelay, EveryTapKeepsItsFacts) {
    SlotTap last;
    TapRelay relay([&](const SlotTap& tap) { last = tap; });
    for (const SlotTap& tap : {SlotTap{1, 56, 6}, SlotTap{6, 0, 127}, SlotTap{3, 60, 0},
                               SlotTap{2, -5, -1}, SlotTap{5, 0, 2147483647}}) {
        relay.slotTapped(tap);
        EXPECT_TRUE(QTest::qWaitFor([&] { return last == tap; }, 5000)) << "slot " << tap.slot;
    }
}

} // namespace
} // namespace tarnic::test
