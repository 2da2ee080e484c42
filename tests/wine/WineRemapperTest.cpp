// The remapper's taps as the game would get them: a Windows program run by Wine on a private
// Xvfb with openbox logs the virtual keys it receives while the stand-in application remaps.
// Bindings with and without Shift, Shift held or not, Num Lock on and off: every slot's tap must
// arrive as its VK_NUMPADn with the keypad's scan code, never as a cursor key, and Num Lock must
// be left exactly as it was.
#include "support/KeyLogWaits.h"
#include "support/KeymapProbe.h"
#include "support/LineProcess.h"
#include "support/QtPrinters.h"
#include "support/XKeycodes.h"
#include "support/XTestDriver.h"
#include "support/XvfbSession.h"

#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <optional>
#include <string>

namespace tarnic {
namespace {

using namespace std::chrono_literals;
using test::KeymapProbe;
using test::LineProcess;
using test::XTestDriver;
using test::XvfbSession;

using test::x;

constexpr unsigned kVkShift = 0x10;
constexpr unsigned kVkNumLock = 0x90;

struct SlotKeys {
    unsigned trigger;        // evdev code of the bound key
    int triggerMac;          // its macOS virtual key code, as bindings name it
    unsigned triggerVirtual; // what Windows calls it
    unsigned numpadVirtual;  // VK_NUMPADn of the slot
    unsigned numpadScan;     // the keypad key's scan code
};

// Slots 1..6 bound to Q W E R T Y; their keypad keys are 7 8 4 5 1 2.
constexpr SlotKeys kSlots[] = {{KEY_Q, 12, 'Q', 0x67, 0x47}, {KEY_W, 13, 'W', 0x68, 0x48},
                               {KEY_E, 14, 'E', 0x64, 0x4b}, {KEY_R, 15, 'R', 0x65, 0x4c},
                               {KEY_T, 17, 'T', 0x61, 0x4f}, {KEY_Y, 16, 'Y', 0x62, 0x50}};

// One line of the Windows program's log.
struct VirtualKey {
    bool down = false;
    unsigned virtualKey = 0;
    unsigned scanCode = 0;
    bool extended = false;
    bool numLock = false;

    static std::optional<VirtualKey> parse(const QString& line) {
        const QStringList parts = line.split(' ');
        if (parts.size() != 5 || (parts[0] != "down" && parts[0] != "up")) {
            return std::nullopt;
        }
        return VirtualKey{parts[0] == "down", parts[1].toUInt(), parts[2].toUInt(), parts[3] == "1",
                          parts[4] == "1"};
    }
};

bool isCursorKey(unsigned virtualKey) {
    // VK_PRIOR .. VK_DOWN, VK_INSERT, VK_DELETE, VK_CLEAR: what keypad keys mean with Num Lock
    // off or Shift held.
    return (virtualKey >= 0x21 && virtualKey <= 0x28) || virtualKey == 0x2d || virtualKey == 0x2e ||
           virtualKey == 0x0c;
}

// What a process printed (standard output and error together), its last `limit` characters.
QString tail(QProcess& process, qsizetype limit = 4000) {
    const QString output = QString::fromLocal8Bit(process.readAll());
    return output.size() <= limit ? output : "[...]\n" + output.right(limit);
}

// Runs `program arguments` to its end (at most `timeout`); empty when it succeeded, else what
// went wrong, with its output.
QString runWine(const QString& program, const QStringList& arguments,
                const QProcessEnvironment& environment, std::chrono::milliseconds timeout) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    const QString command = program + " " + arguments.join(' ');
    process.start(program, arguments);
    if (!process.waitForStarted(30000)) {
        return command + " did not start: " + process.errorString();
    }
    if (!process.waitForFinished(static_cast<int>(timeout.count()))) {
        process.kill();
        process.waitForFinished(10000);
        return QString("%1 took more than %2 s; its output:\n%3")
            .arg(command)
            .arg(timeout.count() / 1000)
            .arg(tail(process));
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        return QString("%1 ended with %2 %3; its output:\n%4")
            .arg(command)
            .arg(process.exitStatus() == QProcess::NormalExit ? "status" : "signal")
            .arg(process.exitCode())
            .arg(tail(process));
    }
    return {};
}

// Makes the prefix; empty when it is ready, else both tries with their output. The very first
// wineboot on a machine has been seen to fail (status 53) where every later one passed, so a
// failed try is followed, once its wineserver has ended, by a second one.
QString bootPrefix(QProcessEnvironment environment) {
    // Wine's own errors are wanted in the output here, its fixme notes are not.
    environment.insert("WINEDEBUG", "fixme-all");
    const QString first = runWine(TARNIC_WINE_PATH, {"wineboot", "-i"}, environment, 300s);
    if (first.isEmpty()) {
        return {};
    }
    std::fprintf(stderr, "wineboot failed, trying once more: %s\n", qPrintable(first));
    const QString wait = runWine(TARNIC_WINESERVER_PATH, {"-w"}, environment, 120s);
    const QString second = runWine(TARNIC_WINE_PATH, {"wineboot", "-i"}, environment, 300s);
    if (second.isEmpty()) {
        return {};
    }
    return "the Wine prefix could not be made. First try: " + first +
           (wait.isEmpty() ? QString() : "\nWaiting for the wineserver: " + wait) +
           "\nSecond try: " + second;
}

class WineRemapperTest : public ::testing::Test {
protected:
    int waitForKey(bool down, unsigned virtualKey, int from, std::chrono::milliseconds timeout) {
        return program.waitFor(
            [&](const QString& line) {
                const auto key = VirtualKey::parse(line);
                return key && key->down == down && key->virtualKey == virtualKey;
            },
            from, timeout);
    }

