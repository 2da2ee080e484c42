#include "platform/select/PlatformChoice.h"

namespace tarnic {

PlatformChoice platformChoice(const char* value) {
    if (value != nullptr && std::string_view(value) == "fake") {
        return PlatformChoice::Fake;
    }
    return PlatformChoice::X11;
}

bool isKnownPlatformName(const char* value) {
    if (value == nullptr) {
        return true;
    }
    const std::string_view name(value);
    return name.empty() || name == "x11" || name == "fake";
}

} // namespace tarnic
