// How much time the remapper adds between a trigger press and its keypad tap, against the floor:
// a minimal RECORD + XTest program in plain Xlib (RecordTapFloor.cpp) that taps keypad 7 on a
// keycode of its own. On one private Xvfb, in one run, three tools are bound to keypad 7, each
// on a trigger key of its own so that one press wakes exactly one of them:
//   - the floor, on W;
//   - the application itself (the installed program, its window up, the loopback site serving
//     its start-up check), slot 1 bound to Q in its store, tapping on a keycode of its own;
//   - xbindkeys running `xdotool key KP_7`, on E, as a point of comparison.
// They take turns in rounds, each round giving every tool the same presses: the same count, the
// same spacing, typed through XTest.
//
// The moments of each press, all CLOCK_MONOTONIC:
//   press   the bench sends the trigger's press;
//   trigger the bench's own RECORD client (PressRecorder) reads that press: the moment a
//           remapper that records can first see it;
//   keypad  the same RECORD client reads the keypad 7 press the tool tapped: the server has
//           taken the tap and sends it on to the focused window;
//   arrival the focused client (the key log) receives that keypad press.
// The added time is keypad minus trigger, press by press, both read by one thread in the
// server's order: what the tool itself costs, from seeing the key to its tap.
//
//   bench_remapper_latency [rounds] [presses per round] [spacing ms]
//                          [long-run presses] [long-run spacing ms]
#include "PressRecorder.h"

#include "support/KeyLogLine.h"
#include "support/KeymapProbe.h"
#include "support/LineProcess.h"
#include "support/XTestDriver.h"
#include "support/XvfbSession.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <functional>
#include <set>
#include <string>
#include <vector>

// Last: Xlib's macros break the Qt headers.
#include <X11/Xlib.h>

namespace {

using namespace std::chrono_literals;
using tarnic::bench::PressRecorder;
using tarnic::testing::KeyLogLine;
using tarnic::testing::KeymapProbe;
using tarnic::testing::LineProcess;
using tarnic::testing::XTestDriver;
using tarnic::testing::XvfbSession;

constexpr unsigned kRemapperTrigger = 24; // Q, slot 1 of the application (macOS code 12)
constexpr unsigned kFloorTrigger = 25;    // W
constexpr unsigned kPeerTrigger = 26;     // E
constexpr unsigned kNumLock = 77;

using KeyFilter = std::function<bool(unsigned keycode)>;

// A tool's keypad tap: any key but the triggers and Num Lock, which xdotool toggles around its
// keypad key. xdotool may also type KP_7 on a keycode it maps for the moment, so a tap cannot be
// known by its keycode.
bool isTap(unsigned keycode) {
    return keycode != kRemapperTrigger && keycode != kFloorTrigger && keycode != kPeerTrigger &&
           keycode != kNumLock;
}

long long now() {
    timespec t{};
    clock_gettime(CLOCK_MONOTONIC, &t);
    return static_cast<long long>(t.tv_sec) * 1000000000LL + t.tv_nsec;
}

void sleepUntil(long long ns) {
    timespec t{};
    t.tv_sec = static_cast<time_t>(ns / 1000000000LL);
    t.tv_nsec = static_cast<long>(ns % 1000000000LL);
    clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &t, nullptr);
}

struct Percentiles {
    double p50 = 0;
    double p99 = 0;
};

// In microseconds.
Percentiles percentiles(std::vector<long long> values) {
    Percentiles result;
    if (values.empty()) {
        return result;
    }
    std::sort(values.begin(), values.end());
    const auto at = [&](double q) {
        const auto index = static_cast<std::size_t>(q * static_cast<double>(values.size() - 1));
        return static_cast<double>(values[index]) / 1000.0;
    };
    result.p50 = at(0.50);
    result.p99 = at(0.99);
    return result;
}

