// What the keypad claim does to the rest of the display, against a real X server (Xvfb) with its
// own keymap and with the French and the German layout: another client is told of each claim and
// each release once, as for any single keymap change, and every key but the six claimed ones is
// the same, to the byte, before the claim, while it holds and after the release.
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11KeypadKeycodes.h"
#include "support/KeymapProbe.h"
#include "support/KeyLogWaits.h"
#include "support/KeymapWatcher.h"
#include "support/LineProcess.h"
#include "support/XTestDriver.h"
#include "support/XvfbSession.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <optional>
#include <set>
#include <thread>

namespace tarnic {
namespace {

using test::KeymapNotifications;
using test::KeymapProbe;
using test::KeymapWatcher;
using test::kSlotKeypadKeysyms;
using test::LineProcess;
using test::XTestDriver;
using test::XvfbSession;
using x11::X11Connection;
using x11::X11KeypadKeycodes;

using namespace std::chrono_literals;
using Keys = std::map<unsigned, std::vector<unsigned long>>;

constexpr unsigned long kSomeKeysym = 0x1008ff40; // XF86Launch0

std::string printable(const KeymapNotifications& n) {
    return "XkbMapNotify " + std::to_string(n.xkbMapNotify) + ", XkbNewKeyboardNotify " +
           std::to_string(n.newKeyboardNotify) + ", MappingNotify " +
           std::to_string(n.coreMappingNotify);
}

// The layout set before the test: none keeps Xvfb's own keymap.
class X11KeypadKeymapChangeTest : public ::testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        ASSERT_TRUE(server.ok()) << server.error().toStdString();
        ASSERT_TRUE(probe.ok());
        ASSERT_TRUE(watcher.ok());
        if (std::string(GetParam()) != "xvfb") {
            QProcess setxkbmap;
            setxkbmap.setProcessEnvironment(server.environment());
            setxkbmap.start("setxkbmap", {"-layout", GetParam()});
            ASSERT_TRUE(setxkbmap.waitForFinished(30000));
            ASSERT_EQ(setxkbmap.exitCode(), 0) << setxkbmap.readAllStandardError().toStdString();
        }
        displayName = server.display().toLocal8Bit();
        connection = X11Connection::open(displayName.constData());
        ASSERT_TRUE(connection);
        // A state of the keys that only the keymap's owner sets: recomputing keys from the
        // compatibility map (as a careless change of the mapping does) would turn it back on.
        watcher.turnRepeatOffForEveryKey();
        watcher.take();
    }

    // What other clients are told of one change of one keycode by a plain core request.
    KeymapNotifications oneRequestsWorth() {
        const unsigned scratch = probe.unusedKeycodes().front();
        probe.setKeysyms(scratch, {kSomeKeysym});
        const KeymapNotifications one = watcher.take();
        probe.setKeysyms(scratch, {});
        EXPECT_EQ(watcher.take(), one) << "the same for the way back";
        return one;
    }

    static void expectSameExcept(const Keys& before, const Keys& after,
                                 const std::vector<unsigned>& except, const char* when) {
        ASSERT_EQ(before.size(), after.size()) << when;
        for (const auto& [keycode, key] : before) {
            if (std::find(except.begin(), except.end(), keycode) != except.end()) {
                continue;
            }
            EXPECT_EQ(after.at(keycode), key) << when << ": keycode " << keycode;
        }
    }

    XvfbSession server{false};
    KeymapProbe probe{server.display()};
    KeymapWatcher watcher{server.display()};
    QByteArray displayName;
    std::shared_ptr<X11Connection> connection;
};

