#pragma once

#include "core/platform/Platform.h"

namespace tarnic {

// The platform where no display server can be watched or typed into: untrusted, it observes no
// key, posts nothing and knows no frontmost application. The editor works the same on it; the
// inventory keys do nothing, and the launch line says why (untrusted).
Platform makeNullPlatform();

} // namespace tarnic
