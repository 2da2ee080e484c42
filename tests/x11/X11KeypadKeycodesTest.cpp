// The keycodes the backend claims for its keypad taps, against a real X server (Xvfb): what it
// takes, what it leaves alone, what it gives back, how it follows keymap changes, and the Num
// Lock fallback when nothing is free.
#include "core/platform/Platform.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11KeypadKeycodes.h"
#include "platform/x11/X11Platform.h"
#include "support/KeyLogLine.h"
#include "support/KeyLogWaits.h"
#include "support/KeymapProbe.h"
#include "support/LineProcess.h"
#include "support/ProcessUntil.h"
#include "support/QtPrinters.h"
#include "support/XKeycodes.h"
#include "support/XTestDriver.h"
#include "support/XvfbSession.h"

#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <algorithm>
#include <csignal>
#include <poll.h>
#include <set>
#include <vector>

// Last: Xlib's macros (None, Bool) break the headers above.
#include <X11/Xlib.h>

namespace tarnic {
namespace {

using namespace std::chrono_literals;
using test::KeyLogLine;
using test::KeymapProbe;
using test::kNumLockMask;
using test::kSlotKeypadKeysyms;
using test::LineProcess;
using test::processUntil;
using test::x;
using test::XTestDriver;
using test::XvfbSession;
using x11::X11Connection;
using x11::X11KeypadKeycodes;

using Keysyms = std::vector<unsigned long>;

// The macOS virtual key codes of the slots' keypad keys, in slot order.
constexpr int kSlotKeyCodes[] = {89, 91, 86, 87, 83, 84};

// A keysym that no test types: what "the player's keymap uses this keycode" puts there.
constexpr unsigned long kSomeKeysym = 0x1008ff40; // XF86Launch0

std::vector<unsigned> asVector(const std::array<unsigned, 6>& keycodes) {
    return {keycodes.begin(), keycodes.end()};
}

class X11KeypadKeycodesTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(server.ok()) << server.error().toStdString();
        ASSERT_TRUE(probe.ok());
        ASSERT_TRUE(driver.ok());
        connection = X11Connection::open(display());
        ASSERT_TRUE(connection);
        original = probe.keysyms();
        ASSERT_GE(probe.unusedKeycodes().size(), 6u) << "Xvfb's keymap leaves keycodes unused";
    }

    const char* display() {
        displayName = server.display().toLocal8Bit();
        return displayName.constData();
    }

    // Whether each digit sits alone on exactly one keycode, and that keycode is the one given.
    void expectOwnedExactly(const std::vector<unsigned>& keycodes) {
        ASSERT_EQ(keycodes.size(), 6u);
        for (std::size_t i = 0; i < keycodes.size(); ++i) {
            EXPECT_EQ(probe.keycodesWithOnly(kSlotKeypadKeysyms[i]),
                      std::vector<unsigned>{keycodes[i]})
                << "slot " << i + 1;
        }
    }

    // Every keycode but `except` as it was before the test.
    void expectOthersUnchanged(const std::vector<unsigned>& except) {
        const auto now = probe.keysyms();
        ASSERT_EQ(now.size(), original.size());
        for (const auto& [keycode, syms] : original) {
            if (std::find(except.begin(), except.end(), keycode) == except.end()) {
                EXPECT_EQ(now.at(keycode), syms) << "keycode " << keycode;
            }
        }
    }

    // How many keycodes the record on the root window names.
    std::size_t claimedCount() {
        const std::vector<unsigned> recorded = probe.recordedKeycodes();
        return static_cast<std::size_t>(
            std::count_if(recorded.begin(), recorded.end(), [](unsigned k) { return k != 0; }));
    }

    void expectKeymapAsAtStart() {
        EXPECT_EQ(probe.keysyms(), original);
        EXPECT_TRUE(probe.recordedKeycodes().empty());
    }

    // Gives every unused keycode but the `leave` highest ones a keysym, as a keymap that uses
    // them all.
    void fillUnusedKeycodes(std::size_t leave = 0) {
        std::vector<unsigned> unused = probe.unusedKeycodes();
        unused.resize(unused.size() - std::min(leave, unused.size()));
        fill(unused);
    }

    void fill(const std::vector<unsigned>& keycodes) {
        for (const unsigned keycode : keycodes) {
            probe.setKeysyms(keycode, {kSomeKeysym});
            filled.push_back(keycode);
        }
    }

