// Start-up benchmark: the application against a bare Qt program that shows a table of the same
// size, each started afresh, run by run in turn, under a private Xvfb with no window manager. A
// third program, the application's window over its store without the rest of the application,
// shows how much of the difference the window and the store format alone make.
//
// For every start it measures, from just before the fork:
//   - the first mapping of one of the child's top-level windows, seen from outside: a watcher on
//     the root window (SubstructureNotifyMask) stamps the MapNotify on receipt; with no window
//     manager the server maps the window at the client's request and reports it at once;
//   - the end of the whole process (the window shown, the table painted, the program ended), on
//     receipt of the child's exit through a pidfd;
//   - the peak resident set (wait4's ru_maxrss) and the processor time it used.
//
// Then it starts each program a few more times under callgrind and counts the instructions the
// start executes, the figure that depends neither on the machine's speed nor on its load.
//
// Usage: bench_startup [runs] [app executable] [bare executable] [window executable]
// The machine's load average and the benchmark's nice value (its children inherit it) are
// printed with the figures: on a shared machine, `nice -n -10 bench_startup` steadies them.

#include "InstructionCount.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

extern char** environ;

namespace {

namespace fs = std::filesystem;

// A start that takes longer than this has hung; it is ended and counted as failed.
constexpr int kRunTimeoutMs = 20000;
constexpr double kTarget = 1.3;
// The instruction count's target, and the starts counted per program (callgrind runs a start
// some fifty times slower, so a few; the count varies little from one start to the next).
constexpr double kInstructionTarget = 1.2;
constexpr int kInstructionRuns = 3;
constexpr int kInstructionTimeoutMs = 300000;

long long monotonicNs() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec;
}

double msBetween(long long from, long long to) {
    return static_cast<double>(to - from) / 1e6;
}

std::string loadAverage() {
    std::ifstream file("/proc/loadavg");
    std::string one;
    std::string five;
    std::string fifteen;
    file >> one >> five >> fifteen;
    return one + " " + five + " " + fifteen;
}

// ---- The X server and the watcher ----

int ignoreXErrors(Display*, XErrorEvent*) {
    // The watcher asks about windows that may be gone by then; a missing window is no error.
    return 0;
}

struct Xvfb {
    pid_t pid = -1;
    std::string display;
};

// Starts Xvfb on a free display number, which it writes to -displayfd once it accepts clients.
Xvfb startXvfb() {
    int numberPipe[2];
    if (pipe2(numberPipe, O_CLOEXEC) != 0) {
        return {};
    }
    const pid_t pid = fork();
    if (pid == 0) {
        const int devNull = open("/dev/null", O_RDWR);
        dup2(devNull, STDIN_FILENO);
        dup2(devNull, STDOUT_FILENO);
        dup2(devNull, STDERR_FILENO);
        dup2(numberPipe[1], 3); // dup2 clears close-on-exec on the copy
        execlp("Xvfb", "Xvfb", "-displayfd", "3", "-noreset", "-nolisten", "tcp", "-screen", "0",
               "1280x1024x24", static_cast<char*>(nullptr));
        _exit(127);
    }
    close(numberPipe[1]);
    std::string number;
    char c = 0;
    pollfd descriptor{numberPipe[0], POLLIN, 0};
    while (poll(&descriptor, 1, 20000) > 0 && read(numberPipe[0], &c, 1) == 1 && c != '\n') {
        number += c;
    }
    close(numberPipe[0]);
    if (pid < 0 || number.empty()) {
        return {};
    }
    return {pid, ":" + number};
}

class MapWatcher {
public:
    explicit MapWatcher(const std::string& displayName)
        : display_(XOpenDisplay(displayName.c_str())) {
        if (display_ == nullptr) {
            return;
        }
        fcntl(ConnectionNumber(display_), F_SETFD, FD_CLOEXEC);
        XSetErrorHandler(ignoreXErrors);
        pidAtom_ = XInternAtom(display_, "_NET_WM_PID", False);
        XSelectInput(display_, DefaultRootWindow(display_), SubstructureNotifyMask);
        XSync(display_, False);
    }
    ~MapWatcher() {
        if (display_ != nullptr) {
            XCloseDisplay(display_);
        }
    }
    MapWatcher(const MapWatcher&) = delete;
    MapWatcher& operator=(const MapWatcher&) = delete;

    bool ok() const { return display_ != nullptr; }
    int fd() const { return ConnectionNumber(display_); }

    // Reads what has arrived, stamped `receivedNs`; returns the stamp when one of them is the
    // mapping of a top-level window of `pid` (Qt names its process on every window), else -1.
    long long takeFirstMapOf(pid_t pid, long long receivedNs) {
        long long mapped = -1;
        while (XPending(display_) > 0) {
            XEvent event{};
            XNextEvent(display_, &event);
            if (mapped < 0 && event.type == MapNotify && !event.xmap.override_redirect &&
                windowPid(event.xmap.window) == pid) {
                mapped = receivedNs;
            }
        }
        return mapped;
    }

