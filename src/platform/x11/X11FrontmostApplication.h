#pragma once

#include "core/platform/FrontmostApplication.h"

#include <memory>
#include <optional>
#include <string>

struct _XDisplay;

namespace tarnic::x11 {

class X11Connection;

// The window in _NET_ACTIVE_WINDOW on the root window now, read from the server (one round
// trip); none without a window manager that sets it, or when no window is active.
std::optional<unsigned long> readActiveWindow(_XDisplay* display, unsigned long activeWindowAtom);

// The identifier of the application whose window is in _NET_ACTIVE_WINDOW now, read from the
// server (two round trips); none as described below.
std::optional<std::string> readFrontmostIdentifier(_XDisplay* display,
                                                   unsigned long activeWindowAtom);

// The frontmost application as the window manager names it: the window in _NET_ACTIVE_WINDOW on
// the root window, identified by the class of its WM_CLASS (see identifierOfWindowClass). None
// without a window manager that sets the property, when no window is active, or when the active
// window has no class.
class X11FrontmostApplication : public FrontmostApplication {
public:
    explicit X11FrontmostApplication(std::shared_ptr<X11Connection> connection);

    std::optional<std::string> bundleIdentifier() const override;

private:
    std::shared_ptr<X11Connection> connection_;
    unsigned long activeWindowAtom_ = 0;
};

} // namespace tarnic::x11
