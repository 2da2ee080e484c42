#include "platform/select/MakePlatform.h"

#include "platform/fake/FakePlatform.h"

#ifdef TARNIC_HAVE_X11
#include "platform/x11/X11Platform.h"
#endif

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <utility>

namespace tarnic {

Platform makePlatform() {
    const char* value = std::getenv(kPlatformVariable);
    if (!isKnownPlatformName(value)) {
        std::fprintf(stderr, "Tarnic Pro: unknown %s value \"%s\"; using x11\n", kPlatformVariable,
                     value);
    }
    return makePlatform(platformChoice(value));
}

Platform makePlatform(PlatformChoice choice) {
    if (choice == PlatformChoice::Fake) {
        return makeFakePlatform();
    }
#ifdef TARNIC_HAVE_X11
    if (std::optional<Platform> x11 = makeX11Platform()) {
        return std::move(*x11);
    }
    std::fprintf(stderr, "Tarnic Pro: no X server to watch keys on; keys are not observed\n");
#else
    std::fprintf(stderr, "Tarnic Pro: built without the X11 backend; keys are not observed\n");
#endif
    // Nothing can be observed here: stand in with parts that never report a key, and report
    // the program as untrusted so the launch line tells the truth.
    Platform platform = makeFakePlatform();
    fakeParts(platform).accessibilityTrust->setTrusted(false);
    return platform;
}

} // namespace tarnic
