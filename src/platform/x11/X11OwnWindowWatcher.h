#pragma once

#include <atomic>
#include <memory>
#include <set>
#include <string>

union _XEvent;

namespace tarnic::x11 {

class X11Connection;

// Whether the keys now go to a window of this process: any top-level window it made, whichever
// toolkit made it (Qt's windows, and the GTK file dialogs a platform theme draws, which Qt knows
// nothing of). A window is ours when its _NET_WM_PID is our process id and its
// WM_CLIENT_MACHINE our host name (see isOwnWindow).
//
// The answer is kept current from events, so asking for it costs the key path no request:
// - With a window manager that keeps _NET_ACTIVE_WINDOW (it lists it in _NET_SUPPORTED), the
//   active window is the one the keys go to. At each change of that property the watcher reads
//   the new window's owner once; it also watches that window, since a window manager may leave a
//   window that was closed named active when nothing takes its place.
// - Without one, nothing names the active window and the input focus is all there is. The
//   watcher then asks for focus events on the root window and on every top-level window (new
//   ones as they are created), and reads the focus window's owner once after each focus change.
//   While the focus is PointerRoot, the keys go to whatever window the pointer is in, which no
//   event tells: that counts as not ours, so the bound keys keep working in other programs.
// The watcher switches between the two when a window manager starts or ends (_NET_SUPPORTED
// changes).
//
// Its events are handled by whichever thread reads the main connection (the event loop, or the
// key thread in the middle of a key), under the platform's key-path lock; the answer is atomic
// all the same, so that a reader on another thread sees a whole value.
class X11OwnWindowWatcher {
public:
    // Starts watching and reads the answer once. Needs the QCoreApplication (the connection's
    // event pump).
    explicit X11OwnWindowWatcher(std::shared_ptr<X11Connection> connection);
    ~X11OwnWindowWatcher();
    X11OwnWindowWatcher(const X11OwnWindowWatcher&) = delete;
    X11OwnWindowWatcher& operator=(const X11OwnWindowWatcher&) = delete;

    // Takes in the events that have already arrived (reading the socket, no request), then
    // answers from what they said. Only when one of them announced a change not yet taken in
    // (a key pressed in the instant after a window change, before the event loop ran) does the
    // new window's owner have to be read here.
    bool ownWindowActive();

private:
    void takeIn(_XEvent& event);
    void refresh();
    bool windowManagerNamesActiveWindow();
    void followFocus(bool follow);
    void watchActive(unsigned long window);
    void watchFocusOf(unsigned long window);

    std::shared_ptr<X11Connection> connection_;
    unsigned long root_ = 0;
    unsigned long activeWindowAtom_ = 0;
    unsigned long supportedAtom_ = 0;
    unsigned long pidAtom_ = 0;
    long processId_ = 0;
    std::string hostName_;
    int listener_ = 0;
    bool changed_ = false;
    bool supportedChanged_ = false;
    bool followingFocus_ = false;
    // The active window, while the window manager names it: its unmapping or end is a change.
    unsigned long activeWatched_ = 0;
    // The top-level windows whose focus events are asked for while following the focus.
    std::set<unsigned long> focusWatched_;
    std::atomic<bool> own_{false};
};

} // namespace tarnic::x11
