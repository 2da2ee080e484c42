// The backend's parts against a real X server (Xvfb), in this process.
#include "core/remapper/InventoryRemapper.h"
#include "core/vocabulary/KeyCodes.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11FrontmostWatcher.h"
#include "platform/x11/X11Platform.h"
#include "support/KeyLogLine.h"
#include "support/KeyLogWaits.h"
#include "support/KeymapProbe.h"
#include "support/LineProcess.h"
#include "support/ProcessUntil.h"
#include "support/XTestDriver.h"
#include "support/XvfbSession.h"
#include "support/XKeycodes.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <algorithm>
#include <mutex>
#include <poll.h>
#include <string>
#include <vector>

// Last: Xlib's macros (None, Bool) break the headers above.
#include <X11/Xlib.h>

namespace tarnic {
namespace {

using namespace std::chrono_literals;
using testing::KeyLogLine;
using testing::KeymapProbe;
using testing::kSlotKeypadKeysyms;
using testing::LineProcess;
using testing::processUntil;
using testing::XTestDriver;
using testing::XvfbSession;

using testing::kNumLockMask;
using testing::kShiftMask;
using testing::x;

class CountingPoster : public KeyPoster {
public:
    explicit CountingPoster(KeyPoster& poster) : poster_(poster) {}
    void postKeyDown(std::uint16_t keyCode) override {
        posted.push_back("down " + std::to_string(keyCode));
        poster_.postKeyDown(keyCode);
    }
    void postKeyUp(std::uint16_t keyCode) override {
        posted.push_back("up " + std::to_string(keyCode));
        poster_.postKeyUp(keyCode);
    }
    std::vector<std::string> posted;

private:
    KeyPoster& poster_;
};

TEST(X11Platform, NoPlatformWithoutADisplay) {
    EXPECT_FALSE(makeX11Platform(":64999").has_value());
}

class X11BackendTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(server.ok()) << server.error().toStdString();
        ASSERT_TRUE(driver.ok());
        ASSERT_TRUE(probe.ok());
        platform = makeX11Platform(server.display().toLocal8Bit().constData());
        ASSERT_TRUE(platform.has_value());
    }

    // Starts the key-log client and gives it the focus; its window id.
    unsigned long startKeyLog(LineProcess& log, const QString& windowClass) {
        EXPECT_TRUE(log.start(TARNIC_KEYLOG_PATH, {"--class", windowClass}, server.environment()));
        const unsigned long window = waitForReadyWindow(log, 10s);
        EXPECT_NE(window, 0u) << "key log did not map its window";
        if (window != 0) {
            EXPECT_TRUE(driver.focus(window, 5s));
        }
        return window;
    }

    // What the key handlers wrote, read under the lock they run under (on the key thread).
    template <typename Read> auto locked(Read read) {
        const std::lock_guard lock(*platform->keyPath);
        return read();
    }

    XvfbSession server{false};
    XTestDriver driver{server.display()};
    KeymapProbe probe{server.display()};
    std::optional<Platform> platform;
};

TEST(X11Platform, ServerWithoutRecordLeavesTheProcessUntrusted) {
    XvfbSession server(false, {"-extension", "RECORD"});
    ASSERT_TRUE(server.ok()) << server.error().toStdString();
    std::optional<Platform> platform = makeX11Platform(server.display().toLocal8Bit().constData());
    ASSERT_TRUE(platform.has_value());
    EXPECT_FALSE(platform->accessibilityTrust->isProcessTrusted());
}

TEST_F(X11BackendTest, RecordingStartsSoTheProcessCountsAsTrusted) {
    EXPECT_TRUE(platform->accessibilityTrust->isProcessTrusted());
}

