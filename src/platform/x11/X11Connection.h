#pragma once

#include <memory>

struct _XDisplay;

namespace tarnic::x11 {

class X11EventPump;

// One Xlib connection to the X server, closed when the last owner lets go. X protocol errors on
// our connections are counted instead of ending the process (Xlib's default): a window can vanish
// between two requests, and that is no reason to stop. A connection that breaks (the X server
// died) ends the process at once, with one line on standard error and status 1.
class X11Connection {
public:
    // Null when the display cannot be opened. `displayName` null means $DISPLAY.
    static std::shared_ptr<X11Connection> open(const char* displayName);

    ~X11Connection();
    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;

    _XDisplay* display() const { return display_; }
    // X protocol errors seen on this connection so far.
    unsigned long errorCount() const;
    // Waits until the server has handled every request sent so far; false when any of them
    // failed.
    bool syncSucceeded();

    // The one reader of this connection's events, made at the first call (needs the
    // QCoreApplication). Never ask for it on a connection that carries a recording: nothing but
    // the recording may read there.
    X11EventPump& eventPump();

private:
    explicit X11Connection(_XDisplay* display);

    _XDisplay* display_;
    std::unique_ptr<X11EventPump> eventPump_;
};

} // namespace tarnic::x11