    void clearFilledKeycodes() {
        for (const unsigned keycode : filled) {
            probe.setKeysyms(keycode, {});
        }
        filled.clear();
    }

    // Waits, without running the event loop, until the backend's connection has something to
    // read: the server has sent it the notification of a change made just before.
    bool notificationArrives(std::chrono::milliseconds timeout) {
        pollfd descriptor{ConnectionNumber(connection->display()), POLLIN, 0};
        return poll(&descriptor, 1, static_cast<int>(timeout.count())) > 0;
    }

    unsigned long startKeyLog(LineProcess& log) {
        return test::startKeyLog(log, TARNIC_KEYLOG_PATH, {}, server, driver);
    }

    XvfbSession server{false};
    KeymapProbe probe{server.display()};
    XTestDriver driver{server.display()};
    QByteArray displayName;
    std::shared_ptr<X11Connection> connection;
    std::map<unsigned, Keysyms> original;
    std::vector<unsigned> filled;
};

TEST_F(X11KeypadKeycodesTest, ClaimsSixUnusedKeycodesEachWithOnlyItsDigit) {
    const std::vector<unsigned> unused = probe.unusedKeycodes();
    X11KeypadKeycodes keypad(connection);
    const std::vector<unsigned> own = asVector(keypad.keycodes());

    EXPECT_EQ(std::set<unsigned>(own.begin(), own.end()).size(), 6u) << "six different keycodes";
    for (std::size_t i = 0; i < own.size(); ++i) {
        EXPECT_NE(std::find(unused.begin(), unused.end(), own[i]), unused.end())
            << own[i] << " was in use";
        // One keysym, at one level of one group.
        EXPECT_EQ(probe.keysymsOf(own[i]), Keysyms{kSlotKeypadKeysyms[i]});
    }
    expectOwnedExactly(own);
    expectOthersUnchanged(own);
    EXPECT_EQ(probe.recordedKeycodes(), own);
    // The keyboard's own keypad keys keep both their meanings.
    EXPECT_EQ(probe.keysymsOf(x(KEY_KP7)), original.at(x(KEY_KP7)));
    EXPECT_GE(probe.keysymsOf(x(KEY_KP7)).size(), 2u);
}

TEST_F(X11KeypadKeycodesTest, AnswersForTheSlotsKeypadKeysOnly) {
    X11KeypadKeycodes keypad(connection);
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(keypad.keycodeFor(kSlotKeyCodes[i]), keypad.keycodes()[i]);
        EXPECT_TRUE(keypad.isOwn(keypad.keycodes()[i]));
    }
    for (const int other : {12, 56, 82, 85, 88, 92, 65}) { // Q, Shift, keypad 0, 3, 6, 9 and point
        EXPECT_FALSE(keypad.keycodeFor(other).has_value()) << other;
    }
    for (const unsigned keycode : {x(KEY_KP7), x(KEY_KP8), x(KEY_Q), 0u}) {
        EXPECT_FALSE(keypad.isOwn(keycode)) << keycode;
    }
}

TEST_F(X11KeypadKeycodesTest, GivesThemBackLeavingTheKeymapAsItWas) {
    std::vector<unsigned> own;
    {
        X11KeypadKeycodes keypad(connection);
        own = asVector(keypad.keycodes());
        ASSERT_EQ(probe.keysymsOf(own[0]), Keysyms{kSlotKeypadKeysyms[0]});
    }
    for (const unsigned keycode : own) {
        EXPECT_TRUE(probe.keysymsOf(keycode).empty()) << keycode;
    }
    expectKeymapAsAtStart();
}

TEST_F(X11KeypadKeycodesTest, LeftoversOfAKilledProcessAreReusedNeverDuplicated) {
    LineProcess harness;
    ASSERT_TRUE(harness.start(TARNIC_HARNESS_PATH, {"--quiet"}, server.environment()));
    ASSERT_GE(harness.waitForPrefix("ready ", 0, 20s), 0) << harness.transcript().toStdString();
    const std::vector<unsigned> left = probe.recordedKeycodes();
    ASSERT_EQ(left.size(), 6u);
    harness.stop(); // SIGKILL: nothing is given back
    expectOwnedExactly(left);

    {
        X11KeypadKeycodes keypad(connection);
        EXPECT_EQ(asVector(keypad.keycodes()), left);
        expectOwnedExactly(left);
        expectOthersUnchanged(left);
    }
    expectKeymapAsAtStart();
}

