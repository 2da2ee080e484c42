// How fast the remapper's keypad tap follows its trigger, measured where it matters: in the X
// client that has the focus. On a private Xvfb, XTest types a bound key at a fixed spacing; the
// key-log client stamps every key it receives with CLOCK_MONOTONIC. The remapper taps keypad 7 on
// a keycode of its own (named in its record on the root window); no Num Lock request goes with
// it. The same is measured for xbindkeys running `xdotool key KP_7` (the keyboard's keypad 7,
// with xdotool's own Num Lock handling) as a point of comparison, and a long run checks that no
// tap is lost or left half done.
//
//   bench_remapper_latency [presses] [spacing ms] [long-run presses] [long-run spacing ms]
//                          [peer presses] [peer spacing ms]
#include "support/KeyLogLine.h"
#include "support/KeymapProbe.h"
#include "support/LineProcess.h"
#include "support/XTestDriver.h"
#include "support/XvfbSession.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {

using namespace std::chrono_literals;
using tarnic::testing::KeyLogLine;
using tarnic::testing::KeymapProbe;
using tarnic::testing::LineProcess;
using tarnic::testing::XTestDriver;
using tarnic::testing::XvfbSession;

constexpr unsigned kTrigger = 24;         // Q
constexpr unsigned kKeyboardKeypad7 = 79; // the keyboard's keypad 7, which the peer types

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
    double max = 0;
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
    result.max = static_cast<double>(values.back()) / 1000.0;
    return result;
}

void row(const char* name, const Percentiles& p) {
    std::printf("| %-44s | %10.1f | %10.1f | %10.1f |\n", name, p.p50, p.p99, p.max);
}

void ratioRow(const char* name, const Percentiles& a, const Percentiles& b) {
    std::printf("| %-44s | %10.3f | %10.3f | %10.3f |\n", name, a.p50 / b.p50, a.p99 / b.p99,
                a.max / b.max);
}

// Types `count` taps of the trigger, `spacingMs` apart; returns the send times. Reads the
// client's log between taps, so that the client never waits for a full pipe.
std::vector<long long> type(XTestDriver& driver, LineProcess& client, int count, int spacingMs) {
    std::vector<long long> sent;
    sent.reserve(static_cast<std::size_t>(count));
    const long long start = now() + 20000000LL;
    for (int i = 0; i < count; ++i) {
        sleepUntil(start + static_cast<long long>(i) * spacingMs * 1000000LL);
        sent.push_back(now());
        driver.tap(kTrigger);
        client.lines();
    }
    return sent;
}

struct Received {
    std::vector<long long> triggers; // press times
    std::vector<long long> keypads;  // press times
    bool tapsComplete = true;        // every keypad press followed by its release
    int keypadReleases = 0;
};

// `keypad`: the keycode the keypad taps arrive on.
Received collect(LineProcess& client, int from, unsigned keypad) {
    Received received;
    bool keypadDown = false;
    const QStringList& lines = client.lines();
    for (qsizetype i = from; i < lines.size(); ++i) {
        const auto key = KeyLogLine::parse(lines[i]);
        if (!key) {
            continue;
        }
        if (key->is(true, kTrigger)) {
            received.triggers.push_back(key->receivedNs);
        } else if (key->is(true, keypad)) {
            received.tapsComplete = received.tapsComplete && !keypadDown;
            keypadDown = true;
            received.keypads.push_back(key->receivedNs);
        } else if (key->is(false, keypad)) {
            received.tapsComplete = received.tapsComplete && keypadDown;
            keypadDown = false;
            ++received.keypadReleases;
        }
    }
    received.tapsComplete = received.tapsComplete && !keypadDown;
    return received;
}

