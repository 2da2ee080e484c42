// The backend's parts against a real X server (Xvfb), in this process.
#include "core/remapper/InventoryRemapper.h"
#include "core/vocabulary/KeyCodes.h"
#include "platform/x11/X11Platform.h"
#include "support/KeyLogLine.h"
#include "support/KeymapProbe.h"
#include "support/LineProcess.h"
#include "support/ProcessUntil.h"
#include "support/XTestDriver.h"
#include "support/XvfbSession.h"
#include "support/XKeycodes.h"

#include <QCoreApplication>

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <string>
#include <vector>

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
        const int ready = log.waitForPrefix("ready ", 0, 10s);
        EXPECT_GE(ready, 0) << "key log did not map its window";
        if (ready < 0) {
            return 0;
        }
        const unsigned long window = log.lines()[ready].section(' ', 1).toULong();
        EXPECT_TRUE(driver.focus(window, 5s));
        return window;
    }

    // The first key line at or after `from` that is this press or release; -1 if none comes.
    int waitForKey(LineProcess& log, bool press, unsigned keycode, int from) {
        return log.waitFor(
            [&](const QString& line) {
                const auto key = KeyLogLine::parse(line);
                return key && key->is(press, keycode);
            },
            from, 5s);
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
    EXPECT_TRUE(processUntil([&] { return seen.size() >= expected.size(); }, 5s));
    EXPECT_EQ(seen, expected);
}

TEST_F(X11BackendTest, PostedKeypadTapsAreNotObserved) {
    // The server passes recorded keys on when it next writes to any client; a focused client
    // makes it write at once, as the game would.
    LineProcess log;
    startKeyLog(log, "keylog");
    InventoryRemapper::Models models;
    models[0] = {1, 0, 12};
    CountingPoster poster(*platform->keyPoster);
    InventoryRemapper remapper(models, poster);
    std::vector<int> downs;
    std::vector<int> flags;
    platform->keyObserver->addKeyDownMonitor([&](int code) {
        downs.push_back(code);
        remapper.keyDown(code);
    });
    platform->keyObserver->addFlagsChangedMonitor([&](int code) { flags.push_back(code); });

    driver.tap(x(KEY_Q));
    ASSERT_TRUE(processUntil([&] { return poster.posted.size() >= 2; }, 5s));
    const unsigned own = probe.recordedKeycodes().at(0);
    ASSERT_GE(waitForKey(log, false, own, 0), 0) << log.transcript().toStdString();
    // The tap was recorded before this marker; once the marker is seen, so would the tap be.
    driver.tap(x(KEY_W));
    ASSERT_TRUE(processUntil([&] { return downs.size() >= 2; }, 5s));
    EXPECT_EQ(downs, (std::vector<int>{12, 13}));
    EXPECT_TRUE(flags.empty());
    EXPECT_EQ(poster.posted, (std::vector<std::string>{"down 89", "up 89"}));
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
    const int gameReady = game.waitForPrefix("ready ", 0, 10s);
    const int editorReady = editor.waitForPrefix("ready ", 0, 10s);
    ASSERT_GE(gameReady, 0) << game.transcript().toStdString();
    ASSERT_GE(editorReady, 0) << editor.transcript().toStdString();

    ASSERT_TRUE(driver.focus(game.lines()[gameReady].section(' ', 1).toULong(), 5s));
    EXPECT_TRUE(processUntil(
        [&] { return platform->frontmostApplication->bundleIdentifier() == war3ID; }, 2s));
    ASSERT_TRUE(driver.focus(editor.lines()[editorReady].section(' ', 1).toULong(), 5s));
    EXPECT_TRUE(processUntil(
        [&] { return platform->frontmostApplication->bundleIdentifier() == "notepad.exe"; }, 2s));
    EXPECT_EQ(platform->frontmostApplication->bundleIdentifier(), "notepad.exe");
}

} // namespace
} // namespace tarnic

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
