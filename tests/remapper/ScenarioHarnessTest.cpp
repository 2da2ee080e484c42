// The scenario reader and the diff: a typo in a scenario must fail, not pass by testing less.
#include "LineDiff.h"
#include "Scenario.h"
#include "ScenarioRunner.h"

#include <gtest/gtest.h>

namespace tarnic::test {
namespace {

using Lines = std::vector<std::string>;

TEST(ScenarioParser, ReadsEventsThenTheTranscript) {
    Scenario scenario;
    std::string error;
    ASSERT_TRUE(parseScenario("# heading\n\nmodel 2 = [2, 56, -1]  # note\nflags 56\n"
                              "front com.example.App\nfront none\ntick\nown-window on\n"
                              "trust off\nfail-next-down\nslot 3\nstate\ndown 12\n\n"
                              "91  down # keypad 8\n\n91 up\n",
                              scenario, error))
        << error;
    ASSERT_EQ(scenario.steps.size(), 11U);
    using Kind = ScenarioStep::Kind;
    EXPECT_EQ(scenario.steps[0].kind, Kind::Model);
    EXPECT_EQ(scenario.steps[0].number, 2);
    EXPECT_EQ(scenario.steps[0].values, (std::vector<std::int64_t>{2, 56, -1}));
    EXPECT_EQ(scenario.steps[0].line, 3);
    EXPECT_EQ(scenario.steps[1].kind, Kind::Flags);
    EXPECT_EQ(scenario.steps[2].identifier, "com.example.App");
    EXPECT_TRUE(scenario.steps[2].hasIdentifier);
    EXPECT_FALSE(scenario.steps[3].hasIdentifier);
    EXPECT_EQ(scenario.steps[4].kind, Kind::Tick);
    EXPECT_TRUE(scenario.steps[5].on);
    EXPECT_FALSE(scenario.steps[6].on);
    EXPECT_EQ(scenario.steps[7].kind, Kind::FailNextDown);
    EXPECT_EQ(scenario.steps[8].number, 3);
    EXPECT_EQ(scenario.steps[9].kind, Kind::State);
    EXPECT_EQ(scenario.steps[10].number, 12);
    EXPECT_EQ(scenario.expected, (Lines{"91 down", "91 up"}));
}

TEST(ScenarioParser, ReadsTheOptionsAndTheWindowEvents) {
    Scenario scenario;
    std::string error;
    ASSERT_TRUE(parseScenario("option game-in-front on\noption pause-in-chat off\n"
                              "front-unread com.example.App\nfront-unread none\nfocus-state\n",
                              scenario, error))
        << error;
    ASSERT_EQ(scenario.steps.size(), 5U);
    using Kind = ScenarioStep::Kind;
    EXPECT_EQ(scenario.steps[0].kind, Kind::Option);
    EXPECT_EQ(scenario.steps[0].identifier, "game-in-front");
    EXPECT_TRUE(scenario.steps[0].on);
    EXPECT_EQ(scenario.steps[1].identifier, "pause-in-chat");
    EXPECT_FALSE(scenario.steps[1].on);
    EXPECT_EQ(scenario.steps[2].kind, Kind::FrontUnread);
    EXPECT_EQ(scenario.steps[2].identifier, "com.example.App");
    EXPECT_TRUE(scenario.steps[2].hasIdentifier);
    EXPECT_FALSE(scenario.steps[3].hasIdentifier);
    EXPECT_EQ(scenario.steps[4].kind, Kind::FocusState);
}

TEST(ScenarioParser, EmptyListUnbindsASlot) {
    Scenario scenario;
    std::string error;
    ASSERT_TRUE(parseScenario("model 6 = []\n", scenario, error)) << error;
    EXPECT_TRUE(scenario.steps[0].values.empty());
    EXPECT_TRUE(scenario.expected.empty());
}

TEST(ScenarioParser, RejectsWhatItCannotRead) {
    const Lines bad = {
        "dwn 12\n",
        "down\n",
        "down 12 13\n",
        "down x\n",
        "model 7 = []\n",
        "model 0 = [1]\n",
        "model 1 [1, 0, 12]\n",
        "model 1 = [1, , 2]\n",
        "model 1 = 1\n",
        "trust maybe\n",
        "tick now\n",
        "front\n",
        "state 1\n",
        "option chat on\n",
        "option pause-in-chat\n",
        "option game-in-front yes\n",
        "front-unread\n",
        "focus-state now\n",
        "\n# nothing\n",
        "",
    };
    for (const std::string& text : bad) {
        Scenario scenario;
        std::string error;
        EXPECT_FALSE(parseScenario(text, scenario, error)) << "accepted: " << text;
        EXPECT_FALSE(error.empty());
    }
}

TEST(ScenarioParser, NamesTheLineOfAMistake) {
    Scenario scenario;
    std::string error;
    ASSERT_FALSE(parseScenario("down 1\ndown 2\npress 3\n", scenario, error));
    EXPECT_EQ(error, "line 3: unknown event \"press\"");
}

TEST(ScenarioParser, ForgottenBlankLineIsAnError) {
    // The transcript would otherwise be read as events.
    Scenario scenario;
    std::string error;
    EXPECT_FALSE(parseScenario("down 12\n89 down\n89 up\n", scenario, error));
}

TEST(ScenarioRunner, InterleavesPostsAndStateInOrder) {
    Scenario scenario;
    std::string error;
    ASSERT_TRUE(
        parseScenario("model 1 = [1, 56, 12]\nstate\nflags 56\ndown 12\nstate\n", scenario, error));
    EXPECT_EQ(runScenario(scenario),
              (Lines{"state flagHold=-1 isFlag=false isWarRun=false", "89 down", "89 up",
                     "state flagHold=56 isFlag=true isWarRun=false"}));
}

TEST(ScenarioRunner, OptionsStartOffAndTheFocusStateIsWritten) {
    Scenario scenario;
    std::string error;
    ASSERT_TRUE(parseScenario("model 1 = [1, 0, 12]\nfocus-state\ndown 12\n"
                              "option game-in-front on\ndown 12\nfront com.blizzard.WarcraftIII\n"
                              "focus-state\n",
                              scenario, error));
    EXPECT_EQ(runScenario(scenario),
              (Lines{"focus-state gameInFront=false chatOpen=false", "89 down", "89 up",
                     "focus-state gameInFront=true chatOpen=false"}));
}

TEST(LineDiff, EmptyWhenEqual) {
    EXPECT_EQ(lineDiff({"89 down", "89 up"}, {"89 down", "89 up"}), "");
}

TEST(LineDiff, MarksMissingAndExtraLines) {
    EXPECT_EQ(lineDiff({"89 down", "89 up", "91 down", "91 up"},
                       {"89 down", "89 up", "86 down", "86 up"}),
              "--- expected\n+++ actual\n"
              "  89 down\n  89 up\n- 91 down\n- 91 up\n+ 86 down\n+ 86 up\n");
    EXPECT_EQ(lineDiff({}, {"89 up"}), "--- expected\n+++ actual\n+ 89 up\n");
    EXPECT_EQ(lineDiff({"89 up"}, {}), "--- expected\n+++ actual\n- 89 up\n");
}

} // namespace
} // namespace tarnic::test