    // Drops whatever the previous runs left.
    void drain() {
        XSync(display_, False);
        while (XPending(display_) > 0) {
            XEvent event{};
            XNextEvent(display_, &event);
        }
    }

private:
    long windowPid(Window window) {
        Atom type = 0;
        int format = 0;
        unsigned long count = 0;
        unsigned long remaining = 0;
        unsigned char* data = nullptr;
        long pid = -1;
        if (XGetWindowProperty(display_, window, pidAtom_, 0, 1, False, XA_CARDINAL, &type, &format,
                               &count, &remaining, &data) == Success &&
            format == 32 && count == 1 && data != nullptr) {
            pid = static_cast<long>(*reinterpret_cast<unsigned long*>(data));
        }
        if (data != nullptr) {
            XFree(data);
        }
        return pid;
    }

    Display* display_;
    Atom pidAtom_ = None;
};

// ---- One start ----

struct Sample {
    double mapMs = 0;
    double exitMs = 0;
    double cpuMs = 0;
    double peakMiB = 0;
    bool ok = false;
};

std::vector<std::string> childEnvironment(const std::string& display, const fs::path& configHome,
                                          const fs::path& runtimeDir) {
    static const char* const kReplaced[] = {
        "DISPLAY=",         "XDG_CONFIG_HOME=", "XDG_RUNTIME_DIR=",
        "QT_QPA_PLATFORM=", "WAYLAND_DISPLAY=", "XDG_SESSION_TYPE="};
    std::vector<std::string> environment;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string text(*entry);
        const bool replaced = std::any_of(std::begin(kReplaced), std::end(kReplaced),
                                          [&](const char* name) { return text.starts_with(name); });
        if (!replaced) {
            environment.push_back(text);
        }
    }
    environment.push_back("DISPLAY=" + display);
    environment.push_back("QT_QPA_PLATFORM=xcb");
    environment.push_back("XDG_SESSION_TYPE=x11");
    environment.push_back("XDG_CONFIG_HOME=" + configHome.string());
    environment.push_back("XDG_RUNTIME_DIR=" + runtimeDir.string());
    return environment;
}

Sample runOnce(MapWatcher& watcher, const std::vector<std::string>& command,
               const std::vector<std::string>& environment) {
    watcher.drain();
    std::vector<char*> envp;
    for (const std::string& entry : environment) {
        envp.push_back(const_cast<char*>(entry.c_str()));
    }
    envp.push_back(nullptr);
    std::vector<char*> argv;
    for (const std::string& word : command) {
        argv.push_back(const_cast<char*>(word.c_str()));
    }
    argv.push_back(nullptr);

    const long long start = monotonicNs();
    const pid_t pid = fork();
    if (pid == 0) {
        const int devNull = open("/dev/null", O_RDWR);
        dup2(devNull, STDIN_FILENO);
        dup2(devNull, STDOUT_FILENO);
        dup2(devNull, STDERR_FILENO);
        execve(argv[0], argv.data(), envp.data());
        _exit(127);
    }
    if (pid < 0) {
        return {};
    }
    const int exitFd = static_cast<int>(syscall(SYS_pidfd_open, pid, 0));

    long long mapped = -1;
    long long exited = -1;
    while (exited < 0) {
        pollfd descriptors[2] = {{watcher.fd(), POLLIN, 0}, {exitFd, POLLIN, 0}};
        const int ready = poll(descriptors, 2, kRunTimeoutMs);
        const long long now = monotonicNs();
        if (ready < 0 && errno == EINTR) {
            continue;
        }
        if (ready <= 0) {
            kill(pid, SIGKILL);
            break;
        }
        // The server's events first: a mapping that arrived with the exit happened before it.
        const long long seen = watcher.takeFirstMapOf(pid, now);
        if (mapped < 0) {
            mapped = seen;
        }
        if ((descriptors[1].revents & POLLIN) != 0) {
            exited = now;
        }
    }
    close(exitFd);

    int status = 0;
    rusage usage{};
    while (wait4(pid, &status, 0, &usage) < 0 && errno == EINTR) {
    }
    Sample sample;
    sample.ok = exited >= 0 && mapped >= 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    sample.mapMs = msBetween(start, mapped);
    sample.exitMs = msBetween(start, exited);
    sample.cpuMs = static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1e3 +
                   static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e3;
    sample.peakMiB = static_cast<double>(usage.ru_maxrss) / 1024.0;
    return sample;
}