TEST_F(X11KeypadKeycodesTest, LeftoversNoLongerHoldingTheirDigitAreNotOurs) {
    std::vector<unsigned> left;
    {
        LineProcess harness;
        ASSERT_TRUE(harness.start(TARNIC_HARNESS_PATH, {"--quiet"}, server.environment()));
        ASSERT_GE(harness.waitForPrefix("ready ", 0, 20s), 0);
        left = probe.recordedKeycodes();
        ASSERT_EQ(left.size(), 6u);
    } // killed
    // Meanwhile a keymap put a key of its own on slot 2's keycode and cleared slot 3's.
    probe.setKeysyms(left[1], {kSomeKeysym});
    probe.setKeysyms(left[2], {});

    std::vector<unsigned> own;
    {
        X11KeypadKeycodes keypad(connection);
        own = asVector(keypad.keycodes());
        EXPECT_EQ(own[0], left[0]);
        EXPECT_EQ(own[3], left[3]);
        EXPECT_EQ(own[4], left[4]);
        EXPECT_EQ(own[5], left[5]);
        EXPECT_NE(own[1], left[1]);
        expectOwnedExactly(own);
        EXPECT_EQ(probe.keysymsOf(left[1]), Keysyms{kSomeKeysym});
    }
    EXPECT_EQ(probe.keysymsOf(left[1]), Keysyms{kSomeKeysym}) << "the keymap's key stays";
    for (const unsigned keycode : own) {
        EXPECT_TRUE(probe.keysymsOf(keycode).empty()) << keycode;
    }
    EXPECT_TRUE(probe.recordedKeycodes().empty());
}

TEST_F(X11KeypadKeycodesTest, APlayersOwnLoneKeypadDigitIsNeitherTakenNorCleared) {
    // Someone's own mapping (xmodmap "keycode N = KP_7"): no record names it.
    const unsigned players = probe.unusedKeycodes().back();
    probe.setKeysyms(players, {kSlotKeypadKeysyms[0]});
    {
        X11KeypadKeycodes keypad(connection);
        EXPECT_NE(keypad.keycodes()[0], players);
        EXPECT_FALSE(keypad.isOwn(players));
        EXPECT_EQ(probe.keysymsOf(keypad.keycodes()[0]), Keysyms{kSlotKeypadKeysyms[0]});
    }
    EXPECT_EQ(probe.keysymsOf(players), Keysyms{kSlotKeypadKeysyms[0]});
}

TEST_F(X11KeypadKeycodesTest, KeycodesTakenOrClearedUnderItAreClaimedAgainBeforeTheNextTap) {
    X11KeypadKeycodes keypad(connection);
    const std::vector<unsigned> own = asVector(keypad.keycodes());
    // The new keymap uses slot 3's keycode for a key of its own and leaves slot 2's empty.
    probe.setKeysyms(own[2], {kSomeKeysym});
    probe.setKeysyms(own[1], {});
    ASSERT_TRUE(notificationArrives(2s));

    // No event loop has run: asking for the key is what takes the change in.
    const std::optional<unsigned> slot3 = keypad.keycodeFor(86);
    ASSERT_TRUE(slot3.has_value());
    EXPECT_NE(*slot3, own[2]);
    EXPECT_FALSE(keypad.isOwn(own[2]));
    const std::vector<unsigned> now = asVector(keypad.keycodes());
    EXPECT_EQ(now[0], own[0]);
    EXPECT_EQ(now[3], own[3]);
    expectOwnedExactly(now);
    EXPECT_EQ(probe.keysymsOf(own[2]), Keysyms{kSomeKeysym});
    EXPECT_EQ(probe.recordedKeycodes(), now);
}

