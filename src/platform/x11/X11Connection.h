#pragma once

#include "core/platform/KeyPathLock.h"

#include <map>
#include <memory>
#include <vector>

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

    // Guards what the parts on this connection keep (and Xlib's event queue of it) between the
    // key thread, which reads this connection's events in the middle of a key, and the main
    // thread. The platform's key-path lock.
    const std::shared_ptr<KeyPathLock>& lock() const { return lock_; }

    // A client has one event mask per window, and a second XSelectInput replaces the first: the
    // parts that share this connection select through here, each adding its own bits and later
    // taking away only those.
    void selectEvents(unsigned long window, long mask);
    void deselectEvents(unsigned long window, long mask);
    // The window is gone: forgets what was selected on it, without a request.
    void forgetWindow(unsigned long window);

private:
    explicit X11Connection(_XDisplay* display);

    _XDisplay* display_;
    std::shared_ptr<KeyPathLock> lock_ = makeKeyPathLock();
    std::unique_ptr<X11EventPump> eventPump_;
    // Per window, the masks selected through selectEvents and not yet taken away.
    std::map<unsigned long, std::vector<long>> selections_;
};

} // namespace tarnic::x11
