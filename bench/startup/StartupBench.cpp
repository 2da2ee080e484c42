// Start-up benchmark of the application: time from process start to a shown window whose table
// has painted its rows, and the peak resident memory of the process, over several runs, on a
// first-run store (empty config folder) and on a stored full list.
//
// Usage: bench_startup [runs] [path to tarnic-pro]

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

struct Run {
    double ms = 0; // process start to rows painted
    long maxRssKb = 0;
    bool ok = false;
};

long long monotonicNs() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<long long>(now.tv_sec) * 1000000000LL + now.tv_nsec;
}

Run runOnce(const std::string& app, const fs::path& configHome) {
    int out[2];
    if (pipe(out) != 0) {
        return {};
    }
    const long long start = monotonicNs();
    const pid_t pid = fork();
    if (pid == 0) {
        dup2(out[1], STDOUT_FILENO);
        close(out[0]);
        close(out[1]);
        if (FILE* null = std::fopen("/dev/null", "w")) {
            dup2(fileno(null), STDERR_FILENO);
        }
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        setenv("XDG_CONFIG_HOME", configHome.c_str(), 1);
        setenv("TARNIC_BENCH_EXIT_WHEN_SHOWN", "1", 1);
        execl(app.c_str(), app.c_str(), static_cast<char*>(nullptr));
        _exit(127);
    }
    close(out[1]);
    std::string text;
    char buffer[256];
    for (ssize_t n; (n = read(out[0], buffer, sizeof buffer)) != 0;) {
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n < 0) {
            break;
        }
        text.append(buffer, static_cast<std::size_t>(n));
    }
    close(out[0]);
    int status = 0;
    rusage usage{};
    if (wait4(pid, &status, 0, &usage) != pid) {
        return {};
    }
    Run run;
    const auto at = text.find("shown ");
    run.ok = WIFEXITED(status) && WEXITSTATUS(status) == 0 && at != std::string::npos;
    if (run.ok) {
        const long long shown = std::atoll(text.c_str() + at + 6);
        run.ms = static_cast<double>(shown - start) / 1e6;
    }
    run.maxRssKb = usage.ru_maxrss;
    return run;
}

template <class T> T median(std::vector<T> values) {
    std::sort(values.begin(), values.end());
    const std::size_t n = values.size();
    return n % 2 == 1 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

struct Summary {
    double medianMs, minMs, maxMs, medianMb, maxMb;
    int failures;
};

Summary summarise(const std::vector<Run>& runs) {
    std::vector<double> ms;
    std::vector<double> mb;
    int failures = 0;
    for (const Run& run : runs) {
        if (!run.ok) {
            ++failures;
            continue;
        }
        ms.push_back(run.ms);
        mb.push_back(static_cast<double>(run.maxRssKb) / 1024.0);
    }
    if (ms.empty()) {
        return {0, 0, 0, 0, 0, failures};
    }
    return {median(ms),
            *std::min_element(ms.begin(), ms.end()),
            *std::max_element(ms.begin(), ms.end()),
            median(mb),
            *std::max_element(mb.begin(), mb.end()),
            failures};
}

} // namespace

int main(int argc, char** argv) {
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 15;
    const std::string app = argc > 2 ? argv[2] : TARNIC_APP_PATH;

    char pattern[] = "/tmp/tarnic-bench-XXXXXX";
    const char* made = mkdtemp(pattern);
    if (made == nullptr) {
        std::perror("mkdtemp");
        return 1;
    }
    const fs::path root(made);

    // Warm the file cache once so that every measured run starts alike.
    runOnce(app, root / "warm");

    std::vector<Run> firstRun;
    for (int i = 0; i < runs; ++i) {
        const fs::path fresh = root / ("first" + std::to_string(i));
        fs::create_directories(fresh);
        firstRun.push_back(runOnce(app, fresh));
    }
    // The stored list: what the first start wrote, the whole catalogue.
    const fs::path stored = root / "stored";
    fs::create_directories(stored);
    runOnce(app, stored);
    std::vector<Run> storedRuns;
    for (int i = 0; i < runs; ++i) {
        storedRuns.push_back(runOnce(app, stored));
    }
    std::error_code ignored;
    fs::remove_all(root, ignored);

    std::printf("Start-up of %s, %d runs each, offscreen\n", app.c_str(), runs);
    std::printf(
        "(time: process start to the ability table painted; memory: peak resident set)\n\n");
    std::printf("%-22s %10s %10s %10s %12s %10s %8s\n", "store", "median ms", "min ms", "max ms",
                "median MB", "max MB", "failed");
    const struct {
        const char* name;
        const std::vector<Run>& runs;
    } rows[] = {{"first run (empty)", firstRun}, {"stored full list", storedRuns}};
    bool withinTargets = true;
    for (const auto& row : rows) {
        const Summary s = summarise(row.runs);
        std::printf("%-22s %10.1f %10.1f %10.1f %12.1f %10.1f %8d\n", row.name, s.medianMs, s.minMs,
                    s.maxMs, s.medianMb, s.maxMb, s.failures);
        withinTargets = withinTargets && s.failures == 0 && s.medianMs <= 150.0 && s.maxMb <= 60.0;
    }
    std::printf("\nTargets: median under 150 ms, peak under 60 MB: %s\n",
                withinTargets ? "met" : "NOT met");
    return 0;
}
