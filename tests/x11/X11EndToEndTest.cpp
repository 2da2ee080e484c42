// The remapper as a player meets it: a stand-in for the application (Qt on xcb, the X11 backend,
// the remapper's decisions) and a separate X client that has the focus and logs what it receives,
// both on a private Xvfb with openbox; the keyboard is XTest.
#include "support/KeyLogLine.h"
#include "support/KeyLogWaits.h"
#include "support/KeymapProbe.h"
#include "support/LineProcess.h"
#include "support/QtPrinters.h"
#include "support/XTestDriver.h"
#include "support/XvfbSession.h"
#include "support/XKeycodes.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <array>
#include <chrono>
#include <vector>

namespace tarnic {
namespace {

using namespace std::chrono_literals;
using test::KeyLogLine;
using test::KeymapProbe;
using test::kSlotKeypadKeysyms;
using test::LineProcess;
using test::XTestDriver;
using test::XvfbSession;

using test::kShiftMask;
using test::x;

class X11EndToEndTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(server.ok()) << server.error().toStdString();
        ASSERT_TRUE(driver.ok());
        ASSERT_TRUE(probe.ok());
    }

    unsigned long startClient(LineProcess& client, const QString& windowClass) {
        EXPECT_TRUE(
            client.start(TARNIC_KEYLOG_PATH, {"--class", windowClass}, server.environment()));
        const unsigned long window = waitForReadyWindow(client, 10s);
        EXPECT_NE(window, 0u) << "the key-log client did not map its window";
        return window;
    }

    // Starts the stand-in with these arguments, waits until it records, and leaves the focus on
    // the key-log client.
    void startHarness(const QStringList& arguments) {
        clientWindow = startClient(client, "keylog");
        ASSERT_NE(clientWindow, 0u);
        ASSERT_TRUE(harness.start(TARNIC_HARNESS_PATH, arguments, server.environment()));
        ASSERT_GE(harness.waitForLine("trusted true", 0, 10s), 0) << transcripts();
        harnessWindow = waitForReadyWindow(harness, 10s);
        ASSERT_NE(harnessWindow, 0u) << transcripts();
        // Focusing it once makes sure the window manager has taken it over, so that it does not
        // take the focus later by itself.
        ASSERT_TRUE(driver.focus(harnessWindow, 10s));
        ASSERT_TRUE(driver.focus(clientWindow, 5s));
        // The stand-in taps on keycodes of its own, one keypad digit each, claimed at start.
        const std::vector<unsigned> claimed = probe.recordedKeycodes();
        ASSERT_EQ(claimed.size(), 6u);
        for (std::size_t i = 0; i < claimed.size(); ++i) {
            ASSERT_EQ(probe.keysymsOf(claimed[i]),
                      std::vector<unsigned long>{kSlotKeypadKeysyms[i]});
            keypad[i] = claimed[i];
        }
    }

    // Types an unbound key into the focused client and waits until the stand-in has observed it
    // and the client has received it: every decision about the keys before it has then been made
    // and its taps posted, and the client has logged every key typed before it.
    void settleWith(unsigned xKeycode, int macKeyCode) {
        const int harnessBefore = harness.lines().size();
        const int clientBefore = client.lines().size();
        driver.tap(xKeycode);
        ASSERT_GE(
            harness.waitForLine(QString("observed down %1").arg(macKeyCode), harnessBefore, 5s), 0)
            << transcripts();
        ASSERT_GE(waitForKey(client, true, xKeycode, clientBefore), 0) << transcripts();
    }

    int countKey(LineProcess& log, bool press, unsigned keycode) {
        int count = 0;
        for (const QString& line : log.lines()) {
            const auto key = KeyLogLine::parse(line);
            count += key && key->is(press, keycode) ? 1 : 0;
        }
        return count;
    }

    // The stand-in's lines that start with one of the prefixes, in order.
    QStringList harnessLines(const QStringList& prefixes) {
        QStringList selected;
        for (const QString& line : harness.lines()) {
            for (const QString& prefix : prefixes) {
                if (line.startsWith(prefix)) {
                    selected.append(line);
                    break;
                }
            }
        }
        return selected;
    }

