#pragma once

#include "platform/x11/OwnWindowRule.h"

struct _XDisplay;

namespace tarnic::x11 {

// The owner a window names (see WindowOwner), read from the server: two round trips. Nothing
// when the window is gone or names nothing.
WindowOwner readWindowOwner(_XDisplay* display, unsigned long window, unsigned long pidAtom);

// The owner of the window that has the X input focus: the focus window's own, or that of the
// nearest ancestor below the root that names a process (a toolkit may put the focus on a child
// of its top-level window). Nothing when the focus is on no window (None, or PointerRoot: the
// keys go to whatever window the pointer is in, which no event announces). A few round trips.
WindowOwner readFocusOwner(_XDisplay* display, unsigned long pidAtom);

} // namespace tarnic::x11