    std::string transcript() { return program.transcript().toStdString(); }

    // Starts the stand-in with these bindings and waits until it records; the Windows program
    // (once running) keeps the focus.
    void startStandIn(const QStringList& bindings) {
        QStringList arguments;
        for (const QString& binding : bindings) {
            arguments << "--bind" << binding;
        }
        ASSERT_TRUE(harness.start(TARNIC_HARNESS_PATH, arguments, server.environment()));
        ASSERT_GE(harness.waitForLine("trusted true", 0, 20s), 0)
            << harness.transcript().toStdString();
        const unsigned long harnessWindow = waitForReadyWindow(harness, 20s);
        ASSERT_NE(harnessWindow, 0u);
        // Focused once so that the window manager has taken it over and will not hand it the
        // focus later by itself.
        ASSERT_TRUE(driver.focus(harnessWindow, 10s));
        ASSERT_EQ(probe.recordedKeycodes().size(), 6u) << "keypad keycodes claimed at start";
        if (programWindow != 0) {
            ASSERT_TRUE(driver.focus(programWindow, 10s));
        }
    }

    // Ends the stand-in as the system would at logout: it gives its keycodes back.
    void stopStandIn() {
        ASSERT_EQ(kill(static_cast<pid_t>(harness.processId()), SIGTERM), 0);
        ASSERT_TRUE(harness.waitForExit(20s));
        EXPECT_TRUE(probe.recordedKeycodes().empty());
    }

    // Wine takes in a keymap change only some time after the server announced it (about 3 s
    // measured): tap slot 1 until its keypad key arrives as such, a bounded number of times.
    void waitUntilWineKnowsTheKeycodes(bool withShift) {
        bool arrived = false;
        for (int attempt = 0; attempt < 40 && !arrived; ++attempt) {
            const int from = program.lines().size();
            if (withShift) {
                driver.press(x(KEY_LEFTSHIFT));
            }
            driver.tap(x(kSlots[0].trigger));
            arrived = waitForKey(true, kSlots[0].numpadVirtual, from, 1s) >= 0;
            if (withShift) {
                driver.release(x(KEY_LEFTSHIFT));
            }
            // Let the rest of the attempt arrive before the next one starts.
            waitForKey(false, kSlots[0].triggerVirtual, from, 2s);
        }
        ASSERT_TRUE(arrived) << "the keypad tap never arrived as VK_NUMPAD7\n" << transcript();
    }