    std::string transcripts() {
        return ("stand-in:\n" + harness.transcript() + "\nclient:\n" + client.transcript())
            .toStdString();
    }

    XvfbSession server{true};
    XTestDriver driver{server.display()};
    KeymapProbe probe{server.display()};
    // The keycode of each slot's keypad key, slot 1 first.
    std::array<unsigned, 6> keypad{};
    LineProcess client;
    LineProcess harness;
    unsigned long clientWindow = 0;
    unsigned long harnessWindow = 0;
};

TEST_F(X11EndToEndTest, EachSlotsTriggerReachesTheClientThenTheSlotsKeypadKeyDownThenUp) {
    startHarness({"--bind", "1,0,12", "--bind", "2,0,13", "--bind", "3,0,14", "--bind", "4,0,15",
                  "--bind", "5,0,17", "--bind", "6,0,16"});
    struct Slot {
        unsigned trigger;
        std::size_t slot; // 0 for slot 1
    };
    const Slot bindings[] = {{KEY_Q, 0}, {KEY_W, 1}, {KEY_E, 2},
                             {KEY_R, 3}, {KEY_T, 4}, {KEY_Y, 5}};
    for (const Slot& slot : bindings) {
        const int from = client.lines().size();
        driver.tap(x(slot.trigger));
        const int trigger = waitForKey(client, true, x(slot.trigger), from);
        ASSERT_GE(trigger, 0) << transcripts();
        const int down = waitForKey(client, true, keypad[slot.slot], trigger);
        ASSERT_GE(down, 0) << transcripts();
        const int up = waitForKey(client, false, keypad[slot.slot], down);
        ASSERT_GE(up, 0) << transcripts();
    }
    settleWith(x(KEY_SPACE), 49);
    for (const Slot& slot : bindings) {
        EXPECT_EQ(countKey(client, true, keypad[slot.slot]), 1) << transcripts();
        EXPECT_EQ(countKey(client, false, keypad[slot.slot]), 1) << transcripts();
    }
    EXPECT_EQ(harnessLines({"posted"}),
              QStringList({"posted down 89", "posted up 89", "posted down 91", "posted up 91",
                           "posted down 86", "posted up 86", "posted down 87", "posted up 87",
                           "posted down 83", "posted up 83", "posted down 84", "posted up 84"}));
}

TEST_F(X11EndToEndTest, ShiftBindingFiresOnlyAfterTheLeftShiftsModifierChange) {
    startHarness({"--bind", "2,56,12"});
    driver.tap(x(KEY_Q)); // no modifier change yet
    driver.press(x(KEY_RIGHTSHIFT));
    driver.tap(x(KEY_Q)); // the right Shift is not the bound one
    driver.release(x(KEY_RIGHTSHIFT));
    driver.press(x(KEY_LEFTSHIFT));
    driver.tap(x(KEY_Q)); // fires
    // Shift stays down until the tap has arrived, as a player's finger would.
    const int down = waitForKey(client, true, keypad[1], 0);
    ASSERT_GE(down, 0) << transcripts();
    EXPECT_TRUE(KeyLogLine::parse(client.lines()[down])->state & kShiftMask)
        << "the held Shift goes with the keypad key";
    ASSERT_GE(waitForKey(client, false, keypad[1], down), 0) << transcripts();
    driver.release(x(KEY_LEFTSHIFT));
    driver.tap(x(KEY_Q)); // the release flipped the flag back
    settleWith(x(KEY_SPACE), 49);

    EXPECT_EQ(
        harnessLines({"observed down 12", "observed flags", "posted", "observed down 49"}),
        QStringList({"observed down 12", "observed flags 60", "observed down 12",
                     "observed flags 60", "observed flags 56", "observed down 12", "posted down 91",
                     "posted up 91", "observed flags 56", "observed down 12", "observed down 49"}))
        << transcripts();
    EXPECT_EQ(countKey(client, true, keypad[1]), 1) << transcripts();
    EXPECT_EQ(countKey(client, true, x(KEY_Q)), 4) << "every trigger reaches the client";
}

