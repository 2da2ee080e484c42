// What the keypad taps cost the other X clients in a Wayland session, where the player's keys come
// from the compositor's keyboard and the taps from XTest: run inside sway's XWayland (run.sh sets
// the session up), with the keyboard of the outer Xvfb as the player's keyboard.
//
// 1. How many MappingNotify events a plain X client (it selects nothing for them: they go to
//    every client) receives over N taps of a bound key, and over N presses of an unbound key.
// 2. How long one MappingNotify keeps a Windows program under Wine from its messages: the delay
//    from an XTest key press to its WM_KEYDOWN in the program, when the key before it came from
//    the same device (no MappingNotify) and when it came from the compositor's keyboard (the
//    server switches devices and sends a MappingNotify first, as it does before every tap).
//
//   bench_mapping_notify [presses (20)] [samples (60)]
// Environment: DISPLAY (XWayland), TARNIC_OUTER_DISPLAY (the Xvfb sway runs on), SWAYSOCK.
#include "support/LineProcess.h"
#include "support/XTestDriver.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <X11/Xlib.h>
#include <X11/extensions/XInput.h>
#include <X11/extensions/XTest.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <functional>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;
using tarnic::test::LineProcess;
using tarnic::test::XTestDriver;

constexpr unsigned kZ = 52; // bound to slot 1
constexpr unsigned kX = 53; // bound to nothing
constexpr unsigned kA = 38;
constexpr unsigned kB = 56;
constexpr unsigned kC = 54;

long long now() {
    timespec t{};
    clock_gettime(CLOCK_MONOTONIC, &t);
    return static_cast<long long>(t.tv_sec) * 1000000000LL + t.tv_nsec;
}

int count(LineProcess& process, int from, const QString& prefix, const QString& suffix = {}) {
    int found = 0;
    const QStringList& lines = process.lines();
    for (int i = from; i < lines.size(); ++i) {
        found += lines[i].startsWith(prefix) && lines[i].endsWith(suffix);
    }
    return found;
}

bool focus(const QString& criteria) {
    QProcess swaymsg;
    swaymsg.setStandardOutputFile(QProcess::nullDevice());
    swaymsg.start("timeout", {"10", "swaymsg", "[" + criteria + "] focus"});
    return swaymsg.waitForFinished(15000) && swaymsg.exitCode() == 0;
}

// The client's lines since `from` once `expected` lines match, or after `timeout`.
bool waitForCount(LineProcess& process, int from, const QString& prefix, const QString& suffix,
                  int expected, std::chrono::milliseconds timeout) {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (count(process, from, prefix, suffix) < expected &&
           std::chrono::steady_clock::now() < deadline) {
        process.waitFor([](const QString&) { return false; }, process.lines().size(), 20ms);
    }
    return count(process, from, prefix, suffix) >= expected;
}

// Keys posted on the compositor's keyboard device itself (XWayland's slave keyboard) with
// XTestFakeDeviceKeyEvent, instead of on the XTEST device: the way to tap without a device switch.
class CompositorKeyboard {
public:
    explicit CompositorKeyboard(const QString& name) {
        display_ = XOpenDisplay(name.toLocal8Bit().constData());
        if (display_ == nullptr) {
            return;
        }
        int count = 0;
        XDeviceInfo* devices = XListInputDevices(display_, &count);
        for (int i = 0; i < count && device_ == nullptr; ++i) {
            if (devices[i].use == IsXExtensionKeyboard &&
                std::strstr(devices[i].name, "XTEST") == nullptr) {
                device_ = XOpenDevice(display_, devices[i].id);
            }
        }
        if (devices != nullptr) {
            XFreeDeviceList(devices);
        }
    }
    ~CompositorKeyboard() {
        if (device_ != nullptr) {
            XCloseDevice(display_, device_);
        }
        if (display_ != nullptr) {
            XCloseDisplay(display_);
        }
    }
    CompositorKeyboard(const CompositorKeyboard&) = delete;
    CompositorKeyboard& operator=(const CompositorKeyboard&) = delete;