TEST_F(X11KeypadKeycodesTest, ANewKeymapFromSetxkbmapIsFollowedAndTapsStillArriveAsKeypadDigits) {
    std::optional<Platform> platform = makeX11Platform(display());
    ASSERT_TRUE(platform.has_value());
    const std::vector<unsigned> own = probe.recordedKeycodes();
    ASSERT_EQ(own.size(), 6u);
    LineProcess log;
    startKeyLog(log);

    QProcess setxkbmap;
    setxkbmap.setProcessEnvironment(server.environment());
    setxkbmap.start("setxkbmap", {"-layout", "us"});
    ASSERT_TRUE(setxkbmap.waitForFinished(30000));
    ASSERT_EQ(setxkbmap.exitCode(), 0) << setxkbmap.readAllStandardError().toStdString();
    // The new keymap has nothing on those keycodes: ours are gone until claimed again.
    for (const unsigned keycode : own) {
        ASSERT_TRUE(probe.keysymsOf(keycode).empty()) << keycode;
    }
    const auto fresh = probe.keysyms();

    ASSERT_TRUE(processUntil(
        [&] {
            const std::vector<unsigned> recorded = probe.recordedKeycodes();
            if (recorded.size() != 6) {
                return false;
            }
            for (std::size_t i = 0; i < recorded.size(); ++i) {
                if (probe.keysymsOf(recorded[i]) != Keysyms{kSlotKeypadKeysyms[i]}) {
                    return false;
                }
            }
            return true;
        },
        5s));
    const std::vector<unsigned> again = probe.recordedKeycodes();
    expectOwnedExactly(again);
    const auto now = probe.keysyms();
    for (const auto& [keycode, syms] : fresh) {
        if (std::find(again.begin(), again.end(), keycode) == again.end()) {
            EXPECT_EQ(now.at(keycode), syms) << "keycode " << keycode;
        }
    }

    for (std::size_t i = 0; i < 6; ++i) {
        platform->keyPoster->postKeyDown(static_cast<std::uint16_t>(kSlotKeyCodes[i]));
        platform->keyPoster->postKeyUp(static_cast<std::uint16_t>(kSlotKeyCodes[i]));
    }
    int from = 0;
    for (std::size_t i = 0; i < 6; ++i) {
        const int down = waitForKey(log, true, again[i], from);
        ASSERT_GE(down, 0) << log.transcript().toStdString();
        from = waitForKey(log, false, again[i], down);
        ASSERT_GE(from, 0) << log.transcript().toStdString();
    }
}

TEST_F(X11KeypadKeycodesTest, WithFewerFreeKeycodesThanDigitsTheFirstSlotsGetThem) {
    fillUnusedKeycodes(3);
    X11KeypadKeycodes keypad(connection);
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(keypad.keycodes()[i] != 0, i < 3) << "slot " << i + 1;
        EXPECT_EQ(keypad.keycodeFor(kSlotKeyCodes[i]).has_value(), i < 3) << "slot " << i + 1;
    }
}

TEST_F(X11KeypadKeycodesTest,
       WithoutAFreeKeycodeTapsUseTheKeypadWithNumLockSaidOnceThenClaimLater) {
    fillUnusedKeycodes();
    ASSERT_TRUE(probe.unusedKeycodes().empty());
    LineProcess log;
    startKeyLog(log);
    driver.setNumLock(false);

    LineProcess harness;
    ASSERT_TRUE(harness.start(TARNIC_HARNESS_PATH, {"--bind", "1,0,12"}, server.environment(),
                              LineProcess::Errors::Keep));
    ASSERT_GE(harness.waitForPrefix("ready ", 0, 20s), 0) << harness.transcript().toStdString();
    ASSERT_TRUE(driver.focus(waitForReadyWindow(log, 1s), 5s));
    EXPECT_TRUE(probe.recordedKeycodes().empty());

    for (int tap = 0; tap < 2; ++tap) {
        const int from = log.lines().size();
        driver.tap(x(KEY_Q));
        const int down = waitForKey(log, true, x(KEY_KP7), from);
        ASSERT_GE(down, 0) << log.transcript().toStdString();
        const int up = waitForKey(log, false, x(KEY_KP7), down);
        ASSERT_GE(up, 0) << log.transcript().toStdString();
        EXPECT_TRUE(KeyLogLine::parse(log.lines()[down])->state & kNumLockMask);
        EXPECT_TRUE(KeyLogLine::parse(log.lines()[up])->state & kNumLockMask);
        EXPECT_TRUE(processUntil([&] { return !driver.numLockOn(); }, 2s));
    }
    const QStringList said =
        harness.errorOutput().split('\n').filter(QStringLiteral("Tarnic Pro:"));
    ASSERT_EQ(said.size(), 1) << harness.errorOutput().toStdString();
    EXPECT_TRUE(said[0].contains("keycode")) << said[0].toStdString();

    // Keycodes come free: the next keymap change is enough to claim them.
    clearFilledKeycodes();
    ASSERT_TRUE(processUntil([&] { return claimedCount() == 6; }, 5s));
    const std::vector<unsigned> own = probe.recordedKeycodes();
    expectOwnedExactly(own);
    const int from = log.lines().size();
    driver.tap(x(KEY_Q));
    const int down = waitForKey(log, true, own[0], from);
    ASSERT_GE(down, 0) << log.transcript().toStdString();
    EXPECT_FALSE(KeyLogLine::parse(log.lines()[down])->state & kNumLockMask);
    EXPECT_EQ(harness.errorOutput().split('\n').filter(QStringLiteral("Tarnic Pro:")).size(), 1);
}