TEST_F(X11EndToEndTest, UnboundKeysTapNothing) {
    startHarness({"--bind", "1,0,12"});
    for (unsigned evdev : {KEY_W, KEY_E, KEY_SPACE, KEY_F1, KEY_LEFT, KEY_1, KEY_102ND}) {
        driver.tap(x(evdev));
    }
    driver.press(x(KEY_LEFTSHIFT));
    driver.tap(x(KEY_A));
    driver.release(x(KEY_LEFTSHIFT));
    settleWith(x(KEY_GRAVE), 50);
    EXPECT_TRUE(harnessLines({"posted"}).isEmpty()) << transcripts();

    // The bound key still works afterwards.
    driver.tap(x(KEY_Q));
    const int down = waitForKey(client, true, keypad[0], 0);
    ASSERT_GE(down, 0) << transcripts();
    EXPECT_GE(waitForKey(client, false, keypad[0], down), 0) << transcripts();
    ASSERT_GE(harness.waitForLine("posted up 89", 0, 5s), 0) << transcripts();
    EXPECT_EQ(harnessLines({"posted"}), QStringList({"posted down 89", "posted up 89"}));
}

TEST_F(X11EndToEndTest, KeysTypedIntoTheApplicationsOwnWindowTapNothing) {
    startHarness({"--bind", "1,0,12", "--bind", "2,56,13"});
    ASSERT_TRUE(driver.focus(harnessWindow, 5s));
    driver.tap(x(KEY_Q));
    driver.press(x(KEY_LEFTSHIFT));
    driver.tap(x(KEY_W));
    driver.release(x(KEY_LEFTSHIFT));
    ASSERT_GE(harness.waitForLine(QString("own key %1").arg(x(KEY_W)), 0, 5s), 0) << transcripts();

    ASSERT_TRUE(driver.focus(clientWindow, 5s));
    settleWith(x(KEY_SPACE), 49);
    EXPECT_EQ(harnessLines({"observed", "posted"}), QStringList({"observed down 49"}))
        << transcripts();
    EXPECT_EQ(countKey(client, true, keypad[0]), 0);

    // The same keys in another application's window do tap.
    driver.tap(x(KEY_Q));
    EXPECT_GE(waitForKey(client, true, keypad[0], 0), 0) << transcripts();
}

TEST_F(X11EndToEndTest, GameFlagFollowsTheFocusedWindowsClass) {
    startHarness({"--bind", "1,0,12"});
    LineProcess game;
    const unsigned long gameWindow = startClient(game, "war3.exe");
    ASSERT_NE(gameWindow, 0u);

    ASSERT_TRUE(driver.focus(gameWindow, 5s));
    auto focused = std::chrono::steady_clock::now();
    // The flag is refreshed every 2 s; a little slack for scheduling.
    ASSERT_GE(harness.waitForLine("isWarRun true", 0, 2500ms), 0) << transcripts();
    EXPECT_LE(std::chrono::steady_clock::now() - focused, 2500ms);

    ASSERT_TRUE(driver.focus(clientWindow, 5s));
    focused = std::chrono::steady_clock::now();
    ASSERT_GE(harness.waitForLine("isWarRun false", 0, 2500ms), 0) << transcripts();
    EXPECT_LE(std::chrono::steady_clock::now() - focused, 2500ms);
}

