#include "platform/x11/X11FrontmostWatcher.h"

#include "core/platform/NotifyAll.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11EventPump.h"
#include "platform/x11/X11FrontmostApplication.h"

#include <X11/Xlib.h>

#include <utility>

namespace tarnic::x11 {

X11FrontmostWatcher::X11FrontmostWatcher(std::shared_ptr<X11Connection> connection)
    : connection_(std::move(connection)) {
    Display* display = connection_->display();
    root_ = DefaultRootWindow(display);
    activeWindowAtom_ = XInternAtom(display, "_NET_ACTIVE_WINDOW", False);
    listener_ = connection_->eventPump().addListener([this](XEvent& event) { takeIn(event); },
                                                     [this] {
                                                         if (std::exchange(changed_, false)) {
                                                             refresh();
                                                         }
                                                     });
    // Listening first, then reading: a change in between is announced, not lost.
    connection_->selectEvents(root_, PropertyChangeMask);
    identifier_ = readFrontmostIdentifier(display, activeWindowAtom_);
    XFlush(display);
}

X11FrontmostWatcher::~X11FrontmostWatcher() {
    connection_->eventPump().removeListener(listener_);
    connection_->deselectEvents(root_, PropertyChangeMask);
    XFlush(connection_->display());
}

void X11FrontmostWatcher::addChangeMonitor(Handler handler) {
    handlers_.push_back(std::move(handler));
}

void X11FrontmostWatcher::takeInChanges() {
    connection_->eventPump().readPending();
}

void X11FrontmostWatcher::takeIn(XEvent& event) {
    // Several changes may arrive together (a window manager may clear the property before it
    // names the new window): the window is read once, after the last of them.
    if (event.type == PropertyNotify && event.xproperty.window == root_ &&
        event.xproperty.atom == activeWindowAtom_) {
        changed_ = true;
    }
}

void X11FrontmostWatcher::refresh() {
    std::optional<std::string> identifier =
        readFrontmostIdentifier(connection_->display(), activeWindowAtom_);
    if (identifier == identifier_) {
        return;
    }
    identifier_ = std::move(identifier);
    notifyAll(handlers_, identifier_);
}

} // namespace tarnic::x11