TEST_F(X11KeypadKeycodesTest, TapsOnAKeycodeTheKeyTableNamesAreStillNotObserved) {
    // Only F13's keycode is left free (its keysym taken away): the claim has to use a keycode
    // that the observer would otherwise report as F13 (code 105).
    probe.setKeysyms(x(KEY_F13), {});
    std::vector<unsigned> others = probe.unusedKeycodes();
    others.erase(std::remove(others.begin(), others.end(), x(KEY_F13)), others.end());
    fill(others);
    std::optional<Platform> platform = makeX11Platform(display());
    ASSERT_TRUE(platform.has_value());
    ASSERT_EQ(probe.recordedKeycodes().at(0), x(KEY_F13));

    LineProcess log;
    startKeyLog(log);
    std::vector<int> downs;
    std::vector<int> flags;
    int posted = 0;
    platform->keyObserver->addKeyDownMonitor([&](int code) {
        downs.push_back(code);
        if (code == 12) { // Q: slot 1, as a binding would
            platform->keyPoster->postKeyDown(89);
            platform->keyPoster->postKeyUp(89);
            ++posted;
        }
    });
    platform->keyObserver->addFlagsChangedMonitor([&](int code) { flags.push_back(code); });

    driver.tap(x(KEY_Q));
    ASSERT_TRUE(processUntil([&] { return posted == 1; }, 5s));
    ASSERT_GE(waitForKey(log, false, x(KEY_F13), 0), 0) << log.transcript().toStdString();
    driver.tap(x(KEY_W)); // recorded after the tap: once it is seen, the tap would have been
    ASSERT_TRUE(processUntil([&] { return downs.size() >= 2; }, 5s));
    EXPECT_EQ(downs, (std::vector<int>{12, 13}));
    EXPECT_TRUE(flags.empty());
}

// An orderly end by signal: the process leaves its event loop and gives the keycodes back.
class GivesBackOnSignal : public X11KeypadKeycodesTest,
                          public ::testing::WithParamInterface<int> {};

TEST_P(GivesBackOnSignal, TheRemapperStandIn) {
    LineProcess harness;
    ASSERT_TRUE(harness.start(TARNIC_HARNESS_PATH, {"--quiet"}, server.environment()));
    ASSERT_GE(harness.waitForPrefix("ready ", 0, 20s), 0) << harness.transcript().toStdString();
    ASSERT_EQ(claimedCount(), 6u);

    ASSERT_EQ(kill(static_cast<pid_t>(harness.processId()), GetParam()), 0);
    ASSERT_TRUE(harness.waitForExit(20s));
    EXPECT_TRUE(harness.exitedNormally());
    EXPECT_EQ(harness.exitCode(), 0);
    expectKeymapAsAtStart();
}

TEST_P(GivesBackOnSignal, TheApplication) {
    QTemporaryDir config;
    ASSERT_TRUE(config.isValid());
    QProcessEnvironment environment = server.environment();
    environment.insert("XDG_CONFIG_HOME", config.path());
    LineProcess application;
    ASSERT_TRUE(application.start(TARNIC_APP_PATH, {}, environment));
    // The keycodes are claimed when the platform starts, before the window shows.
    ASSERT_TRUE(processUntil([&] { return claimedCount() == 6; }, 60s))
        << application.transcript().toStdString();
    expectOwnedExactly(probe.recordedKeycodes());

    ASSERT_EQ(kill(static_cast<pid_t>(application.processId()), GetParam()), 0);
    ASSERT_TRUE(application.waitForExit(30s));
    EXPECT_TRUE(application.exitedNormally());
    EXPECT_EQ(application.exitCode(), 0);
    expectKeymapAsAtStart();
}

INSTANTIATE_TEST_SUITE_P(X11KeypadKeycodes, GivesBackOnSignal,
                         ::testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const ::testing::TestParamInfo<int>& info) {
                             switch (info.param) {
                             case SIGTERM:
                                 return std::string("SIGTERM");
                             case SIGINT:
                                 return std::string("SIGINT");
                             default:
                                 return std::string("SIGHUP");
                             }
                         });

} // namespace
} // namespace tarnic
