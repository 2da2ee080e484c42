#pragma once

#include "core/platform/KeyPathLock.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

class QSocketNotifier;
struct _XDisplay;
union _XEvent;

namespace tarnic::x11 {

// Reads the events that arrive on one Xlib connection and hands each to every listener. Xlib has
// one event queue per connection: the parts of the backend that listen on the same connection
// (keymap notifications, the root window's property changes) must share one reader, or each would
// swallow the others' events. X11Connection::eventPump() gives the one pump of a connection.
//
// Events are read on the main thread when the connection's socket has data, before the event
// loop sleeps (a request that waited for its reply may have read events into Xlib's queue and
// left the socket empty), and, on whichever thread asks, whenever a part calls readPending(): the
// key thread does so in the middle of a key. The reading and the listeners run under the
// connection's key-path lock, so they never run on two threads at once.
class X11EventPump {
public:
    using EventHandler = std::function<void(_XEvent& event)>;
    // Runs once all the events that had arrived have been handed out.
    using SettledHandler = std::function<void()>;

    // Needs the QCoreApplication (the socket notifier). `lock` is the connection's key-path lock.
    X11EventPump(_XDisplay* display, std::shared_ptr<KeyPathLock> lock);
    ~X11EventPump();
    X11EventPump(const X11EventPump&) = delete;
    X11EventPump& operator=(const X11EventPump&) = delete;

    // Returns a number for removeListener(). A listener that goes before the connection must
    // remove itself.
    int addListener(EventHandler onEvent, SettledHandler settled = {});
    void removeListener(int id);

    // Reads and hands out every event that has arrived, without waiting and without sending a
    // request to the server. Does nothing when called from a listener (the reading in progress
    // goes on with whatever arrives meanwhile). Takes the key-path lock; a thread that holds it
    // already reads at once.
    void readPending();

private:
    // A reading the main thread wants once the key thread lets go of the lock: when it holds it
    // for long, it is tried again a little later instead of waiting.
    void readSoon();

    struct Listener {
        int id;
        EventHandler onEvent;
        SettledHandler settled;
    };

    _XDisplay* display_;
    std::shared_ptr<KeyPathLock> lock_;
    std::vector<Listener> listeners_;
    int nextId_ = 1;
    bool reading_ = false;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace tarnic::x11
