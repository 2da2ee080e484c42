#include "platform/x11/X11EventPump.h"

#include "core/platform/NotifyAll.h"

#include <QAbstractEventDispatcher>
#include <QSocketNotifier>
#include <QTimer>

#include <X11/Xlib.h>

#include <algorithm>
#include <chrono>

namespace tarnic::x11 {

namespace {

// A key holds the lock for microseconds, a keymap claim for a few round trips. Longer than this,
// the key thread is waiting for something else (a fatal error on screen), and the main thread
// must not wait with it.
constexpr std::chrono::milliseconds kLockPatience{100};
constexpr std::chrono::milliseconds kRetryAfter{20};

} // namespace

X11EventPump::X11EventPump(Display* display, std::shared_ptr<KeyPathLock> lock)
    : display_(display), lock_(std::move(lock)) {
    notifier_ = std::make_unique<QSocketNotifier>(ConnectionNumber(display), QSocketNotifier::Read);
    // While the key thread holds the lock, the notifier goes off again as long as the socket has
    // data; should the key thread read it meanwhile, it hands the events out itself.
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
        const std::unique_lock lock(*lock_, kLockPatience);
        if (lock.owns_lock()) {
            readPending();
        }
    });
    if (QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance()) {
        QObject::connect(
            dispatcher, &QAbstractEventDispatcher::aboutToBlock, notifier_.get(), [this] {
                // Xlib's queue is the lock's to guard, as much as the listeners. No waiting here:
                // this runs at every pass of the event loop.
                const std::unique_lock lock(*lock_, std::try_to_lock);
                if (!lock.owns_lock()) {
                    QTimer::singleShot(kRetryAfter, notifier_.get(), [this] { readSoon(); });
                } else if (XEventsQueued(display_, QueuedAlready) > 0) {
                    readPending();
                }
            });
    }
}

void X11EventPump::readSoon() {
    const std::unique_lock lock(*lock_, kLockPatience);
    if (!lock.owns_lock()) {
        QTimer::singleShot(kRetryAfter, notifier_.get(), [this] { readSoon(); });
        return;
    }
    readPending();
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
    const std::lock_guard lock(*lock_);
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