    bool ok() const { return device_ != nullptr; }
    void key(unsigned keycode, bool press) {
        XTestFakeDeviceKeyEvent(display_, device_, keycode, press ? True : False, nullptr, 0,
                                CurrentTime);
        XFlush(display_);
    }

private:
    Display* display_ = nullptr;
    XDevice* device_ = nullptr;
};

struct MappingCount {
    int keys = 0;
    int keypads = 0;
    int mappings = 0;
};

MappingCount typeAndCount(XTestDriver& keyboard, LineProcess& log, unsigned keycode, int presses,
                          bool expectTaps) {
    const int from = log.lines().size();
    for (int i = 0; i < presses; ++i) {
        keyboard.tap(keycode);
        std::this_thread::sleep_for(100ms);
    }
    waitForCount(log, from, QString("press %1 ").arg(keycode), {}, presses, 20s);
    if (expectTaps) {
        waitForCount(log, from, "release ", " KP_7", presses, 20s);
    }
    // Whatever is still on its way.
    log.waitFor([](const QString&) { return false; }, log.lines().size(), 500ms);
    return {count(log, from, QString("press %1 ").arg(keycode)),
            count(log, from, "press ", " KP_7"), count(log, from, "mapping ")};
}

double percentile(std::vector<long long> values, double q) {
    if (values.empty()) {
        return 0;
    }
    std::sort(values.begin(), values.end());
    return static_cast<double>(
               values[static_cast<std::size_t>(q * static_cast<double>(values.size() - 1))]) /
           1000.0;
}

