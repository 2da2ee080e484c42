// What telling the window of a tap adds to the key path: the remapper's keyDown for a bound key,
// on a poster that posts nothing, without a tap listener and with the window's TapRelay. Every
// tap is delivered (the event loop runs between taps, outside the timing) so that each one posts
// its update, as taps a player makes do. Prints the median and the 99th percentile of each, for the
// whole call and for the part until the keypad key's release was handed to the poster (the tap
// itself): the report comes after the tap, so only the whole call may grow.
//   bench_tap_report [taps]
#include "core/remapper/InventoryRemapper.h"
#include "gui/TapRelay.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace {

class NullPoster : public tarnic::KeyPoster {
public:
    void postKeyDown(std::uint16_t) override { ++posts; }
    void postKeyUp(std::uint16_t) override {
        ++posts;
        tapped = std::chrono::steady_clock::now();
    }
    std::uint64_t posts = 0;
    std::chrono::steady_clock::time_point tapped;
};

struct Figures {
    double median;
    double p99;
    double tapMedian;
    double tapP99;
};

std::pair<double, double> medianAndP99(std::vector<double> ns) {
    std::sort(ns.begin(), ns.end());
    return {ns[ns.size() / 2], ns[ns.size() * 99 / 100]};
}

Figures run(tarnic::TapListener* listener, int taps) {
    NullPoster poster;
    tarnic::InventoryBindings models;
    models.slotBindings[0] = tarnic::SlotBinding{1, 0, 12};
    tarnic::InventoryRemapper remapper(poster);
    remapper.setBindings(models);
    remapper.setTapListener(listener);
    std::vector<double> ns;
    std::vector<double> toTap;
    ns.reserve(static_cast<std::size_t>(taps));
    toTap.reserve(static_cast<std::size_t>(taps));
    for (int i = 0; i < taps; ++i) {
        const auto start = std::chrono::steady_clock::now();
        remapper.keyDown(12);
        const auto end = std::chrono::steady_clock::now();
        ns.push_back(std::chrono::duration<double, std::nano>(end - start).count());
        toTap.push_back(std::chrono::duration<double, std::nano>(poster.tapped - start).count());
        QCoreApplication::processEvents();
    }
    const auto [median, p99] = medianAndP99(std::move(ns));
    const auto [tapMedian, tapP99] = medianAndP99(std::move(toTap));
    return {median, p99, tapMedian, tapP99};
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const int taps = argc > 1 ? std::max(100, std::stoi(argv[1])) : 100000;
    std::uint64_t delivered = 0;
    tarnic::TapRelay relay([&delivered](const tarnic::SlotTap&) { ++delivered; });
    // Interleaved rounds, so that the machine's drift touches both alike.
    std::vector<Figures> without;
    std::vector<Figures> with;
    for (int round = 0; round < 5; ++round) {
        without.push_back(run(nullptr, taps));
        with.push_back(run(&relay, taps));
    }
    const auto medianOf = [](std::vector<Figures> all, double Figures::*field) {
        std::vector<double> values;
        for (const Figures& each : all) {
            values.push_back(each.*field);
        }
        std::sort(values.begin(), values.end());
        return values[values.size() / 2];
    };
    std::printf("keyDown of a bound key, %d taps x 5 rounds (median of the rounds)\n", taps);
    std::printf("%-22s %14s %14s %14s %14s\n", "", "to tap median", "to tap p99", "call median",
                "call p99");
    const auto row = [&](const char* name, const std::vector<Figures>& all) {
        std::printf("%-22s %14.0f %14.0f %14.0f %14.0f\n", name, medianOf(all, &Figures::tapMedian),
                    medianOf(all, &Figures::tapP99), medianOf(all, &Figures::median),
                    medianOf(all, &Figures::p99));
    };
    row("no tap listener (ns)", without);
    row("TapRelay (ns)", with);
    std::printf("updates delivered: %llu of %d taps with the relay\n",
                static_cast<unsigned long long>(delivered), taps * 5);
    return 0;
}