// Types `count` taps of `trigger`, `spacingMs` apart; returns the send times. Reads the key log
// between taps, so that it never waits for a full pipe.
std::vector<long long> type(XTestDriver& driver, LineProcess& log, unsigned trigger, int count,
                            int spacingMs) {
    std::vector<long long> sent;
    sent.reserve(static_cast<std::size_t>(count));
    const long long start = now() + 20000000LL;
    for (int i = 0; i < count; ++i) {
        sleepUntil(start + static_cast<long long>(i) * spacingMs * 1000000LL);
        sent.push_back(now());
        driver.tap(trigger);
        log.lines();
    }
    return sent;
}

// The receipt times of the key presses `keypads` accepts, in the key log from line `from`.
std::vector<long long> keypadPresses(LineProcess& log, int from, const KeyFilter& keypads) {
    std::vector<long long> result;
    const QStringList& lines = log.lines();
    for (qsizetype i = from; i < lines.size(); ++i) {
        const auto key = KeyLogLine::parse(lines[i]);
        if (key && key->press && keypads(key->keycode)) {
            result.push_back(key->receivedNs);
        }
    }
    return result;
}

// Waits until the key log holds `count` releases of keys `keypads` accepts, from line `from`.
bool waitForKeypadReleases(LineProcess& log, const KeyFilter& keypads, int from, int count,
                           std::chrono::milliseconds timeout) {
    int seen = 0;
    int index = from;
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (seen < count) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        const int next = log.waitFor(
            [&keypads](const QString& line) {
                const auto key = KeyLogLine::parse(line);
                return key && !key->press && keypads(key->keycode);
            },
            index, std::max(left, 0ms));
        if (next < 0) {
            return false;
        }
        ++seen;
        index = next + 1;
    }
    return true;
}

struct Tool {
    Tool(const char* toolName, unsigned triggerKeycode) : name(toolName), trigger(triggerKeycode) {}

    const char* name;
    unsigned trigger;
    int presses = 0;
    int answered = 0; // presses whose trigger and keypad tap were both recorded
    std::vector<long long> pressToTrigger;
    std::vector<long long> pressToKeypad;
    std::vector<long long> pressToArrival;
    std::vector<long long> added;
    std::vector<double> roundAddedP50; // in microseconds
};

// Pairs each press with the first trigger recorded after it, and that with the first keypad tap
// recorded after it; the taps the focused client received go with the presses in order, in a
// round where every press brought exactly one.
void account(Tool& tool, const std::vector<long long>& sent, const std::vector<long long>& triggers,
             const std::vector<long long>& keypads, const std::vector<long long>& arrivals) {
    std::size_t t = 0;
    std::size_t k = 0;
    std::vector<long long> roundAdded;
    for (const long long press : sent) {
        ++tool.presses;
        while (t < triggers.size() && triggers[t] < press) {
            ++t;
        }
        if (t == triggers.size()) {
            continue;
        }
        const long long trigger = triggers[t++];
        while (k < keypads.size() && keypads[k] < trigger) {
            ++k;
        }
        if (k == keypads.size()) {
            continue;
        }
        const long long keypad = keypads[k++];
        ++tool.answered;
        tool.pressToTrigger.push_back(trigger - press);
        tool.pressToKeypad.push_back(keypad - press);
        tool.added.push_back(keypad - trigger);
        roundAdded.push_back(keypad - trigger);
    }
    if (arrivals.size() == sent.size()) {
        for (std::size_t i = 0; i < sent.size(); ++i) {
            tool.pressToArrival.push_back(arrivals[i] - sent[i]);
        }
    }
    tool.roundAddedP50.push_back(percentiles(roundAdded).p50);
}

// Taps the trigger until a keypad 7 tap comes back (bounded), then lets the tries settle.
bool warmUp(XTestDriver& driver, LineProcess& log, const KeyFilter& keypads, unsigned trigger) {
    const int from = log.lines().size();
    bool answered = false;
    for (int attempt = 0; attempt < 50 && !answered; ++attempt) {
        driver.tap(trigger);
        answered = waitForKeypadReleases(log, keypads, from, 1, 200ms);
    }
    if (answered) {
        const int next = log.lines().size();
        type(driver, log, trigger, 20, 5);
        waitForKeypadReleases(log, keypads, next, 20, 10s);
    }
    return answered;
}

