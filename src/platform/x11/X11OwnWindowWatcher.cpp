#include "platform/x11/X11OwnWindowWatcher.h"

#include "platform/x11/OwnWindowRule.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11EventPump.h"
#include "platform/x11/X11FrontmostApplication.h"
#include "platform/x11/X11WindowOwner.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <climits>
#include <unistd.h>
#include <utility>

namespace tarnic::x11 {

namespace {

// Root-window events while following the focus: focus moving to and from PointerRoot or None,
// and top-level windows coming and going.
constexpr long kFocusRootMask = FocusChangeMask | SubstructureNotifyMask;

std::string ownHostName() {
    char name[HOST_NAME_MAX + 1] = {};
    if (gethostname(name, sizeof name - 1) != 0) {
        return {};
    }
    return name;
}

} // namespace

X11OwnWindowWatcher::X11OwnWindowWatcher(std::shared_ptr<X11Connection> connection)
    : connection_(std::move(connection)), processId_(static_cast<long>(getpid())),
      hostName_(ownHostName()) {
    Display* display = connection_->display();
    root_ = DefaultRootWindow(display);
    activeWindowAtom_ = XInternAtom(display, "_NET_ACTIVE_WINDOW", False);
    supportedAtom_ = XInternAtom(display, "_NET_SUPPORTED", False);
    pidAtom_ = XInternAtom(display, "_NET_WM_PID", False);
    listener_ =
        connection_->eventPump().addListener([this](XEvent& event) { takeIn(event); },
                                             [this] {
                                                 if (std::exchange(supportedChanged_, false)) {
                                                     followFocus(!windowManagerNamesActiveWindow());
                                                     changed_ = true;
                                                 }
                                                 if (std::exchange(changed_, false)) {
                                                     refresh();
                                                 }
                                             });
    // Listening first, then reading: a change in between is announced, not lost.
    connection_->selectEvents(root_, PropertyChangeMask);
    followFocus(!windowManagerNamesActiveWindow());
    refresh();
    XFlush(display);
}

X11OwnWindowWatcher::~X11OwnWindowWatcher() {
    connection_->eventPump().removeListener(listener_);
    followFocus(false);
    watchActive(0);
    connection_->deselectEvents(root_, PropertyChangeMask);
    XFlush(connection_->display());
}

bool X11OwnWindowWatcher::ownWindowActive() {
    connection_->eventPump().readPending();
    return own_.load(std::memory_order_acquire);
}

void X11OwnWindowWatcher::takeIn(XEvent& event) {
    switch (event.type) {
    case PropertyNotify:
        if (event.xproperty.window == root_) {
            if (event.xproperty.atom == supportedAtom_) {
                supportedChanged_ = true;
            } else if (event.xproperty.atom == activeWindowAtom_ && !followingFocus_) {
                changed_ = true;
            }
        }
        break;
    case FocusIn:
    case FocusOut:
        if (followingFocus_) {
            changed_ = true;
        }
        break;
    case CreateNotify:
        if (followingFocus_ && event.xcreatewindow.parent == root_) {
            watchFocusOf(event.xcreatewindow.window);
            // It may have had the focus before its events were asked for.
            changed_ = true;
        }
        break;
    case UnmapNotify:
        if (event.xunmap.window == activeWatched_) {
            changed_ = true;
        }
        break;
    case DestroyNotify:
        if (event.xdestroywindow.window == activeWatched_ &&
            event.xdestroywindow.event == activeWatched_) {
            connection_->forgetWindow(activeWatched_);
            activeWatched_ = 0;
            changed_ = true;
        } else if (event.xdestroywindow.event == root_ &&
                   focusWatched_.erase(event.xdestroywindow.window) > 0) {
            connection_->forgetWindow(event.xdestroywindow.window);
        }
        break;
    default:
        break;
    }
}

void X11OwnWindowWatcher::refresh() {
    Display* display = connection_->display();
    WindowOwner owner;
    if (followingFocus_) {
        owner = readFocusOwner(display, pidAtom_);
    } else {
        const std::optional<unsigned long> active = readActiveWindow(display, activeWindowAtom_);
        watchActive(active.value_or(0));
        // A window manager may leave a window that went away named active when no other window
        // takes its place; the keys then go to no window of ours.
        XWindowAttributes attributes{};
        if (active && XGetWindowAttributes(display, *active, &attributes) != 0 &&
            attributes.map_state == IsViewable) {
            owner = readWindowOwner(display, *active, pidAtom_);
        }
    }
    own_.store(isOwnWindow(owner, processId_, hostName_), std::memory_order_release);
}

bool X11OwnWindowWatcher::windowManagerNamesActiveWindow() {
    Display* display = connection_->display();
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long remaining = 0;
    unsigned char* data = nullptr;
    // A window manager lists a few hundred atoms at most.
    const int status = XGetWindowProperty(display, root_, supportedAtom_, 0, 4096, False, XA_ATOM,
                                          &type, &format, &count, &remaining, &data);
    bool named = false;
    if (status == Success && type == XA_ATOM && format == 32 && data != nullptr) {
        const auto* atoms = reinterpret_cast<const unsigned long*>(data);
        for (unsigned long i = 0; i < count && !named; ++i) {
            named = atoms[i] == activeWindowAtom_;
        }
    }
    if (data != nullptr) {
        XFree(data);
    }
    return named;
}

void X11OwnWindowWatcher::followFocus(bool follow) {
    if (follow == followingFocus_) {
        return;
    }
    followingFocus_ = follow;
    if (follow) {
        watchActive(0);
    } else {
        for (const unsigned long window : focusWatched_) {
            connection_->deselectEvents(window, FocusChangeMask);
        }
        focusWatched_.clear();
        connection_->deselectEvents(root_, kFocusRootMask);
        return;
    }
    // New windows are announced from here on; those already there are listed.
    connection_->selectEvents(root_, kFocusRootMask);
    Display* display = connection_->display();
    Window root = 0;
    Window parent = 0;
    Window* children = nullptr;
    unsigned int count = 0;
    if (XQueryTree(display, root_, &root, &parent, &children, &count) != 0) {
        for (unsigned int i = 0; i < count; ++i) {
            watchFocusOf(children[i]);
        }
    }
    if (children != nullptr) {
        XFree(children);
    }
}

void X11OwnWindowWatcher::watchActive(unsigned long window) {
    if (window == activeWatched_) {
        return;
    }
    // The window may be gone meanwhile; the connection counts the failed request.
    if (activeWatched_ != 0) {
        connection_->deselectEvents(activeWatched_, StructureNotifyMask);
    }
    activeWatched_ = window;
    if (activeWatched_ != 0) {
        connection_->selectEvents(activeWatched_, StructureNotifyMask);
    }
}

void X11OwnWindowWatcher::watchFocusOf(unsigned long window) {
    // A window gone meanwhile makes the request fail; the connection counts the error.
    if (focusWatched_.insert(window).second) {
        connection_->selectEvents(window, FocusChangeMask);
    }
}

} // namespace tarnic::x11