// Press-to-WM_KEYDOWN of C typed by `typeC`, `samples` times; before each, the key `before`
// typed on `beforeKeyboard` (and arrived), then a pause.
std::vector<long long> keyDelays(LineProcess& program, const std::function<void(bool)>& typeC,
                                 XTestDriver& beforeKeyboard, unsigned before, int samples) {
    std::vector<long long> delays;
    for (int i = 0; i < samples; ++i) {
        int from = program.lines().size();
        beforeKeyboard.tap(before);
        if (program.waitForPrefix("up ", from, 5s) < 0) {
            continue;
        }
        std::this_thread::sleep_for(150ms);
        from = program.lines().size();
        const long long sent = now();
        typeC(true);
        const int down = program.waitForPrefix("down 67 ", from, 5s);
        const long long received = now();
        typeC(false);
        if (down >= 0) {
            delays.push_back(received - sent);
        }
        program.waitForPrefix("up 67 ", from, 5s);
    }
    return delays;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const int presses = argc > 1 ? std::atoi(argv[1]) : 20;
    const int samples = argc > 2 ? std::atoi(argv[2]) : 60;
    const QString innerDisplay = qEnvironmentVariable("DISPLAY");
    const QString outerDisplay = qEnvironmentVariable("TARNIC_OUTER_DISPLAY");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.remove("WAYLAND_DISPLAY");

    XTestDriver outer(outerDisplay);
    XTestDriver inner(innerDisplay);
    if (!outer.ok() || !inner.ok()) {
        std::fprintf(stderr, "cannot open %s or %s\n", qPrintable(outerDisplay),
                     qPrintable(innerDisplay));
        return 1;
    }

    // The remapper's stand-in, slot 1 on Z; then the logging client, which takes the focus.
    LineProcess harness;
    harness.start(TARNIC_HARNESS_PATH, {"--quiet", "--bind", "1,0,6"}, environment);
    if (harness.waitForLine("trusted true", 0, 20s) < 0 ||
        harness.waitForPrefix("ready ", 0, 20s) < 0) {
        std::fprintf(stderr, "the stand-in application did not start: %s\n",
                     qPrintable(harness.transcript()));
        return 1;
    }
    LineProcess log;
    log.start(TARNIC_KEYSYM_LOG_PATH, {"--title", "keysym log"}, environment);
    if (log.waitForPrefix("ready ", 0, 20s) < 0 || !focus("title=\"^keysym log$\"") ||
        log.waitForLine("focus in", 0, 10s) < 0) {
        std::fprintf(stderr, "the logging client did not start or get the focus\n");
        return 1;
    }
    typeAndCount(outer, log, kZ, 3, true); // warm-up
    const MappingCount bound = typeAndCount(outer, log, kZ, presses, true);
    // The first unbound key switches back from the taps' device; counted from the second on.
    typeAndCount(outer, log, kX, 1, false);
    const MappingCount unbound = typeAndCount(outer, log, kX, presses, false);
    // C on the compositor keyboard's own device after each X from the compositor's keyboard.
    CompositorKeyboard compositor(innerDisplay);
    MappingCount sameDevice;
    if (compositor.ok()) {
        const int from = log.lines().size();
        for (int i = 0; i < presses; ++i) {
            outer.tap(kX);
            std::this_thread::sleep_for(100ms);
            compositor.key(kC, true);
            compositor.key(kC, false);
            std::this_thread::sleep_for(100ms);
        }
        waitForCount(log, from, QString("press %1 ").arg(kC), {}, presses, 20s);
        log.waitFor([](const QString&) { return false; }, log.lines().size(), 500ms);
        sameDevice = {count(log, from, QString("press %1 ").arg(kC)), 0,
                      count(log, from, "mapping ")};
    } else {
        std::fprintf(stderr, "no slave keyboard of the compositor on %s\n",
                     qPrintable(innerDisplay));
    }
    kill(static_cast<pid_t>(harness.processId()), SIGTERM);
    harness.waitForExit(20s);

    std::printf("\nMappingNotify events received by a plain X client in XWayland (sway 1.7), keys "
                "typed on the compositor's keyboard\n\n");
    std::printf("| %-34s | %8s | %12s | %16s | %18s |\n", "keys", "presses", "keypad taps",
                "MappingNotify", "MappingNotify/key");
    std::printf("|------------------------------------|----------|--------------|"
                "------------------|--------------------|\n");
    std::printf("| %-34s | %8d | %12d | %16d | %18.2f |\n", "bound key (Z, slot 1)", bound.keys,
                bound.keypads, bound.mappings,
                bound.keys > 0 ? static_cast<double>(bound.mappings) / bound.keys : 0.0);
    std::printf("| %-34s | %8d | %12d | %16d | %18.2f |\n", "unbound key (X)", unbound.keys,
                unbound.keypads, unbound.mappings,
                unbound.keys > 0 ? static_cast<double>(unbound.mappings) / unbound.keys : 0.0);
    std::printf("| %-34s | %8d | %12s | %16d | %18.2f |\n", "X, then C posted on its device (*)",
                sameDevice.keys, "-", sameDevice.mappings,
                sameDevice.keys > 0 ? static_cast<double>(sameDevice.mappings) / sameDevice.keys
                                    : 0.0);
    std::printf("(*) XTestFakeDeviceKeyEvent on XWayland's slave keyboard, not core XTest\n");
    std::fflush(stdout);

    // The Windows program, in a fresh prefix.
    QTemporaryDir prefix;
    environment.insert("WINEPREFIX", prefix.path());
    environment.insert("WINEDEBUG", "-all");
    environment.insert("WINEDLLOVERRIDES", "mscoree=;mshtml=");
    bool booted = false;
    for (int attempt = 0; attempt < 2 && !booted; ++attempt) {
        QProcess boot;
        boot.setProcessEnvironment(environment);
        boot.setProcessChannelMode(QProcess::MergedChannels);
        boot.start(TARNIC_WINE_PATH, {"wineboot", "-i"});
        booted = boot.waitForFinished(300000) && boot.exitCode() == 0;
        if (!booted) {
            std::fprintf(stderr, "wineboot failed: %s\n", boot.readAll().constData());
            boot.kill();
            boot.waitForFinished(10000);
        }
    }
    if (!booted) {
        return 1;
    }
    LineProcess program;
    program.start(TARNIC_WINE_PATH, {TARNIC_VKEYLOG_PATH}, environment);
    if (program.waitForLine("ready", 0, 120s) < 0) {
        std::fprintf(stderr, "the Windows program did not start\n");
        return 1;
    }
    bool focused = false;
    for (int attempt = 0; attempt < 50 && !focused; ++attempt) {
        focus("class=\"^vkeylog.exe$\"");
        const int from = program.lines().size();
        inner.tap(kB);
        focused = program.waitForPrefix("down 66 ", from, 200ms) >= 0;
    }
    if (!focused) {
        std::fprintf(stderr, "the Windows program never got the focus\n");
        return 1;
    }
    const auto xtestC = [&](bool press) { press ? inner.press(kC) : inner.release(kC); };
    const auto deviceC = [&](bool press) { compositor.key(kC, press); };
    keyDelays(program, xtestC, inner, kB, 5); // warm-up
    // The three cases take turns, so that a change in the machine's load falls on all of them.
    struct Case {
        std::function<void(bool)> typeC;
        XTestDriver* beforeKeyboard;
        unsigned before;
        std::vector<long long> delays;
        int mappings = 0;
    };
    std::vector<Case> cases = {{xtestC, &inner, kB, {}, 0}, {xtestC, &outer, kA, {}, 0}};
    if (compositor.ok()) {
        cases.push_back({deviceC, &outer, kA, {}, 0});
    }
    for (int i = 0; i < samples; ++i) {
        for (Case& one : cases) {
            const int from = log.lines().size();
            const std::vector<long long> delay =
                keyDelays(program, one.typeC, *one.beforeKeyboard, one.before, 1);
            one.delays.insert(one.delays.end(), delay.begin(), delay.end());
            log.waitFor([](const QString&) { return false; }, log.lines().size(), 30ms);
            one.mappings += count(log, from, "mapping ");
        }
    }
    const std::vector<long long>& same = cases[0].delays;
    const std::vector<long long>& switched = cases[1].delays;
    const std::vector<long long> onDevice =
        compositor.ok() ? cases[2].delays : std::vector<long long>{};

    std::printf("\nA key C, from press to WM_KEYDOWN in a Windows program "
                "under Wine (microseconds); C typed with core XTest unless marked (*)\n\n");
    std::printf("| %-48s | %7s | %14s | %9s | %9s | %9s |\n", "key before it", "samples",
                "MappingNotify", "min", "p50", "p90");
    std::printf("|--------------------------------------------------|---------|----------------|"
                "-----------|-----------|-----------|\n");
    const auto row = [](const char* name, const std::vector<long long>& delays, int mappings) {
        std::printf("| %-48s | %7zu | %14d | %9.1f | %9.1f | %9.1f |\n", name, delays.size(),
                    mappings, percentile(delays, 0.0), percentile(delays, 0.5),
                    percentile(delays, 0.9));
    };
    row("B by XTest: no device switch before C", same, cases[0].mappings);
    row("A on compositor keyboard: switch before C", switched, cases[1].mappings);
    row("A on compositor keyboard, C on its device (*)", onDevice,
        compositor.ok() ? cases[2].mappings : 0);
    std::printf("MappingNotify counts every device switch in the samples; only the second row has "
                "one between the key before and C\n");
    const double added = percentile(switched, 0.5) - percentile(same, 0.5);
    const double addedAtLeast = percentile(switched, 0.0) - percentile(same, 0.0);
    std::printf("\nadded by one MappingNotify: %.1f us at p50, %.1f us at the minimum%s\n", added,
                addedAtLeast, added >= 1000.0 ? "  (1 ms or more)" : "");
    program.stop();
    QProcess server;
    server.setProcessEnvironment(environment);
    server.start("wineserver", {"-k"});
    server.waitForFinished(20000);
    return 0;
}