TEST_F(X11BackendTest, ObserverReportsKeyDownsAndModifierChangesInMacCodes) {
    std::vector<std::string> seen;
    platform->keyObserver->addKeyDownMonitor(
        [&](int code) { seen.push_back("down " + std::to_string(code)); });
    platform->keyObserver->addFlagsChangedMonitor(
        [&](int code) { seen.push_back("flags " + std::to_string(code)); });

    driver.tap(x(KEY_Q));
    driver.press(x(KEY_LEFTSHIFT));
    driver.tap(x(KEY_A));
    driver.release(x(KEY_LEFTSHIFT));
    driver.press(x(KEY_RIGHTCTRL));
    driver.release(x(KEY_RIGHTCTRL));
    driver.tap(x(KEY_F1));
    driver.press(x(KEY_CAPSLOCK));
    driver.release(x(KEY_CAPSLOCK));
    driver.tap(x(KEY_SPACE));

    const std::vector<std::string> expected = {"down 12",  "flags 56", "down 0",   "flags 56",
                                               "flags 62", "flags 62", "down 122", "flags 57",
                                               "flags 57", "down 49"};
    EXPECT_TRUE(
        processUntil([&] { return locked([&] { return seen.size(); }) >= expected.size(); }, 5s));
    EXPECT_EQ(locked([&] { return seen; }), expected);
}

TEST_F(X11BackendTest, PostedKeypadTapsAreNotObserved) {
    // The server passes recorded keys on when it next writes to any client; a focused client
    // makes it write at once, as the game would.
    LineProcess log;
    startKeyLog(log, "keylog");
    InventoryBindings bindings;
    bindings.of(1) = SlotBinding{1, 0, 12};
    CountingPoster poster(*platform->keyPoster);
    InventoryRemapper remapper(poster);
    remapper.setBindings(bindings);
    std::vector<int> downs;
    std::vector<int> flags;
    platform->keyObserver->addKeyDownMonitor([&](int code) {
        downs.push_back(code);
        remapper.keyDown(code);
    });
    platform->keyObserver->addFlagsChangedMonitor([&](int code) { flags.push_back(code); });

    driver.tap(x(KEY_Q));
    ASSERT_TRUE(
        processUntil([&] { return locked([&] { return poster.posted.size(); }) >= 2; }, 5s));
    const unsigned own = probe.recordedKeycodes().at(0);
    ASSERT_GE(waitForKey(log, false, own, 0), 0) << log.transcript().toStdString();
    // The tap was recorded before this marker; once the marker is seen, so would the tap be.
    driver.tap(x(KEY_W));
    ASSERT_TRUE(processUntil([&] { return locked([&] { return downs.size(); }) >= 2; }, 5s));
    EXPECT_EQ(locked([&] { return downs; }), (std::vector<int>{12, 13}));
    EXPECT_TRUE(locked([&] { return flags.empty(); }));
    EXPECT_EQ(locked([&] { return poster.posted; }),
              (std::vector<std::string>{"down 89", "up 89"}));
}

