#pragma once

#include "core/platform/FrontmostWatcher.h"

#include <memory>
#include <vector>

union _XEvent;

namespace tarnic::x11 {

class X11Connection;

// The frontmost application as the window manager announces it. The window manager keeps the
// active window in _NET_ACTIVE_WINDOW on the root window; the watcher asks for the root's
// property-change events on the main connection and, at each change of that property, reads the
// new active window's WM_CLASS once and keeps the identifier it stands for (the same rule as
// X11FrontmostApplication: the game's executables are the game). Asking for the answer reads the
// kept value; taking in changes reads only what the server has already sent, and sends requests
// (to learn the new window) only when a change of the property is among it. So the key-down path
// may do both at every key press: a key press costs a round trip only in the instant between a
// window change and the event loop's reading of it.
//
// None without a window manager that sets _NET_ACTIVE_WINDOW (bare Xvfb), when no window is
// active, or when the active window has no class.
class X11FrontmostWatcher : public FrontmostWatcher {
public:
    // Starts watching and reads the frontmost application once. Needs the QCoreApplication (the
    // connection's event pump).
    explicit X11FrontmostWatcher(std::shared_ptr<X11Connection> connection);
    ~X11FrontmostWatcher() override;
    X11FrontmostWatcher(const X11FrontmostWatcher&) = delete;
    X11FrontmostWatcher& operator=(const X11FrontmostWatcher&) = delete;

    std::optional<std::string> frontmostIdentifier() const override { return identifier_; }
    void addChangeMonitor(Handler handler) override;
    void takeInChanges() override;

private:
    void takeIn(_XEvent& event);
    void refresh();

    std::shared_ptr<X11Connection> connection_;
    unsigned long root_ = 0;
    unsigned long activeWindowAtom_ = 0;
    int listener_ = 0;
    bool changed_ = false;
    std::optional<std::string> identifier_;
    std::vector<Handler> handlers_;
};

} // namespace tarnic::x11