// ---- Figures ----

struct Stats {
    double median = 0;
    double p90 = 0;
    double max = 0;
};

Stats statsOf(std::vector<double> values) {
    if (values.empty()) {
        return {};
    }
    std::sort(values.begin(), values.end());
    const std::size_t n = values.size();
    const double median = n % 2 == 1 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
    // Nearest rank.
    const std::size_t rank = (n * 9 + 9) / 10;
    return {median, values[std::min(n, std::max<std::size_t>(rank, 1)) - 1], values.back()};
}

struct Series {
    const char* name;
    std::vector<std::string> command;
    enum class Store { Fresh, Kept } store;
    // Whether its figures are held to the targets; the +after-paint row only shows what the
    // deferred work costs.
    bool target;
    std::vector<Sample> samples;
    int failed = 0;
    // Millions of instructions, one per counted start.
    std::vector<double> instructions;

    template <class Field> Stats stats(Field field) const {
        std::vector<double> values;
        for (const Sample& sample : samples) {
            values.push_back(field(sample));
        }
        return statsOf(values);
    }
};

} // namespace

int main(int argc, char** argv) {
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 21;
    const std::string app = argc > 2 ? argv[2] : TARNIC_BENCH_APP_PATH;
    const std::string bare = argc > 3 ? argv[3] : TARNIC_BENCH_BARE_PATH;
    const std::string window = argc > 4 ? argv[4] : TARNIC_BENCH_WINDOW_PATH;

    char pattern[] = "/tmp/tarnic-startup-XXXXXX";
    if (mkdtemp(pattern) == nullptr) {
        std::perror("mkdtemp");
        return 1;
    }
    const fs::path root(pattern);
    const fs::path runtimeDir = root / "runtime";
    fs::create_directories(runtimeDir);
    chmod(runtimeDir.c_str(), 0700);
    const fs::path kept = root / "kept";
    fs::create_directories(kept);

    const Xvfb server = startXvfb();
    if (server.pid < 0) {
        std::fprintf(stderr, "Xvfb did not start\n");
        return 1;
    }
    int status = 1;
    {
        MapWatcher watcher(server.display);
        if (!watcher.ok()) {
            std::fprintf(stderr, "cannot watch %s\n", server.display.c_str());
        } else {
            std::vector<Series> series = {
                {"bare QTableWidget", {bare}, Series::Store::Fresh, true, {}, 0, {}},
                {"app, first-run store", {app}, Series::Store::Fresh, true, {}, 0, {}},
                {"app, stored full list", {app}, Series::Store::Kept, true, {}, 0, {}},
                {"app, stored, +after-paint",
                 {app, "--after-paint-work"},
                 Series::Store::Kept,
                 false,
                 {},
                 0,
                 {}},
                {"window and store alone", {window}, Series::Store::Kept, false, {}, 0, {}},
            };
            int fresh = 0;
            auto startOf = [&](const Series& s) {
                const fs::path config = s.store == Series::Store::Kept
                                            ? kept
                                            : root / ("fresh" + std::to_string(fresh++));
                fs::create_directories(config);
                const Sample sample = runOnce(watcher, s.command,
                                              childEnvironment(server.display, config, runtimeDir));
                if (s.store == Series::Store::Fresh) {
                    std::error_code ignored;
                    fs::remove_all(config, ignored);
                }
                return sample;
            };
            // Warm the file cache and the font cache; the first app start in the kept folder
            // writes the whole list into its store.
            for (int i = 0; i < 2; ++i) {
                for (const Series& s : series) {
                    startOf(s);
                }
            }
            const std::string loadBefore = loadAverage();
            for (int i = 0; i < runs; ++i) {
                // Each program in turn, in a rotating order, so that a burst of load elsewhere
                // falls on all of them alike.
                for (std::size_t k = 0; k < series.size(); ++k) {
                    Series& s = series[(k + static_cast<std::size_t>(i)) % series.size()];
                    const Sample sample = startOf(s);
                    if (sample.ok) {
                        s.samples.push_back(sample);
                    } else {
                        ++s.failed;
                    }
                }
            }
            const std::string loadAfter = loadAverage();
            for (Series& s : series) {
                for (int i = 0; i < kInstructionRuns; ++i) {
                    const fs::path config = s.store == Series::Store::Kept
                                                ? kept
                                                : root / ("fresh" + std::to_string(fresh++));
                    fs::create_directories(config);
                    // The bare program has no timers; the app stretches its own to valgrind's pace.
                    std::vector<std::string> command = s.command;
                    if (command.front() == app) {
                        command.push_back("--slowed");
                    }
                    const long long count = tarnic::bench::countInstructions(
                        command, childEnvironment(server.display, config, runtimeDir),
                        kInstructionTimeoutMs);
                    if (count > 0) {
                        s.instructions.push_back(static_cast<double>(count) / 1e6);
                    }
                    if (s.store == Series::Store::Fresh) {
                        std::error_code ignored;
                        fs::remove_all(config, ignored);
                    }
                }
            }

            std::printf("Start-up under Xvfb %s (no window manager), %d runs per program, "
                        "interleaved; %ld processors\n",
                        server.display.c_str(), runs, sysconf(_SC_NPROCESSORS_ONLN));
            std::printf("Load average (1, 5, 15 min) before: %s, after: %s; nice %d\n",
                        loadBefore.c_str(), loadAfter.c_str(), getpriority(PRIO_PROCESS, 0));
            std::printf("The app starts through main's own launch (one-copy check included), "
                        "without the version gate (no site address: a network check after the "
                        "window is up).\n");
            std::printf("Both quit once their table's first paint has been handled, before what "
                        "the app keeps for after its first frame (the icon-theme lookup); the "
                        "+after-paint row quits once that is done too.\n");
            std::printf("The window-and-store row shows the app's window (every control, in its "
                        "style) over the list read from the same store by the same reader, with "
                        "no controller, no X input, no one-copy check: the part of the app's "
                        "start that its window and its store format alone demand.\n\n");
            std::printf("%-26s | %-23s | %-23s | %-23s | %-8s | %-13s | %s\n", "",
                        "start to first map, ms", "whole process, ms", "peak RSS, MiB", "cpu, ms",
                        "instructions", "failed");
            std::printf("%-26s | %7s %7s %7s | %7s %7s %7s | %7s %7s %7s | %8s | %13s |\n",
                        "program", "median", "p90", "max", "median", "p90", "max", "median", "p90",
                        "max", "median", "median, M");
            for (const Series& s : series) {
                const Stats map = s.stats([](const Sample& x) { return x.mapMs; });
                const Stats exit = s.stats([](const Sample& x) { return x.exitMs; });
                const Stats peak = s.stats([](const Sample& x) { return x.peakMiB; });
                const Stats cpu = s.stats([](const Sample& x) { return x.cpuMs; });
                std::printf("%-26s | %7.1f %7.1f %7.1f | %7.1f %7.1f %7.1f | %7.1f %7.1f %7.1f | "
                            "%8.1f | %13.1f | %d\n",
                            s.name, map.median, map.p90, map.max, exit.median, exit.p90, exit.max,
                            peak.median, peak.p90, peak.max, cpu.median,
                            statsOf(s.instructions).median, s.failed);
            }

            std::printf("\nRatios app / bare of the medians (target: at most %.1fx; instructions, "
                        "counted by callgrind in %d starts each: at most %.1fx)\n",
                        kTarget, kInstructionRuns, kInstructionTarget);
            std::printf("%-26s | %-16s | %-16s | %-16s | %-16s | %s\n", "", "first map",
                        "whole process", "peak RSS", "cpu", "instructions");
            const Series& floor = series[0];
            bool allMet = true;
            for (std::size_t k = 1; k < series.size(); ++k) {
                const Series& s = series[k];
                auto ratio = [&](auto field) {
                    const double base = floor.stats(field).median;
                    return base > 0 ? s.stats(field).median / base : 0.0;
                };
                const double map = ratio([](const Sample& x) { return x.mapMs; });
                const double exit = ratio([](const Sample& x) { return x.exitMs; });
                const double peak = ratio([](const Sample& x) { return x.peakMiB; });
                const double cpu = ratio([](const Sample& x) { return x.cpuMs; });
                const double baseInstructions = statsOf(floor.instructions).median;
                const double instructions =
                    baseInstructions > 0 ? statsOf(s.instructions).median / baseInstructions : 0.0;
                auto mark = [&](double value, double target) {
                    if (!s.target) {
                        return "(info)";
                    }
                    const bool met = value > 0 && value <= target && s.failed == 0;
                    allMet = allMet && met;
                    return met ? "met" : "NOT met";
                };
                std::printf("%-26s | %5.2fx %-9s | %5.2fx %-9s | %5.2fx %-9s | %5.2fx %-9s | "
                            "%5.2fx %s\n",
                            s.name, map, mark(map, kTarget), exit, mark(exit, kTarget), peak,
                            mark(peak, kTarget), cpu, mark(cpu, kTarget), instructions,
                            mark(instructions, kInstructionTarget));
            }
            std::printf("\nAll targets: %s\n", allMet && floor.failed == 0 ? "met" : "NOT met");
            status = 0;
        }
    }
    kill(server.pid, SIGTERM);
    waitpid(server.pid, nullptr, 0);
    std::error_code ignored;
    fs::remove_all(root, ignored);
    return status;
}