// Waits until the client has logged `count` keypad releases after line `from`.
bool waitForKeypadReleases(LineProcess& client, unsigned keypad, int from, int count,
                           std::chrono::milliseconds timeout) {
    int seen = 0;
    int index = from;
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (seen < count) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        const int next = client.waitFor(
            [keypad](const QString& line) {
                const auto key = KeyLogLine::parse(line);
                return key && key->is(false, keypad);
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

std::vector<long long> differences(const std::vector<long long>& later,
                                   const std::vector<long long>& earlier) {
    std::vector<long long> result;
    for (std::size_t i = 0; i < std::min(later.size(), earlier.size()); ++i) {
        result.push_back(later[i] - earlier[i]);
    }
    return result;
}

std::vector<long long> intervals(const std::vector<long long>& times) {
    std::vector<long long> result;
    for (std::size_t i = 1; i < times.size(); ++i) {
        result.push_back(times[i] - times[i - 1]);
    }
    return result;
}

int argument(int argc, char** argv, int index, int fallback) {
    return argc > index ? std::atoi(argv[index]) : fallback;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const int presses = argument(argc, argv, 1, 1000);
    const int spacingMs = argument(argc, argv, 2, 5);
    const int longPresses = argument(argc, argv, 3, 10000);
    const int longSpacingMs = argument(argc, argv, 4, 1);
    const int peerPresses = argument(argc, argv, 5, 200);
    const int peerSpacingMs = argument(argc, argv, 6, 50);

    XvfbSession server(false);
    if (!server.ok()) {
        std::fprintf(stderr, "%s\n", qPrintable(server.error()));
        return 1;
    }
    XTestDriver driver(server.display());
    LineProcess client;
    client.start(TARNIC_KEYLOG_PATH, {}, server.environment());
    const int clientReady = client.waitForPrefix("ready ", 0, 10s);
    if (clientReady < 0) {
        std::fprintf(stderr, "the key-log client did not start\n");
        return 1;
    }
    const unsigned long clientWindow = client.lines()[clientReady].section(' ', 1).toULong();

    // The remapper: the stand-in application, slot 1 bound to Q, printing nothing per key.
    LineProcess harness;
    harness.start(TARNIC_HARNESS_PATH, {"--quiet", "--bind", "1,0,12"}, server.environment());
    if (harness.waitForPrefix("ready ", 0, 10s) < 0) {
        std::fprintf(stderr, "the stand-in application did not start\n");
        return 1;
    }
    KeymapProbe probe(server.display());
    const std::vector<unsigned> claimed = probe.recordedKeycodes();
    if (claimed.empty() || claimed[0] == 0) {
        std::fprintf(stderr, "the stand-in claimed no keycode for keypad 7\n");
        return 1;
    }
    const unsigned ownKeypad = claimed[0];
    driver.focus(clientWindow, 5s);
    type(driver, client, 20, spacingMs); // warm-up
    waitForKeypadReleases(client, ownKeypad, 0, 20, 10s);

    int from = client.lines().size();
    const std::vector<long long> sent = type(driver, client, presses, spacingMs);
    const bool allArrived = waitForKeypadReleases(client, ownKeypad, from, presses, 60s);
    const Received ours = collect(client, from, ownKeypad);

    from = client.lines().size();
    type(driver, client, longPresses, longSpacingMs);
    const bool longArrived = waitForKeypadReleases(client, ownKeypad, from, longPresses, 300s);
    const Received longRun = collect(client, from, ownKeypad);
    // Ended in order, so that its keycodes are given back and the peer's KP_7 is the keyboard's.
    kill(static_cast<pid_t>(harness.processId()), SIGTERM);
    if (!harness.waitForExit(20s)) {
        harness.stop();
    }

    // The peer: xbindkeys grabs Q and runs xdotool for each press.
    QTemporaryDir configDir;
    const QString config = configDir.filePath("xbindkeysrc");
    {
        QFile file(config);
        file.open(QIODevice::WriteOnly);
        file.write("\"xdotool key KP_7\"\n  q\n");
    }
    LineProcess peer;
    peer.start("xbindkeys", {"-n", "-f", config}, server.environment());
    // Ready once a press comes out as a keypad key (bounded tries).
    from = client.lines().size();
    bool peerReady = false;
    for (int attempt = 0; attempt < 50 && !peerReady; ++attempt) {
        driver.tap(kTrigger);
        peerReady = waitForKeypadReleases(client, kKeyboardKeypad7, from, 1, 200ms);
    }
    std::vector<long long> peerSent;
    Received peerReceived;
    bool peerArrived = false;
    if (peerReady) {
        waitForKeypadReleases(client, kKeyboardKeypad7, from, 50,
                              10s); // let stragglers of the tries arrive
        from = client.lines().size();
        peerSent = type(driver, client, peerPresses, peerSpacingMs);
        peerArrived = waitForKeypadReleases(client, kKeyboardKeypad7, from, peerPresses, 120s);
        peerReceived = collect(client, from, kKeyboardKeypad7);
    }
    peer.stop();

    std::printf("\nRemapper latency under Xvfb, times in microseconds (CLOCK_MONOTONIC at receipt "
                "in the focused client)\n\n");
    std::printf("remapper: %d presses %d ms apart, %zu triggers and %zu keypad taps received%s\n",
                presses, spacingMs, ours.triggers.size(), ours.keypads.size(),
                allArrived ? "" : " (SOME MISSING)");
    std::printf("| %-44s | %10s | %10s | %10s |\n", "measure", "p50", "p99", "max");
    std::printf("|%s|%s|%s|%s|\n", std::string(46, '-').c_str(), std::string(12, '-').c_str(),
                std::string(12, '-').c_str(), std::string(12, '-').c_str());
    const Percentiles triggerToTrigger = percentiles(intervals(ours.triggers));
    const Percentiles triggerToKeypad = percentiles(differences(ours.keypads, ours.triggers));
    const Percentiles keypadToKeypad = percentiles(intervals(ours.keypads));
    const Percentiles sentToTrigger = percentiles(differences(ours.triggers, sent));
    const Percentiles sentToKeypad = percentiles(differences(ours.keypads, sent));
    row("trigger-to-trigger arrival", triggerToTrigger);
    row("trigger-to-keypad arrival", triggerToKeypad);
    ratioRow("ratio trigger-to-keypad / trigger-to-trigger", triggerToKeypad, triggerToTrigger);
    row("keypad-to-keypad arrival", keypadToKeypad);
    ratioRow("ratio keypad-to-keypad / trigger-to-trigger", keypadToKeypad, triggerToTrigger);
    row("press sent to trigger arrival", sentToTrigger);
    row("press sent to keypad arrival", sentToKeypad);

    std::printf("\npeer (xbindkeys + xdotool key KP_7): %d presses %d ms apart, %zu keypad taps "
                "received%s\n",
                peerPresses, peerSpacingMs, peerReceived.keypads.size(),
                !peerReady    ? " (PEER NEVER ANSWERED)"
                : peerArrived ? ""
                              : " (SOME MISSING)");
    const Percentiles peerSentToKeypad = percentiles(differences(peerReceived.keypads, peerSent));
    std::printf("| %-44s | %10s | %10s | %10s |\n", "measure", "p50", "p99", "max");
    std::printf("|%s|%s|%s|%s|\n", std::string(46, '-').c_str(), std::string(12, '-').c_str(),
                std::string(12, '-').c_str(), std::string(12, '-').c_str());
    row("peer: press sent to keypad arrival", peerSentToKeypad);
    row("remapper: press sent to keypad arrival", sentToKeypad);
    ratioRow("speed-up (peer / remapper)", peerSentToKeypad, sentToKeypad);

    const bool longComplete = longArrived && longRun.tapsComplete &&
                              static_cast<int>(longRun.keypads.size()) == longPresses &&
                              longRun.keypadReleases == longPresses &&
                              static_cast<int>(longRun.triggers.size()) == longPresses;
    std::printf("\nlong run: %d presses %d ms apart: %zu triggers, %zu keypad downs, %d keypad "
                "ups, every tap one down then one up: %s, none lost: %s\n",
                longPresses, longSpacingMs, longRun.triggers.size(), longRun.keypads.size(),
                longRun.keypadReleases, longRun.tapsComplete ? "yes" : "NO",
                longComplete ? "yes" : "NO");

    const bool paceOk = triggerToKeypad.p50 / triggerToTrigger.p50 <= 1.2 &&
                        triggerToKeypad.p99 / triggerToTrigger.p99 <= 1.5;
    const bool peerOk = peerSentToKeypad.p50 / sentToKeypad.p50 >= 8 &&
                        peerSentToKeypad.p99 / sentToKeypad.p99 >= 8;
    std::printf("\ntargets: ratio <= 1.2 at p50 and <= 1.5 at p99: %s; >= 8x faster than the "
                "peer at p50 and p99: %s; long run complete: %s\n",
                paceOk ? "met" : "NOT MET", peerOk ? "met" : "NOT MET",
                longComplete ? "met" : "NOT MET");
    return 0;
}
