#pragma once

#include "core/platform/Platform.h"

namespace tarnic {

// The platform where no display server can be watched or typed into: untrusted (no display
// server), it observes no key, posts nothing and knows no frontmost application, now or at any
// change, and no keyboard layout (the keys keep their US names). The editor works the same on it;
// the inventory keys do nothing, and the launch line says why (untrusted).
Platform makeNullPlatform();

} // namespace tarnic
