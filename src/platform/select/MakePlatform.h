#pragma once

#include "core/platform/Platform.h"

namespace tarnic {

// The platform for this run, made once at start-up: the X11 backend on $DISPLAY, or, when no X
// server can be reached (none at all, or a Wayland session without XWayland), the null platform,
// with a note on standard error. Call it after the QApplication exists: the X11 backend watches
// the keymap and the windows from the main thread's event loop.
Platform makePlatform();

} // namespace tarnic
