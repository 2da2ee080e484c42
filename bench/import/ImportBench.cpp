// Prints how long importCustomKeys takes, the median of a number of runs, for files a player has
// and for files near the import's 4 MB limit that make its lookups work hardest.
#include "core/catalogue/Catalogue.h"
#include "core/import/CustomKeysImport.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

constexpr std::size_t kNearLimit = 3'900'000;

std::string dataFile(const char* name) {
    std::ifstream in(std::string(TARNIC_SOURCE_DIR "/tests/data/") + name, std::ios::binary);
    if (!in) {
        std::fprintf(stderr, "cannot read tests/data/%s\n", name);
        std::exit(1);
    }
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::string repeated(const std::string& head, const std::string& piece, const std::string& tail) {
    std::string text = head;
    while (text.size() + piece.size() + tail.size() <= kNearLimit) {
        text += piece;
    }
    return text + tail;
}

double medianMilliseconds(const std::string& text, int runs) {
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        std::vector<tarnic::AbilityRecord> list = tarnic::all_data();
        const auto start = std::chrono::steady_clock::now();
        tarnic::importCustomKeys(list, text);
        times.push_back(
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
                .count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

} // namespace

int main(int argc, char** argv) {
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
    struct Case {
        const char* name;
        std::string text;
    };
    const std::vector<Case> cases = {
        {"the game's file", dataFile("game-default-CustomKeys.txt")},
        {"the game's file, lower case",
         dataFile("case-variants/game-default-CustomKeys.lower.txt")},
        {"one section 557,000 times", repeated("", "[AHfs]\n", "")},
        {"one section, mixed case", repeated("", "[aHfS]\n", "")},
        {"a 3.9 MB line", "[AHfs]\nhotkey=" + std::string(kNearLimit, 'x') + "\nHotkey=Q\n"},
        {"650,000 lines in a section", repeated("[ahfs]\n", "tip=x\n", "HOTKEY=Q\n")},
    };
    std::printf("importCustomKeys, median of %d runs\n", runs);
    for (const Case& c : cases) {
        std::printf("  %-30s %9zu bytes %10.1f ms\n", c.name, c.text.size(),
                    medianMilliseconds(c.text, runs));
    }
    return 0;
}
