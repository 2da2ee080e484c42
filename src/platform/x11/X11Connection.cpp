#include "platform/x11/X11Connection.h"

#include "platform/x11/X11EventPump.h"

#include <X11/Xlib.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <mutex>
#include <unistd.h>

namespace tarnic::x11 {

namespace {

// Xlib has one error handler per process. Ours counts the errors of our own connections and
// passes any other connection's errors to the handler that was there before (Qt installs one of
// its own for its connection).
std::mutex gMutex;
std::map<Display*, unsigned long> gErrorCounts;
XErrorHandler gPreviousHandler = nullptr;
bool gHandlerInstalled = false;

int countError(Display* display, XErrorEvent* event) {
    {
        std::lock_guard lock(gMutex);
        const auto it = gErrorCounts.find(display);
        if (it != gErrorCounts.end()) {
            ++it->second;
            return 0;
        }
    }
    return gPreviousHandler ? gPreviousHandler(display, event) : 0;
}

// The X server is gone (it crashed, or the session ended under us). Nothing can be done without
// it: the claimed keycodes went with it, and no window can be shown. Say so in one line and end
// at once, without running destructors or exit handlers that could still touch the store or
// talk to the dead server. Xlib's default would print two lines and then call exit().
int endWithoutServer(Display* display) {
    std::fprintf(stderr, "Tarnic Pro: lost the connection to the X server %s; ending\n",
                 DisplayString(display));
    std::fflush(stderr);
    _exit(1);
}

} // namespace

std::shared_ptr<X11Connection> X11Connection::open(const char* displayName) {
    Display* display = XOpenDisplay(displayName);
    if (display == nullptr) {
        return nullptr;
    }
    {
        std::lock_guard lock(gMutex);
        gErrorCounts[display] = 0;
        if (!gHandlerInstalled) {
            gPreviousHandler = XSetErrorHandler(countError);
            // Replaces Qt's, which would print a line of its own before Xlib's two.
            XSetIOErrorHandler(endWithoutServer);
            gHandlerInstalled = true;
        }
    }
    return std::shared_ptr<X11Connection>(new X11Connection(display));
}

X11Connection::X11Connection(_XDisplay* display) : display_(display) {}

X11Connection::~X11Connection() {
    // Its socket notifier must not outlive the socket.
    eventPump_.reset();
    XCloseDisplay(display_);
    std::lock_guard lock(gMutex);
    gErrorCounts.erase(display_);
}

unsigned long X11Connection::errorCount() const {
    std::lock_guard lock(gMutex);
    const auto it = gErrorCounts.find(display_);
    return it == gErrorCounts.end() ? 0 : it->second;
}

X11EventPump& X11Connection::eventPump() {
    if (!eventPump_) {
        eventPump_ = std::make_unique<X11EventPump>(display_, lock_);
    }
    return *eventPump_;
}

void X11Connection::selectEvents(unsigned long window, long mask) {
    std::vector<long>& masks = selections_[window];
    masks.push_back(mask);
    long all = NoEventMask;
    for (const long each : masks) {
        all |= each;
    }
    XSelectInput(display_, window, all);
}

void X11Connection::deselectEvents(unsigned long window, long mask) {
    const auto it = selections_.find(window);
    if (it == selections_.end()) {
        return;
    }
    std::vector<long>& masks = it->second;
    if (const auto one = std::find(masks.begin(), masks.end(), mask); one != masks.end()) {
        masks.erase(one);
    }
    long all = NoEventMask;
    for (const long each : masks) {
        all |= each;
    }
    XSelectInput(display_, window, all);
    if (masks.empty()) {
        selections_.erase(it);
    }
}

void X11Connection::forgetWindow(unsigned long window) {
    selections_.erase(window);
}

bool X11Connection::syncSucceeded() {
    const unsigned long before = errorCount();
    XSync(display_, False);
    return errorCount() == before;
}

} // namespace tarnic::x11