    // Types every slot's trigger, with the left Shift held through XTest or not, and checks what
    // the program receives. With `expectTaps` false the bindings must not fire.
    void typeEverySlot(bool shift, bool numLock, bool expectTaps) {
        SCOPED_TRACE(std::string(numLock ? "Num Lock on" : "Num Lock off") +
                     (shift ? ", left Shift held" : ", no modifier"));
        driver.setNumLock(numLock);
        ASSERT_EQ(driver.numLockOn(), numLock);
        // Wine notices a change of Num Lock at the next key and reports it as a VK_NUMLOCK
        // press and release of its own; let that happen before looking.
        const int beforeSync = program.lines().size();
        driver.tap(x(KEY_SPACE));
        ASSERT_GE(waitForKey(false, ' ', beforeSync, 10s), 0) << transcript();
        const int locksBefore = probe.lockedModifierChanges();
        const int start = program.lines().size();
        if (shift) {
            driver.press(x(KEY_LEFTSHIFT));
            ASSERT_GE(waitForKey(true, kVkShift, start, 10s), 0) << transcript();
        }
        for (const SlotKeys& slot : kSlots) {
            SCOPED_TRACE(slot.triggerVirtual);
            const int from = program.lines().size();
            driver.tap(x(slot.trigger));
            const int trigger = waitForKey(true, slot.triggerVirtual, from, 10s);
            ASSERT_GE(trigger, 0) << transcript();
            const int triggerUp = waitForKey(false, slot.triggerVirtual, trigger, 10s);
            ASSERT_GE(triggerUp, 0) << transcript();
            if (!expectTaps) {
                continue;
            }
            const int down = waitForKey(true, slot.numpadVirtual, trigger, 10s);
            ASSERT_GE(down, 0) << transcript();
            const int up = waitForKey(false, slot.numpadVirtual, down, 10s);
            ASSERT_GE(up, 0) << transcript();
            for (const int line : {down, up}) {
                const auto key = VirtualKey::parse(program.lines()[line]);
                EXPECT_EQ(key->scanCode, slot.numpadScan) << program.lines()[line].toStdString();
                EXPECT_FALSE(key->extended) << program.lines()[line].toStdString();
                EXPECT_EQ(key->numLock, numLock) << program.lines()[line].toStdString();
            }
        }
        if (shift) {
            driver.release(x(KEY_LEFTSHIFT));
            ASSERT_GE(waitForKey(false, kVkShift, start, 10s), 0) << transcript();
        }
        // Let any tap still on its way arrive before looking at everything.
        const int marker = program.lines().size();
        driver.tap(x(KEY_SPACE));
        ASSERT_GE(waitForKey(false, ' ', marker, 10s), 0) << transcript();

        int numpadDowns = 0;
        for (int i = start; i < program.lines().size(); ++i) {
            const auto key = VirtualKey::parse(program.lines()[i]);
            ASSERT_TRUE(key.has_value()) << program.lines()[i].toStdString();
            EXPECT_FALSE(isCursorKey(key->virtualKey)) << program.lines()[i].toStdString();
            EXPECT_NE(key->virtualKey, kVkNumLock) << program.lines()[i].toStdString();
            EXPECT_NE(key->virtualKey, 0xfcu) << "a tap Wine could not name";
            numpadDowns += key->down && key->virtualKey >= 0x60 && key->virtualKey <= 0x69;
        }
        EXPECT_EQ(numpadDowns, expectTaps ? 6 : 0) << transcript();
        EXPECT_EQ(driver.numLockOn(), numLock);
        EXPECT_EQ(probe.lockedModifierChanges(), locksBefore) << "Num Lock was touched";
    }

    XvfbSession server{true};
    XTestDriver driver{server.display()};
    KeymapProbe probe{server.display()};
    LineProcess harness;
    LineProcess program;
    unsigned long programWindow = 0;
};

TEST_F(WineRemapperTest, TapsReachAWindowsProgramAsNumpadKeysWithShiftHeldAndNumLockEitherWay) {
    ASSERT_TRUE(server.ok()) << server.error().toStdString();
    ASSERT_TRUE(driver.ok());
    ASSERT_TRUE(probe.ok());
    probe.watchLockedModifiers();

    // A fresh prefix, made without the Mono and Gecko installers (they would ask).
    QTemporaryDir prefix;
    ASSERT_TRUE(prefix.isValid());
    QProcessEnvironment environment = server.environment();
    environment.insert("WINEPREFIX", prefix.path());
    environment.insert("WINEDEBUG", "-all");
    environment.insert("WINEDLLOVERRIDES", "mscoree=;mshtml=");
    const QString bootFailure = bootPrefix(environment);
    ASSERT_TRUE(bootFailure.isEmpty()) << bootFailure.toStdString();

    // First the bindings without a modifier: they fire with Shift held too.
    QStringList plain;
    for (int slot = 1; slot <= 6; ++slot) {
        plain << QString("%1,0,%2").arg(slot).arg(kSlots[slot - 1].triggerMac);
    }
    ASSERT_NO_FATAL_FAILURE(startStandIn(plain));

    ASSERT_TRUE(program.start(TARNIC_WINE_PATH, {TARNIC_VKEYLOG_PATH}, environment));
    ASSERT_GE(program.waitForLine("ready", 0, 120s), 0) << transcript();
    programWindow = driver.waitForWindowOfClass("vkeylog.exe", 30s);
    ASSERT_NE(programWindow, 0u) << "no window of class vkeylog.exe";
    ASSERT_TRUE(driver.focus(programWindow, 10s));
    ASSERT_NO_FATAL_FAILURE(waitUntilWineKnowsTheKeycodes(false));

    for (const bool numLock : {false, true, false}) {
        ASSERT_NO_FATAL_FAILURE(typeEverySlot(false, numLock, true));
        ASSERT_NO_FATAL_FAILURE(typeEverySlot(true, numLock, true));
    }

    // Then the same keys bound with Shift, in a stand-in started afresh: its keycodes are
    // claimed anew while Wine runs.
    ASSERT_NO_FATAL_FAILURE(stopStandIn());
    QStringList shifted;
    for (int slot = 1; slot <= 6; ++slot) {
        shifted << QString("%1,56,%2").arg(slot).arg(kSlots[slot - 1].triggerMac);
    }
    ASSERT_NO_FATAL_FAILURE(startStandIn(shifted));
    ASSERT_NO_FATAL_FAILURE(waitUntilWineKnowsTheKeycodes(true));

    for (const bool numLock : {true, false}) {
        ASSERT_NO_FATAL_FAILURE(typeEverySlot(true, numLock, true));
        ASSERT_NO_FATAL_FAILURE(typeEverySlot(false, numLock, false));
    }
}

} // namespace
} // namespace tarnic