TEST_F(X11BackendTest, SlotTapsGoOutOnKeycodesOfOurOwnWhateverNumLockAndShiftAndLeaveNumLockAlone) {
    LineProcess log;
    startKeyLog(log, "keylog");
    const std::vector<unsigned> own = probe.recordedKeycodes();
    ASSERT_EQ(own.size(), 6u);
    for (std::size_t i = 0; i < own.size(); ++i) {
        EXPECT_EQ(probe.keysymsOf(own[i]), std::vector<unsigned long>{kSlotKeypadKeysyms[i]});
    }
    const std::uint16_t slotCodes[] = {89, 91, 86, 87, 83, 84};

    for (const bool numLock : {false, true}) {
        for (const bool shift : {false, true}) {
            SCOPED_TRACE(std::string(numLock ? "Num Lock on" : "Num Lock off") +
                         (shift ? ", Shift held" : ""));
            driver.setNumLock(numLock);
            probe.watchLockedModifiers();
            const int locksBefore = probe.lockedModifierChanges();
            if (shift) {
                driver.press(x(KEY_LEFTSHIFT));
            }
            int from = log.lines().size();
            for (std::size_t i = 0; i < own.size(); ++i) {
                platform->keyPoster->postKeyDown(slotCodes[i]);
                platform->keyPoster->postKeyUp(slotCodes[i]);
            }
            for (std::size_t i = 0; i < own.size(); ++i) {
                const int down = waitForKey(log, true, own[i], from);
                ASSERT_GE(down, 0) << log.transcript().toStdString();
                const int up = waitForKey(log, false, own[i], down);
                ASSERT_GE(up, 0) << log.transcript().toStdString();
                for (const int line : {down, up}) {
                    const unsigned state = KeyLogLine::parse(log.lines()[line])->state;
                    EXPECT_EQ((state & kNumLockMask) != 0, numLock);
                    EXPECT_EQ((state & kShiftMask) != 0, shift) << "a held Shift stays held";
                }
                from = up;
            }
            if (shift) {
                driver.release(x(KEY_LEFTSHIFT));
            }
            EXPECT_EQ(probe.lockedModifierChanges(), locksBefore);
            EXPECT_EQ(driver.numLockOn(), numLock);
            // Not a single key of the keyboard's own keypad.
            for (const QString& line : log.lines()) {
                const auto key = KeyLogLine::parse(line);
                ASSERT_TRUE(!key || key->keycode < x(KEY_KP7) || key->keycode > x(KEY_KPDOT))
                    << line.toStdString();
            }
        }
    }
}

TEST_F(X11BackendTest, OtherKeysGoOutOnTheirOwnKeys) {
    LineProcess log;
    startKeyLog(log, "keylog");
    driver.setNumLock(false);
    platform->keyPoster->postKeyDown(12);
    platform->keyPoster->postKeyUp(12);
    const int q = waitForKey(log, true, x(KEY_Q), 0);
    ASSERT_GE(q, 0) << log.transcript().toStdString();
    EXPECT_FALSE(KeyLogLine::parse(log.lines()[q])->state & (kNumLockMask | kShiftMask));
    ASSERT_GE(waitForKey(log, false, x(KEY_Q), q), 0);
}

TEST_F(X11BackendTest, NoFrontmostApplicationWithoutAWindowManager) {
    LineProcess log;
    startKeyLog(log, "war3.exe");
    EXPECT_FALSE(platform->frontmostApplication->bundleIdentifier().has_value());
    testing::processUntil([] { return false; }, 200ms);
    EXPECT_FALSE(platform->frontmostWatcher->frontmostIdentifier().has_value());
}

TEST_F(X11BackendTest, UntrustedForWantOfRecordTheReasonSaysSo) {
    EXPECT_EQ(platform->accessibilityTrust->untrustedReason(), UntrustedReason::Trusted);
    XvfbSession bare(false, {"-extension", "RECORD"});
    ASSERT_TRUE(bare.ok()) << bare.error().toStdString();
    std::optional<Platform> without = makeX11Platform(bare.display().toLocal8Bit().constData());
    ASSERT_TRUE(without.has_value());
    EXPECT_EQ(without->accessibilityTrust->untrustedReason(), UntrustedReason::NoKeyRecording);
}

class X11BackendWithWindowManagerTest : public ::testing::Test {
protected:
    XvfbSession server{true};
    XTestDriver driver{server.display()};
};

TEST_F(X11BackendWithWindowManagerTest, FrontmostApplicationIsTheActiveWindowsClass) {
    ASSERT_TRUE(server.ok()) << server.error().toStdString();
    std::optional<Platform> platform = makeX11Platform(server.display().toLocal8Bit().constData());
    ASSERT_TRUE(platform.has_value());

    LineProcess game;
    LineProcess editor;
    ASSERT_TRUE(game.start(TARNIC_KEYLOG_PATH, {"--class", "War3.exe"}, server.environment()));
    ASSERT_TRUE(editor.start(TARNIC_KEYLOG_PATH, {"--class", "notepad.exe"}, server.environment()));
    const unsigned long gameWindow = waitForReadyWindow(game, 10s);
    const unsigned long editorWindow = waitForReadyWindow(editor, 10s);
    ASSERT_NE(gameWindow, 0u) << game.transcript().toStdString();
    ASSERT_NE(editorWindow, 0u) << editor.transcript().toStdString();

    ASSERT_TRUE(driver.focus(gameWindow, 5s));
    EXPECT_TRUE(processUntil(
        [&] { return platform->frontmostApplication->bundleIdentifier() == war3ID; }, 2s));
    ASSERT_TRUE(driver.focus(editorWindow, 5s));
    EXPECT_TRUE(processUntil(
        [&] { return platform->frontmostApplication->bundleIdentifier() == "notepad.exe"; }, 2s));
    EXPECT_EQ(platform->frontmostApplication->bundleIdentifier(), "notepad.exe");
}

