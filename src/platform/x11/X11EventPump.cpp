#include "platform/x11/X11EventPump.h"

#include "core/platform/NotifyAll.h"

#include <QAbstractEventDispatcher>
#include <QSocketNotifier>

#include <X11/Xlib.h>

#include <algorithm>

namespace tarnic::x11 {

X11EventPump::X11EventPump(Display* display) : display_(display) {
    notifier_ = std::make_unique<QSocketNotifier>(ConnectionNumber(display), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this] { readPending(); });
    if (QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance()) {
        QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, notifier_.get(),
                         [this] {
                             if (XEventsQueued(display_, QueuedAlready) > 0) {
                                 readPending();
                             }
                         });
    }
}

X11EventPump::~X11EventPump() = default;

int X11EventPump::addListener(EventHandler onEvent, SettledHandler settled) {
    const int id = nextId_++;
    listeners_.push_back({id, std::move(onEvent), std::move(settled)});
    return id;
}

void X11EventPump::removeListener(int id) {
    std::erase_if(listeners_, [id](const Listener& listener) { return listener.id == id; });
}

void X11EventPump::readPending() {
    if (reading_) {
        return;
    }
    reading_ = true;
    bool any = false;
    // QueuedAfterReading reads what the socket holds without waiting; no request goes out.
    while (XEventsQueued(display_, QueuedAfterReading) > 0) {
        XEvent event{};
        XNextEvent(display_, &event);
        any = true;
        // A listener may add or remove listeners while it runs.
        notifyAllOf(listeners_, &Listener::onEvent, event);
    }
    reading_ = false;
    if (any) {
        notifyAllOf(listeners_, &Listener::settled);
    }
}

} // namespace tarnic::x11