int argument(int argc, char** argv, int index, int fallback) {
    return argc > index ? std::atoi(argv[index]) : fallback;
}

struct LongRun {
    int triggers = 0;
    int downs = 0;
    int ups = 0;
    bool everyTapWhole = true; // every keypad press followed by its release before the next
};

LongRun collectLongRun(LineProcess& log, int from, unsigned keypad) {
    LongRun run;
    bool down = false;
    const QStringList& lines = log.lines();
    for (qsizetype i = from; i < lines.size(); ++i) {
        const auto key = KeyLogLine::parse(lines[i]);
        if (!key) {
            continue;
        }
        if (key->is(true, kRemapperTrigger)) {
            ++run.triggers;
        } else if (key->is(true, keypad)) {
            run.everyTapWhole = run.everyTapWhole && !down;
            down = true;
            ++run.downs;
        } else if (key->is(false, keypad)) {
            run.everyTapWhole = run.everyTapWhole && down;
            down = false;
            ++run.ups;
        }
    }
    run.everyTapWhole = run.everyTapWhole && !down;
    return run;
}

void printTable(const std::vector<Tool>& tools) {
    std::printf("| %-34s | %7s | %7s | %9s | %9s | %9s | %9s | %9s | %9s | %9s | %9s |\n", "tool",
                "presses", "taps", "p2t p50", "p2t p99", "p2k p50", "p2k p99", "added p50",
                "added p99", "p2a p50", "p2a p99");
    std::printf("|%s|%s|%s|", std::string(36, '-').c_str(), std::string(9, '-').c_str(),
                std::string(9, '-').c_str());
    for (int column = 0; column < 8; ++column) {
        std::printf("%s|", std::string(11, '-').c_str());
    }
    std::printf("\n");
    for (const Tool& tool : tools) {
        const Percentiles p2t = percentiles(tool.pressToTrigger);
        const Percentiles p2k = percentiles(tool.pressToKeypad);
        const Percentiles added = percentiles(tool.added);
        const Percentiles p2a = percentiles(tool.pressToArrival);
        std::printf("| %-34s | %7d | %7d | %9.1f | %9.1f | %9.1f | %9.1f | %9.1f | %9.1f | %9.1f "
                    "| %9.1f |\n",
                    tool.name, tool.presses, tool.answered, p2t.p50, p2t.p99, p2k.p50, p2k.p99,
                    added.p50, added.p99, p2a.p50, p2a.p99);
    }
}

} // namespace

