#pragma once

#include <string>
#include <vector>

namespace tarnic::test {

// A readable line-by-line comparison: "--- expected", "+++ actual", then every line of both,
// marked " " when both have it, "-" when only the expected has it, "+" when only the actual
// has it (a longest-common-subsequence alignment). Empty when the two are equal.
std::string lineDiff(const std::vector<std::string>& expected,
                     const std::vector<std::string>& actual);

} // namespace tarnic::test
