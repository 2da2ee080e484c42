#pragma once

#include <string_view>

namespace tarnic {

// Which platform the program runs on.
enum class PlatformChoice {
    X11,  // the display server: observes and posts real keys
    Fake, // the recording fakes: nothing is observed, posts are only recorded
};

// The name of the environment variable that chooses the platform.
inline constexpr char kPlatformVariable[] = "TARNIC_PLATFORM";

// The choice named by the variable's value (null when it is not set): "fake" chooses the fakes;
// anything else, unset included, the display server.
PlatformChoice platformChoice(const char* value);

// Whether `value` is one of the names the variable knows ("x11", "fake") or unset/empty.
bool isKnownPlatformName(const char* value);

} // namespace tarnic