TEST_P(X11KeypadKeymapChangeTest, ClaimAndReleaseAreOneChangeEachAndLeaveEveryOtherKeyAsItWas) {
    const KeymapNotifications one = oneRequestsWorth();
    ASSERT_GE(one.xkbMapNotify + one.coreMappingNotify, 1) << printable(one);
    const Keys before = watcher.keys();
    const std::vector<unsigned long> typesBefore = watcher.keyTypes();
    ASSERT_FALSE(before.empty());
    // The change reaches every keyboard attached to the core one: each keeps its own keys.
    const std::vector<int> devices = watcher.attachedKeyboards();
    EXPECT_GE(devices.size(), 2u) << "XTest's keyboard and the server's own";
    std::map<int, Keys> devicesBefore;
    for (const int device : devices) {
        devicesBefore[device] = watcher.keys(device);
    }
    const auto expectDevicesSameExcept = [&](const std::vector<unsigned>& except,
                                             const char* when) {
        for (const int device : devices) {
            SCOPED_TRACE("device " + std::to_string(device));
            expectSameExcept(devicesBefore[device], watcher.keys(device), except, when);
        }
    };

    std::vector<unsigned> own;
    {
        X11KeypadKeycodes keypad(connection);
        own.assign(keypad.keycodes().begin(), keypad.keycodes().end());
        const KeymapNotifications claim = watcher.take();
        EXPECT_EQ(claim, one) << "claim: " << printable(claim)
                              << "; one request: " << printable(one);

        ASSERT_EQ(std::set<unsigned>(own.begin(), own.end()).size(), 6u);
        ASSERT_EQ(std::count(own.begin(), own.end(), 0u), 0);
        // The claim has to reach over keycodes that are not ours for the test to mean anything.
        const auto [low, high] = std::minmax_element(own.begin(), own.end());
        EXPECT_GT(*high - *low, 5u) << "the free keycodes are not scattered";
        for (std::size_t i = 0; i < own.size(); ++i) {
            EXPECT_EQ(probe.keysymsOf(own[i]), std::vector<unsigned long>{kSlotKeypadKeysyms[i]})
                << "keycode " << own[i];
        }
        // No key action on ours: a tap is a plain keypad digit, whatever the controls.
        const std::vector<unsigned> withActions = watcher.keycodesWithActions();
        for (const unsigned keycode : own) {
            EXPECT_EQ(std::count(withActions.begin(), withActions.end(), keycode), 0) << keycode;
        }
        expectSameExcept(before, watcher.keys(), own, "claimed");
        expectDevicesSameExcept(own, "claimed");
        for (const int device : devices) {
            for (std::size_t i = 0; i < own.size(); ++i) {
                EXPECT_EQ(watcher.keys(device).at(own[i]), watcher.keys().at(own[i]))
                    << "device " << device << ", keycode " << own[i];
            }
        }
        EXPECT_EQ(watcher.keyTypes(), typesBefore);
    }
    const KeymapNotifications release = watcher.take();
    EXPECT_EQ(release, one) << "release: " << printable(release);
    const Keys after = watcher.keys();
    expectSameExcept(before, after, own, "released");
    expectDevicesSameExcept(own, "released");
    EXPECT_EQ(watcher.keyTypes(), typesBefore);
    for (const unsigned keycode : own) {
        EXPECT_TRUE(probe.keysymsOf(keycode).empty()) << keycode;
    }
}

TEST_P(X11KeypadKeymapChangeTest, LeftoversClearedAndKeycodesReclaimedInTheSameChange) {
    X11KeypadKeycodes keypad(connection);
    const std::vector<unsigned> own(keypad.keycodes().begin(), keypad.keycodes().end());
    // Another run's keycodes, recorded and holding their digits, further down the range.
    std::vector<unsigned> others;
    for (const unsigned keycode : probe.unusedKeycodes()) {
        if (others.size() < 6 && std::find(own.begin(), own.end(), keycode) == own.end()) {
            others.push_back(keycode);
        }
    }
    ASSERT_EQ(others.size(), 6u);
    for (std::size_t i = 0; i < others.size(); ++i) {
        if (i != 2) {
            probe.setKeysyms(others[i], {kSlotKeypadKeysyms[i]});
        }
    }
    probe.setRecordedKeycodes(others);
    // And a new keymap empties slot 1's keycode and puts a key of its own on slot 3's.
    probe.setKeysyms(own[0], {});
    probe.setKeysyms(own[2], {kSomeKeysym});
    const Keys before = watcher.keys();
    // Everything the server sent has reached both clients.
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    watcher.take();

    // Slot 1 takes the other run's keycode; slot 3 (the other run's is empty) a free one;
    // slots 2, 4, 5 and 6 keep ours, and the other run's copies of them are emptied: five
    // keycodes, one change.
    keypad.takeInKeymapChanges();
    const KeymapNotifications change = watcher.take();
    const std::vector<unsigned> now(keypad.keycodes().begin(), keypad.keycodes().end());
    EXPECT_EQ(now[0], others[0]);
    EXPECT_NE(now[2], own[2]);
    EXPECT_EQ(probe.keycodesWithOnly(kSlotKeypadKeysyms[2]), std::vector<unsigned>{now[2]});
    for (const std::size_t i : {1u, 3u, 4u, 5u}) {
        EXPECT_EQ(now[i], own[i]);
        EXPECT_TRUE(probe.keysymsOf(others[i]).empty()) << others[i];
    }
    EXPECT_EQ(change, oneRequestsWorth()) << "the change: " << printable(change);
    std::vector<unsigned> touched = now;
    touched.insert(touched.end(), others.begin(), others.end());
    expectSameExcept(before, watcher.keys(), touched, "after the change");
}

