#pragma once

#include "core/platform/KeyObserver.h"
#include "platform/x11/X11KeyRouter.h"

#include <functional>
#include <memory>
#include <thread>

struct _XDisplay;

namespace tarnic::x11 {

class X11Connection;

// Observes every key the X server receives, through the RECORD extension, without taking it
// from the window it goes to. The recording runs on a connection of its own that carries no
// other request once recording has begun (the server would not answer them). Its replies are
// read by a thread of the observer's own, the key thread, which sleeps on that socket alone: a
// key is handled the moment it arrives, whatever the window's event loop is doing, and the
// handlers run on that thread, in the order the keys were pressed, under the control
// connection's key-path lock. Keys this program posts itself are recorded too; those on its own
// keypad keycodes (`ownTap`) are left out, so a tap never counts as a key-down or a modifier
// change.
class X11KeyObserver : public KeyObserver {
public:
    // Sets up the recording on `control` (the main connection) and starts it on a new connection
    // to `displayName`, then waits briefly until the server confirms it and starts the key
    // thread. The observer exists even when recording could not start; it then reports nothing
    // and isRecording() is false. `ownWindowActive` and `ownTap` are asked on the key thread,
    // under the key-path lock.
    X11KeyObserver(std::shared_ptr<X11Connection> control, const char* displayName,
                   std::function<bool()> ownWindowActive,
                   std::function<bool(unsigned xKeycode)> ownTap = {});
    // Stops the key thread (a key being handled is handled to the end) before anything goes.
    ~X11KeyObserver() override;
    X11KeyObserver(const X11KeyObserver&) = delete;
    X11KeyObserver& operator=(const X11KeyObserver&) = delete;

    void addKeyDownMonitor(Handler handler) override;
    void addFlagsChangedMonitor(Handler handler) override;

    // Whether the server offers RECORD and the recording context was made and enabled.
    bool isRecording() const { return recording_; }
    // Whether the server offers RECORD at all.
    bool serverHasRecord() const { return serverHasRecord_; }

private:
    friend struct RecordCallback;
    void runKeyThread();
    void stopKeyThread();

    std::shared_ptr<X11Connection> control_;
    std::shared_ptr<X11Connection> recordConnection_;
    X11KeyRouter router_;
    unsigned long context_ = 0;
    bool recording_ = false;
    bool serverHasRecord_ = false;
    bool started_ = false;
    bool closing_ = false;
    // Written to once, to wake the key thread for its end.
    int stopFd_ = -1;
    std::thread keyThread_;
};

} // namespace tarnic::x11
