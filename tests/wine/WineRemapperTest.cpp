// The remapper's taps as the game would get them: a Windows program run by Wine on a private
// Xvfb with openbox logs the virtual keys it receives while the stand-in application remaps.
#include "x11/support/LineProcess.h"
#include "x11/support/QtPrinters.h"
#include "x11/support/XTestDriver.h"
#include "x11/support/XvfbSession.h"
#include "x11/support/XKeycodes.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <chrono>
#include <thread>

namespace tarnic {
namespace {

using namespace std::chrono_literals;
using testing::LineProcess;
using testing::XTestDriver;
using testing::XvfbSession;

using testing::x;

struct SlotKeys {
    unsigned trigger;        // evdev code of the bound key
    unsigned triggerVirtual; // what Windows calls it
    unsigned numpadVirtual;  // VK_NUMPADn of the slot
};

// Slots 1..6 bound to Q W E R T Y; their keypad keys are 7 8 4 5 1 2.
constexpr SlotKeys kSlots[] = {{KEY_Q, 'Q', 0x67}, {KEY_W, 'W', 0x68}, {KEY_E, 'E', 0x64},
                               {KEY_R, 'R', 0x65}, {KEY_T, 'T', 0x61}, {KEY_Y, 'Y', 0x62}};

TEST(Wine, RemapperTapsReachAWindowsProgramAsNumpadKeys) {
    XvfbSession server(true);
    ASSERT_TRUE(server.ok()) << server.error().toStdString();
    XTestDriver driver(server.display());
    ASSERT_TRUE(driver.ok());

    // A fresh prefix, made without the Mono and Gecko installers (they would ask).
    QTemporaryDir prefix;
    ASSERT_TRUE(prefix.isValid());
    QProcessEnvironment environment = server.environment();
    environment.insert("WINEPREFIX", prefix.path());
    environment.insert("WINEDEBUG", "-all");
    environment.insert("WINEDLLOVERRIDES", "mscoree=;mshtml=");
    {
        QProcess boot;
        boot.setProcessEnvironment(environment);
        boot.setStandardOutputFile(QProcess::nullDevice());
        boot.setStandardErrorFile(QProcess::nullDevice());
        boot.start(TARNIC_WINE_PATH, {"wineboot", "-i"});
        ASSERT_TRUE(boot.waitForStarted(30000));
        const bool finished = boot.waitForFinished(300000);
        if (!finished) {
            boot.kill();
            boot.waitForFinished(10000);
        }
        ASSERT_TRUE(finished) << "wineboot took more than 5 minutes";
        ASSERT_EQ(boot.exitCode(), 0);
    }

    LineProcess harness;
    QStringList arguments;
    for (int slot = 1; slot <= 6; ++slot) {
        const int macCodes[] = {12, 13, 14, 15, 17, 16};
        arguments << "--bind" << QString("%1,0,%2").arg(slot).arg(macCodes[slot - 1]);
    }
    ASSERT_TRUE(harness.start(TARNIC_HARNESS_PATH, arguments, server.environment()));
    ASSERT_GE(harness.waitForLine("trusted true", 0, 10s), 0) << harness.transcript().toStdString();
    const int harnessReady = harness.waitForPrefix("ready ", 0, 10s);
    ASSERT_GE(harnessReady, 0);
    ASSERT_TRUE(driver.focus(harness.lines()[harnessReady].section(' ', 1).toULong(), 10s));

    LineProcess program;
    ASSERT_TRUE(program.start(TARNIC_WINE_PATH, {TARNIC_VKEYLOG_PATH}, environment));
    ASSERT_GE(program.waitForLine("ready", 0, 120s), 0) << program.transcript().toStdString();
    const unsigned long window = driver.waitForWindowOfClass("vkeylog.exe", 30s);
    ASSERT_NE(window, 0u) << "no window of class vkeylog.exe";
    ASSERT_TRUE(driver.focus(window, 10s));

    for (const bool numLockBefore : {false, true, false}) {
        SCOPED_TRACE(numLockBefore ? "Num Lock on" : "Num Lock off");
        driver.setNumLock(numLockBefore);
        ASSERT_EQ(driver.numLockOn(), numLockBefore);
        for (const SlotKeys& slot : kSlots) {
            SCOPED_TRACE(slot.triggerVirtual);
            const int from = program.lines().size();
            driver.tap(x(slot.trigger));
            const int trigger =
                program.waitForLine(QString("down %1").arg(slot.triggerVirtual), from, 10s);
            ASSERT_GE(trigger, 0) << program.transcript().toStdString();
            const int down =
                program.waitForLine(QString("down %1").arg(slot.numpadVirtual), trigger, 10s);
            ASSERT_GE(down, 0) << program.transcript().toStdString();
            const int up = program.waitForLine(QString("up %1").arg(slot.numpadVirtual), down, 10s);
            ASSERT_GE(up, 0) << program.transcript().toStdString();
            // Nothing but the trigger's own release, and Wine's Num Lock bookkeeping, in between.
            for (int i = down + 1; i < up; ++i) {
                const QString& line = program.lines()[i];
                EXPECT_TRUE(line == QString("up %1").arg(slot.triggerVirtual) ||
                            line.endsWith(" 144")) // VK_NUMLOCK
                    << line.toStdString();
            }
            // Never the cursor key that keypad key means with Num Lock off.
            for (int i = trigger; i <= up; ++i) {
                const unsigned virtualKey = program.lines()[i].section(' ', 1).toUInt();
                EXPECT_FALSE(virtualKey >= 0x21 && virtualKey <= 0x28)
                    << "cursor key " << virtualKey;
            }
        }
        // The tap leaves Num Lock as it found it; the restoring request follows the key-up.
        const auto deadline = std::chrono::steady_clock::now() + 2s;
        while (driver.numLockOn() != numLockBefore && std::chrono::steady_clock::now() < deadline) {
            std::this_thread::sleep_for(10ms);
        }
        EXPECT_EQ(driver.numLockOn(), numLockBefore);
    }
    ASSERT_EQ(harness.waitForLine("posted up 84", 0, 5s) >= 0, true);
}

} // namespace
} // namespace tarnic

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
