#include "LineDiff.h"

#include <algorithm>

namespace tarnic::test {

std::string lineDiff(const std::vector<std::string>& expected,
                     const std::vector<std::string>& actual) {
    if (expected == actual) {
        return {};
    }
    const std::size_t n = expected.size();
    const std::size_t m = actual.size();
    // common[i][j]: length of the longest common subsequence of expected[i..] and actual[j..].
    std::vector<std::vector<std::size_t>> common(n + 1, std::vector<std::size_t>(m + 1, 0));
    for (std::size_t i = n; i-- > 0;) {
        for (std::size_t j = m; j-- > 0;) {
            common[i][j] = expected[i] == actual[j] ? common[i + 1][j + 1] + 1
                                                    : std::max(common[i + 1][j], common[i][j + 1]);
        }
    }
    std::string out = "--- expected\n+++ actual\n";
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < n || j < m) {
        if (i < n && j < m && expected[i] == actual[j]) {
            out += "  " + expected[i++] + "\n";
            ++j;
        } else if (i < n && (j == m || common[i + 1][j] >= common[i][j + 1])) {
            out += "- " + expected[i++] + "\n";
        } else {
            out += "+ " + actual[j++] + "\n";
        }
    }
    return out;
}

} // namespace tarnic::test