int main(int argc, char** argv) {
    // The press recorder reads its connection on a thread of its own.
    XInitThreads();
    QCoreApplication application(argc, argv);
    const int rounds = argument(argc, argv, 1, 10);
    const int presses = argument(argc, argv, 2, 50);
    const int spacingMs = argument(argc, argv, 3, 50);
    const int longPresses = argument(argc, argv, 4, 10000);
    const int longSpacingMs = argument(argc, argv, 5, 1);

    XvfbSession server(false);
    if (!server.ok()) {
        std::fprintf(stderr, "%s\n", qPrintable(server.error()));
        return 1;
    }
    XTestDriver driver(server.display());
    LineProcess log;
    log.start(TARNIC_KEYLOG_PATH, {}, server.environment());
    const int logReady = log.waitForPrefix("ready ", 0, 10s);
    if (logReady < 0) {
        std::fprintf(stderr, "the key-log client did not start\n");
        return 1;
    }
    const unsigned long logWindow = log.lines()[logReady].section(' ', 1).toULong();
    PressRecorder recorder(server.display());
    if (!recorder.ok()) {
        std::fprintf(stderr, "the bench's own recording did not start\n");
        return 1;
    }

    // The application, as a player runs it: its own store with slot 1 on Q, its start-up check
    // answered by the loopback site.
    LineProcess site;
    site.start("python3",
               {TARNIC_SITE_SERVER, QString::number(TARNIC_SITE_PORT), TARNIC_SITE_DIR, "20"},
               server.environment(), LineProcess::Errors::Keep);
    bool serving = false;
    for (int wait = 0; wait < 300 && !serving; ++wait) {
        serving = site.errorOutput().contains("serving");
        if (!serving) {
            site.waitForExit(100ms);
        }
    }
    if (!serving) {
        std::fprintf(stderr, "the loopback site did not come up on port %d\n", TARNIC_SITE_PORT);
        return 1;
    }
    QTemporaryDir home;
    QDir(home.path()).mkpath("config/Tarnic");
    QDir(home.path()).mkpath("runtime");
    QFile::setPermissions(home.filePath("runtime"),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    {
        QFile store(home.filePath("config/Tarnic/Tarnic Pro.plist"));
        store.open(QIODevice::WriteOnly);
        store.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n"
                    "<dict><key>inventoryModel1</key><array><integer>1</integer><integer>0"
                    "</integer><integer>12</integer></array></dict>\n</plist>\n");
    }
    QProcessEnvironment appEnvironment = server.environment();
    appEnvironment.insert("HOME", home.path());
    appEnvironment.insert("XDG_CONFIG_HOME", home.filePath("config"));
    appEnvironment.insert("XDG_RUNTIME_DIR", home.filePath("runtime"));
    LineProcess app;
    app.start(TARNIC_APP_PATH, {}, appEnvironment);
    // Its window takes the focus as it appears; the key log gets it back once the window is up.
    QProcess windowWait;
    windowWait.setProcessEnvironment(server.environment());
    windowWait.start("xdotool", {"search", "--sync", "--onlyvisible", "--name", "^Tarnic Pro$"});
    if (!windowWait.waitForFinished(60000) || windowWait.exitCode() != 0) {
        windowWait.kill();
        std::fprintf(stderr, "the application's window did not appear\n");
        return 1;
    }
    KeymapProbe probe(server.display());
    const std::vector<unsigned> claimed = probe.recordedKeycodes();
    if (claimed.empty() || claimed[0] == 0) {
        std::fprintf(stderr, "the application claimed no keycode for keypad 7\n");
        return 1;
    }
    const unsigned remapperKeypad = claimed[0];

    LineProcess floor;
    floor.start(TARNIC_FLOOR_PATH, {QString::number(kFloorTrigger)}, server.environment());
    if (floor.waitForPrefix("ready ", 0, 10s) < 0) {
        std::fprintf(stderr, "the floor did not start\n");
        return 1;
    }

    QTemporaryDir configDir;
    const QString config = configDir.filePath("xbindkeysrc");
    {
        QFile file(config);
        file.open(QIODevice::WriteOnly);
        file.write("\"xdotool key KP_7\"\n  e\n");
    }
    LineProcess peer;
    peer.start("xbindkeys", {"-n", "-f", config}, server.environment());

    const KeyFilter keypads = isTap;
    driver.focus(logWindow, 5s);
    std::vector<Tool> tools{{"floor (RECORD + XTest, plain Xlib)", kFloorTrigger},
                            {"application (tarnic-pro)", kRemapperTrigger},
                            {"xbindkeys + xdotool key KP_7", kPeerTrigger}};
    for (const Tool& tool : tools) {
        if (!warmUp(driver, log, keypads, tool.trigger)) {
            std::fprintf(stderr, "%s never answered\n", tool.name);
            return 1;
        }
    }

    bool allArrived = true;
    for (int round = 0; round < rounds; ++round) {
        for (Tool& tool : tools) {
            const int from = log.lines().size();
            const long long start = now();
            const std::vector<long long> sent = type(driver, log, tool.trigger, presses, spacingMs);
            allArrived = waitForKeypadReleases(log, keypads, from, presses, 15s) && allArrived;
            const unsigned trigger = tool.trigger;
            account(tool, sent,
                    recorder.pressesOf([trigger](unsigned keycode) { return keycode == trigger; },
                                       start),
                    recorder.pressesOf(keypads, start), keypadPresses(log, from, keypads));
        }
    }
    peer.stop();
    kill(static_cast<pid_t>(floor.processId()), SIGTERM);
    floor.waitForExit(10s);

    // A long, fast run of the application alone: no tap lost or left half done.
    int from = log.lines().size();
    type(driver, log, kRemapperTrigger, longPresses, longSpacingMs);
    const bool longArrived = waitForKeypadReleases(
        log, [&](unsigned keycode) { return keycode == remapperKeypad; }, from, longPresses, 300s);
    const LongRun longRun = collectLongRun(log, from, remapperKeypad);
    kill(static_cast<pid_t>(app.processId()), SIGTERM);
    if (!app.waitForExit(20s)) {
        app.stop();
    }
    site.stop();

    std::printf("\nRemapper latency against the floor under Xvfb, times in microseconds\n"
                "%d rounds; in each, every tool in turn gets %d presses of its trigger, %d ms "
                "apart%s\n"
                "p2t: press sent to trigger (the bench's RECORD client%s reads the press); p2k: "
                "press sent to keypad (that client reads the tool's keypad 7 press); added: "
                "keypad minus trigger, press by press; p2a: press sent to keypad 7 received by "
                "the focused client\n\n",
                rounds, presses, spacingMs, allArrived ? "" : " (SOME TAPS MISSING)",
                recorder.realtime() ? ", real-time" : "");
    printTable(tools);

    const Percentiles floorAdded = percentiles(tools[0].added);
    std::printf("\n| %-34s | %9s | %9s | %-24s |\n", "added time / floor's added time", "p50",
                "p99", "p50 per round, min-max");
    std::printf("|%s|%s|%s|%s|\n", std::string(36, '-').c_str(), std::string(11, '-').c_str(),
                std::string(11, '-').c_str(), std::string(26, '-').c_str());
    for (std::size_t i = 1; i < tools.size(); ++i) {
        const Percentiles added = percentiles(tools[i].added);
        std::vector<double> perRound;
        for (std::size_t r = 0; r < tools[i].roundAddedP50.size(); ++r) {
            perRound.push_back(tools[i].roundAddedP50[r] / tools[0].roundAddedP50[r]);
        }
        const auto [low, high] = std::minmax_element(perRound.begin(), perRound.end());
        std::printf("| %-34s | %9.3f | %9.3f | %11.3f - %-10.3f |\n", tools[i].name,
                    added.p50 / floorAdded.p50, added.p99 / floorAdded.p99,
                    perRound.empty() ? 0.0 : *low, perRound.empty() ? 0.0 : *high);
    }

    const Percentiles remapperAdded = percentiles(tools[1].added);
    const bool floorOk =
        remapperAdded.p50 <= 1.1 * floorAdded.p50 && remapperAdded.p99 <= 1.1 * floorAdded.p99;
    const bool longComplete = longArrived && longRun.everyTapWhole &&
                              longRun.downs == longPresses && longRun.ups == longPresses &&
                              longRun.triggers == longPresses;
    std::printf("\nlong run (application alone): %d presses %d ms apart: %d triggers, %d keypad "
                "downs, %d keypad ups, every tap one down then one up: %s, none lost: %s\n",
                longPresses, longSpacingMs, longRun.triggers, longRun.downs, longRun.ups,
                longRun.everyTapWhole ? "yes" : "NO", longComplete ? "yes" : "NO");
    std::printf("\ntargets: application's added time at most 1.1x the floor's at p50 and p99: %s; "
                "long run complete: %s\n",
                floorOk ? "met" : "NOT MET", longComplete ? "met" : "NOT MET");
    return 0;
}