TEST_F(X11EndToEndTest, OnlyWhileTheGameIsInFrontTapsOnlyWhileTheGamesWindowIsActive) {
    // The game-detection timer is kept out of it: it would first tick after ten minutes.
    startHarness({"--bind", "1,0,12", "--only-game-in-front", "--timer-ms", "600000"});
    LineProcess game;
    const unsigned long gameWindow = startClient(game, "war3.exe");
    ASSERT_NE(gameWindow, 0u);
    const auto transcriptsWithGame = [&] {
        return transcripts() + "\ngame:\n" + game.transcript().toStdString();
    };

    // The game in front: the bound key taps into it.
    int front = harness.lines().size();
    ASSERT_TRUE(driver.focus(gameWindow, 5s));
    ASSERT_GE(harness.waitForLine("front com.blizzard.WarcraftIII", front, 5s), 0)
        << transcriptsWithGame();
    driver.tap(x(KEY_Q));
    const int down = waitForKey(game, true, keypad[0], 0);
    ASSERT_GE(down, 0) << transcriptsWithGame();
    ASSERT_GE(waitForKey(game, false, keypad[0], down), 0) << transcriptsWithGame();

    // Another program in front: the same key taps nothing.
    front = harness.lines().size();
    ASSERT_TRUE(driver.focus(clientWindow, 5s));
    ASSERT_GE(harness.waitForLine("front keylog", front, 5s), 0) << transcriptsWithGame();
    driver.tap(x(KEY_Q));
    settleWith(x(KEY_SPACE), 49);
    EXPECT_EQ(countKey(client, true, x(KEY_Q)), 1) << "the key itself still reaches the program";
    EXPECT_EQ(countKey(client, true, keypad[0]), 0) << transcriptsWithGame();

    // The game in front again: it taps again.
    front = harness.lines().size();
    ASSERT_TRUE(driver.focus(gameWindow, 5s));
    ASSERT_GE(harness.waitForLine("front com.blizzard.WarcraftIII", front, 5s), 0)
        << transcriptsWithGame();
    const int from = game.lines().size();
    driver.tap(x(KEY_Q));
    ASSERT_GE(waitForKey(game, true, keypad[0], from), 0) << transcriptsWithGame();
    const int firstUp = harness.waitForLine("posted up 89", 0, 5s);
    ASSERT_GE(harness.waitForLine("posted up 89", firstUp + 1, 5s), 0) << transcriptsWithGame();

    EXPECT_EQ(harnessLines({"observed down 12", "posted"}),
              QStringList({"observed down 12", "posted down 89", "posted up 89", "observed down 12",
                           "observed down 12", "posted down 89", "posted up 89"}))
        << transcriptsWithGame();
    EXPECT_TRUE(harnessLines({"isWarRun"}).isEmpty()) << "the timer had no part in it";
}

TEST_F(X11EndToEndTest, PauseWhileTypingInChatHoldsTheTapsBetweenTheGamesEnterKeys) {
    startHarness({"--bind", "1,0,12", "--pause-in-chat", "--timer-ms", "600000"});
    LineProcess game;
    const unsigned long gameWindow = startClient(game, "war3.exe");
    ASSERT_NE(gameWindow, 0u);
    const int front = harness.lines().size();
    ASSERT_TRUE(driver.focus(gameWindow, 5s));
    ASSERT_GE(harness.waitForLine("front com.blizzard.WarcraftIII", front, 5s), 0) << transcripts();

    driver.tap(x(KEY_ENTER));   // opens the chat line
    driver.tap(x(KEY_Q));       // typed into it: no tap
    driver.tap(x(KEY_KPENTER)); // sends it
    driver.tap(x(KEY_Q));       // taps
    driver.press(x(KEY_LEFTSHIFT));
    driver.tap(x(KEY_ENTER)); // Shift+Return opens the line again
    driver.release(x(KEY_LEFTSHIFT));
    driver.tap(x(KEY_Q));   // no tap
    driver.tap(x(KEY_ESC)); // closes it unsent
    driver.tap(x(KEY_Q));   // taps
    // Once the second tap is out, every key before it has been decided.
    int ups = -1;
    for (int seen = 0; seen < 2; ++seen) {
        ups = harness.waitForLine("posted up 89", ups + 1, 5s);
        ASSERT_GE(ups, 0) << transcripts();
    }

    EXPECT_EQ(
        harnessLines({"observed down", "posted"}),
        QStringList({"observed down 36", "observed down 12", "observed down 76", "observed down 12",
                     "posted down 89", "posted up 89", "observed down 36", "observed down 12",
                     "observed down 53", "observed down 12", "posted down 89", "posted up 89"}))
        << transcripts();
}

} // namespace
} // namespace tarnic
