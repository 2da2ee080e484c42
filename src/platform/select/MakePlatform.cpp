#include "platform/select/MakePlatform.h"

#include "platform/null/NullPlatform.h"
#include "platform/x11/X11Platform.h"

#include <cstdio>
#include <optional>
#include <utility>

namespace tarnic {

Platform makePlatform() {
    if (std::optional<Platform> x11 = makeX11Platform()) {
        return std::move(*x11);
    }
    std::fprintf(stderr, "Tarnic Pro: no X server to watch keys on; the inventory keys are off\n");
    return makeNullPlatform();
}

} // namespace tarnic
