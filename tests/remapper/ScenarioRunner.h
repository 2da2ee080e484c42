#pragma once

#include "Scenario.h"

#include <string>
#include <vector>

namespace tarnic::test {

// Plays a scenario against the remapper on the fake platform, through the session the program
// uses, and returns the transcript: every posted key in order, with the lines of "state".
std::vector<std::string> runScenario(const Scenario& scenario);

} // namespace tarnic::test
