#pragma once

#include <string>
#include <vector>

namespace tarnic::bench {

// The instructions one start of `command` executes, all its threads together, as callgrind counts
// them: a figure that, unlike times, does not depend on the machine's speed or on what else runs
// on it. The command runs under valgrind with `environment`; its own output is dropped. -1 when
// valgrind cannot be run, the start fails, or it takes longer than `timeoutMs`.
long long countInstructions(const std::vector<std::string>& command,
                            const std::vector<std::string>& environment, int timeoutMs);

} // namespace tarnic::bench