// The watcher behind "Only while the game is in front" and the chat line: it learns of each new
// active window from the root window's property-change events and keeps the answer, so that the
// key-down path can ask at every key press without a request to the server.
class X11FrontmostWatcherTest : public X11BackendWithWindowManagerTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(server.ok()) << server.error().toStdString();
        displayName = server.display().toLocal8Bit();
        connection = x11::X11Connection::open(displayName.constData());
        ASSERT_TRUE(connection);
        watcher = std::make_unique<x11::X11FrontmostWatcher>(connection);
        watcher->addChangeMonitor([this](const std::optional<std::string>& identifier) {
            changes.push_back(identifier.value_or("none"));
        });
        ASSERT_TRUE(game.start(TARNIC_KEYLOG_PATH, {"--class", "war3.exe"}, server.environment()));
        ASSERT_TRUE(
            editor.start(TARNIC_KEYLOG_PATH, {"--class", "notepad.exe"}, server.environment()));
        gameWindow = waitForReadyWindow(game, 10s);
        editorWindow = waitForReadyWindow(editor, 10s);
        ASSERT_NE(gameWindow, 0u) << game.transcript().toStdString();
        ASSERT_NE(editorWindow, 0u) << editor.transcript().toStdString();
        // The window manager gives each new window the focus as it maps it, and on a busy machine
        // the watcher may hear of that only now. Every test starts from the editor in front,
        // asked for after both windows were mapped, so no focus of the window manager's own
        // comes later.
        ASSERT_TRUE(driver.focus(editorWindow, 5s));
        ASSERT_TRUE(
            processUntil([&] { return watcher->frontmostIdentifier() == "notepad.exe"; }, 5s));
    }

    // The serial number of the next request on the watcher's connection: it moves with every
    // request sent, round trip or not.
    unsigned long nextRequest() { return NextRequest(connection->display()); }

    // Waits, without running the event loop, until the watcher's connection has something to
    // read.
    bool eventArrives(std::chrono::milliseconds timeout) {
        pollfd descriptor{ConnectionNumber(connection->display()), POLLIN, 0};
        return poll(&descriptor, 1, static_cast<int>(timeout.count())) > 0;
    }

    QByteArray displayName;
    std::shared_ptr<x11::X11Connection> connection;
    std::unique_ptr<x11::X11FrontmostWatcher> watcher;
    std::vector<std::string> changes;
    LineProcess game;
    LineProcess editor;
    unsigned long gameWindow = 0;
    unsigned long editorWindow = 0;
};

TEST_F(X11FrontmostWatcherTest, FollowsTheActiveWindowFromEventsAlone) {
    // What came before is the start, not under test: the editor in front.
    changes.assign(1, "notepad.exe");
    ASSERT_TRUE(driver.focus(gameWindow, 5s));
    // Only the event loop runs here; reading the answer asks the server nothing.
    EXPECT_TRUE(processUntil([&] { return watcher->frontmostIdentifier() == war3ID; }, 2s));
    ASSERT_TRUE(driver.focus(editorWindow, 5s));
    EXPECT_TRUE(processUntil([&] { return watcher->frontmostIdentifier() == "notepad.exe"; }, 2s));
    ASSERT_TRUE(driver.focus(gameWindow, 5s));
    EXPECT_TRUE(processUntil([&] { return watcher->frontmostIdentifier() == war3ID; }, 2s));
    // The window manager may say "no window" for an instant, between two windows or before it
    // names the same window again (a late word about the start ends that way); those are real
    // changes too, but not ones this test makes.
    std::erase(changes, std::string("none"));
    changes.erase(std::unique(changes.begin(), changes.end()), changes.end());
    EXPECT_EQ(changes, (std::vector<std::string>{"notepad.exe", war3ID, "notepad.exe", war3ID}));
}

