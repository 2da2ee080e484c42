#pragma once

#include <functional>

namespace tarnic::test {

// Runs `action` inside the application's event loop, lets everything it queued run, then ends
// the loop; tells whether the application was asked to quit meanwhile. Bounded: the loop ends
// after a few seconds whatever happens.
bool quitsAfter(const std::function<void()>& action);

} // namespace tarnic::test
