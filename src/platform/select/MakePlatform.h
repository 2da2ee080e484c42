#pragma once

#include "core/platform/Platform.h"
#include "platform/select/PlatformChoice.h"

namespace tarnic {

// The platform for this run, chosen once at start-up from TARNIC_PLATFORM: the X11 backend
// normally, the recording fakes with TARNIC_PLATFORM=fake (for running the window where no
// display server may be watched or typed into, and for tests of the whole program). Call it
// after the QApplication exists: the X11 backend shares its display connection's thread.
Platform makePlatform();

// The platform of a given choice. A build without the X11 backend gives the fakes for X11
// too, untrusted, and says so on standard error.
Platform makePlatform(PlatformChoice choice);

} // namespace tarnic
