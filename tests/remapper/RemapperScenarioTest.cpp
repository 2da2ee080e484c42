// Runs every scenario file in scenarios/: the events it lists are played against the remapper
// on the fake platform, and the posted keys must match the transcript it expects.
#include "LineDiff.h"
#include "Scenario.h"
#include "ScenarioRunner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace tarnic::test {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> scenarioFiles() {
    std::vector<fs::path> files;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(TARNIC_SCENARIO_DIR, error)) {
        if (entry.path().extension() == ".t") {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string readFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

class RemapperScenario : public ::testing::TestWithParam<fs::path> {};

TEST_P(RemapperScenario, PostsTheExpectedKeys) {
    const fs::path& path = GetParam();
    Scenario scenario;
    std::string error;
    ASSERT_TRUE(parseScenario(readFile(path), scenario, error))
        << path.filename().string() << ": " << error;
    const std::vector<std::string> actual = runScenario(scenario);
    if (actual != scenario.expected) {
        ADD_FAILURE() << path.filename().string() << ": the transcript differs\n"
                      << lineDiff(scenario.expected, actual);
    }
}

std::string scenarioName(const ::testing::TestParamInfo<fs::path>& info) {
    std::string name = info.param.stem().string();
    std::replace_if(
        name.begin(), name.end(),
        [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Scenarios, RemapperScenario, ::testing::ValuesIn(scenarioFiles()),
                         scenarioName);

// An empty or misplaced folder would otherwise pass by running nothing.
TEST(RemapperScenarios, FolderHoldsTheScenarios) {
    EXPECT_GE(scenarioFiles().size(), 20U) << "scenarios looked for in " << TARNIC_SCENARIO_DIR;
}

} // namespace
} // namespace tarnic::test
