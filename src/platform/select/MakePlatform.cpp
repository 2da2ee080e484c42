#include "platform/select/MakePlatform.h"

#include "platform/fake/FakePlatform.h"

#ifdef TARNIC_HAVE_X11
#include "platform/x11/X11Platform.h"
#endif

#include <cstdio>
#include <cstdlib>

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
    return makeX11Platform();
#else
    // Nothing can be observed here: report the program as untrusted so the launch report
    // tells the truth.
    std::fprintf(stderr, "Tarnic Pro: built without the X11 backend; keys are not observed\n");
    Platform platform = makeFakePlatform();
    fakeParts(platform).accessibilityTrust->setTrusted(false);
    return platform;
#endif
}

} // namespace tarnic