TEST_F(X11FrontmostWatcherTest, AskingAndTakingInWithNothingNewSendNoRequest) {
    ASSERT_TRUE(driver.focus(gameWindow, 5s));
    ASSERT_TRUE(processUntil([&] { return watcher->frontmostIdentifier() == war3ID; }, 2s));
    // Whatever else the window manager still had to say about the change is read first.
    processUntil([] { return false; }, 300ms);

    // What the key-down path does at every key press while an option is on.
    const unsigned long before = nextRequest();
    for (int press = 0; press < 200; ++press) {
        watcher->takeInChanges();
        ASSERT_EQ(watcher->frontmostIdentifier(), war3ID);
    }
    EXPECT_EQ(nextRequest(), before) << "a key press sent a request to the X server";
}

TEST_F(X11FrontmostWatcherTest, AChangeThatArrivedUnreadIsTakenInBeforeTheAnswer) {
    ASSERT_TRUE(driver.focus(editorWindow, 5s));
    ASSERT_TRUE(processUntil([&] { return watcher->frontmostIdentifier() == "notepad.exe"; }, 2s));
    processUntil([] { return false; }, 300ms);

    ASSERT_TRUE(driver.focus(gameWindow, 5s));
    // The event loop does not run: the announcement waits on the socket, as it may when a key
    // goes down the instant after the switch.
    const auto deadline = std::chrono::steady_clock::now() + 5s;
    while (watcher->frontmostIdentifier() != war3ID &&
           std::chrono::steady_clock::now() < deadline) {
        // The announcement may come in parts (first "no window"); a part Xlib has already read
        // off the socket is no longer there to poll for, so the wait is short and not required.
        eventArrives(200ms);
        watcher->takeInChanges();
    }
    EXPECT_EQ(watcher->frontmostIdentifier(), war3ID);
}

TEST_F(X11FrontmostWatcherTest, ThePlatformHasOneOnItsMainConnection) {
    std::optional<Platform> platform = makeX11Platform(displayName.constData());
    ASSERT_TRUE(platform.has_value());
    ASSERT_NE(platform->frontmostWatcher, nullptr);
    ASSERT_TRUE(driver.focus(gameWindow, 5s));
    EXPECT_TRUE(processUntil(
        [&] { return platform->frontmostWatcher->frontmostIdentifier() == war3ID; }, 2s));
    ASSERT_TRUE(driver.focus(editorWindow, 5s));
    EXPECT_TRUE(processUntil(
        [&] { return platform->frontmostWatcher->frontmostIdentifier() == "notepad.exe"; }, 2s));

    // The keypad keycodes listen on the same connection: a keymap that takes one of them away is
    // still noticed and the digit claimed again, and the watcher still follows the focus.
    KeymapProbe probe(server.display());
    ASSERT_TRUE(probe.ok());
    const std::vector<unsigned> claimed = probe.recordedKeycodes();
    ASSERT_EQ(claimed.size(), 6u);
    probe.setKeysyms(claimed[0], {});
    EXPECT_TRUE(processUntil(
        [&] { return probe.keycodesWithOnly(kSlotKeypadKeysyms[0]).size() == 1; }, 5s));
    ASSERT_TRUE(driver.focus(gameWindow, 5s));
    EXPECT_TRUE(processUntil(
        [&] { return platform->frontmostWatcher->frontmostIdentifier() == war3ID; }, 2s));
}

} // namespace
} // namespace tarnic