INSTANTIATE_TEST_SUITE_P(Layouts, X11KeypadKeymapChangeTest, ::testing::Values("xvfb", "fr", "de"),
                         [](const ::testing::TestParamInfo<const char*>& info) {
                             return std::string(info.param);
                         });

// The claimed keycodes carry no key action: with MouseKeys on (the keypad moving the pointer), a
// tap on one still arrives as its keypad digit.
TEST(X11KeypadKeymapChangeMouseKeys, TapsOnClaimedKeycodesArriveWithMouseKeysOn) {
    XvfbSession server{false};
    ASSERT_TRUE(server.ok()) << server.error().toStdString();
    XTestDriver driver{server.display()};
    KeymapWatcher watcher{server.display()};
    ASSERT_TRUE(driver.ok());
    ASSERT_TRUE(watcher.ok());
    const QByteArray name = server.display().toLocal8Bit();
    std::shared_ptr<X11Connection> connection = X11Connection::open(name.constData());
    ASSERT_TRUE(connection);
    X11KeypadKeycodes keypad(connection);
    ASSERT_NE(keypad.keycodes()[0], 0u);

    LineProcess log;
    ASSERT_NE(test::startKeyLog(log, TARNIC_KEYLOG_PATH, {}, server, driver), 0u);
    watcher.turnMouseKeysOn();
    for (const unsigned keycode : keypad.keycodes()) {
        const int from = static_cast<int>(log.lines().size());
        driver.tap(keycode);
        const int down = test::waitForKey(log, true, keycode, from);
        EXPECT_GE(down, 0) << "keycode " << keycode << ": " << log.transcript().toStdString();
    }
}

// A process whose Xlib does not use XKB (XKB_DISABLE, as on a server without the extension)
// claims and gives back with core requests: one per run of consecutive keycodes.
TEST(X11KeypadKeymapChangeWithoutXkb, CoreRequestsClaimAndGiveBackTheSameKeycodes) {
    XvfbSession server{false};
    ASSERT_TRUE(server.ok()) << server.error().toStdString();
    KeymapProbe probe{server.display()};
    KeymapWatcher watcher{server.display()};
    ASSERT_TRUE(probe.ok());
    ASSERT_TRUE(watcher.ok());
    const unsigned scratch = probe.unusedKeycodes().front();
    probe.setKeysyms(scratch, {kSomeKeysym});
    const KeymapNotifications one = watcher.take();
    probe.setKeysyms(scratch, {});
    watcher.take();
    const Keys before = watcher.keys();

    QProcessEnvironment environment = server.environment();
    environment.insert("XKB_DISABLE", "1");
    LineProcess harness;
    ASSERT_TRUE(harness.start(TARNIC_HARNESS_PATH, {"--quiet"}, environment));
    ASSERT_GE(harness.waitForPrefix("ready ", 0, 20s), 0) << harness.transcript().toStdString();
    const std::vector<unsigned> own = probe.recordedKeycodes();
    ASSERT_EQ(own.size(), 6u);
    for (std::size_t i = 0; i < own.size(); ++i) {
        EXPECT_EQ(probe.keycodesWithOnly(kSlotKeypadKeysyms[i]), std::vector<unsigned>{own[i]});
    }
    std::vector<unsigned> sorted = own;
    std::sort(sorted.begin(), sorted.end());
    int runs = 1;
    for (std::size_t i = 1; i < sorted.size(); ++i) {
        runs += sorted[i] == sorted[i - 1] + 1 ? 0 : 1;
    }
    const KeymapNotifications claim = watcher.take();
    EXPECT_EQ(claim.xkbMapNotify, runs * one.xkbMapNotify) << printable(claim);
    EXPECT_EQ(claim.coreMappingNotify, runs * one.coreMappingNotify) << printable(claim);

    ASSERT_EQ(kill(static_cast<pid_t>(harness.processId()), SIGTERM), 0);
    ASSERT_TRUE(harness.waitForExit(20s));
    EXPECT_TRUE(harness.exitedNormally());
    EXPECT_TRUE(probe.recordedKeycodes().empty());
    const Keys after = watcher.keys();
    ASSERT_EQ(after.size(), before.size());
    for (const auto& [keycode, key] : before) {
        if (std::find(own.begin(), own.end(), keycode) == own.end()) {
            EXPECT_EQ(after.at(keycode), key) << "keycode " << keycode;
        } else {
            EXPECT_TRUE(probe.keysymsOf(keycode).empty()) << "keycode " << keycode;
        }
    }
}

} // namespace
} // namespace tarnic
