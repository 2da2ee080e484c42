#include "platform/x11/X11KeyObserver.h"

#include "platform/x11/X11Connection.h"

#include <QSocketNotifier>

#include <X11/Xlib.h>
#include <X11/Xproto.h>
#include <X11/extensions/record.h>

#include <chrono>
#include <poll.h>

namespace tarnic::x11 {

namespace {

// How long the constructor waits for the server to confirm that recording has begun.
constexpr std::chrono::milliseconds kStartTimeout{2000};

} // namespace

// Called by Xlib for each reply of the recording, from within XRecordProcessReplies.
struct RecordCallback {
    static void receive(XPointer closure, XRecordInterceptData* data);
};

X11KeyObserver::X11KeyObserver(std::shared_ptr<X11Connection> control, const char* displayName,
                               std::function<bool()> ownWindowActive,
                               std::function<bool(unsigned xKeycode)> ownTap)
    : control_(std::move(control)), router_(std::move(ownWindowActive), std::move(ownTap)) {
    Display* controlDisplay = control_->display();
    int major = 0;
    int minor = 0;
    if (XRecordQueryVersion(controlDisplay, &major, &minor) == 0) {
        return;
    }
    serverHasRecord_ = true;
    recordConnection_ = X11Connection::open(displayName);
    if (!recordConnection_) {
        return;
    }

    XRecordRange* range = XRecordAllocRange();
    if (range == nullptr) {
        return;
    }
    range->device_events.first = KeyPress;
    range->device_events.last = KeyRelease;
    XRecordClientSpec clients = XRecordAllClients;
    context_ = XRecordCreateContext(controlDisplay, 0, &clients, 1, &range, 1);
    XFree(range);
    if (context_ == 0 || !control_->syncSucceeded()) {
        context_ = 0;
        return;
    }

    Display* recordDisplay = recordConnection_->display();
    if (XRecordEnableContextAsync(recordDisplay, context_, RecordCallback::receive,
                                  reinterpret_cast<XPointer>(this)) == 0) {
        return;
    }
    XFlush(recordDisplay);
    recording_ = true;

    // The server answers the enabling with a start-of-data reply; once it is read, every key
    // pressed from then on is recorded.
    const int fd = ConnectionNumber(recordDisplay);
    const auto deadline = std::chrono::steady_clock::now() + kStartTimeout;
    while (!started_) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0) {
            break;
        }
        pollfd descriptor{fd, POLLIN, 0};
        if (poll(&descriptor, 1, static_cast<int>(left.count())) > 0) {
            XRecordProcessReplies(recordDisplay);
        }
    }

    notifier_ = std::make_unique<QSocketNotifier>(fd, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [this] { readReplies(); });
    // Replies read while waiting may have brought key events already; they were handled.
}

X11KeyObserver::~X11KeyObserver() {
    notifier_.reset();
    if (context_ != 0) {
        Display* controlDisplay = control_->display();
        XRecordDisableContext(controlDisplay, context_);
        XRecordFreeContext(controlDisplay, context_);
        XSync(controlDisplay, False);
    }
    // Closing reads what the recording still sent (its end-of-data reply at least) and hands it
    // to the callback, which must find the router still there: close before the members go.
    closing_ = true;
    recordConnection_.reset();
}

void X11KeyObserver::addKeyDownMonitor(Handler handler) {
    router_.addKeyDownHandler(std::move(handler));
}

void X11KeyObserver::addFlagsChangedMonitor(Handler handler) {
    router_.addFlagsChangedHandler(std::move(handler));
}

void X11KeyObserver::readReplies() {
    // Reads whatever the socket holds and calls receive() for each complete reply.
    XRecordProcessReplies(recordConnection_->display());
}

void RecordCallback::receive(XPointer closure, XRecordInterceptData* intercepted) {
    auto* self = reinterpret_cast<X11KeyObserver*>(closure);
    if (self->closing_) {
        // Keys recorded before the recording stopped are no one's business any more.
    } else if (intercepted->category == XRecordStartOfData) {
        self->started_ = true;
    } else if (intercepted->category == XRecordFromServer && intercepted->data != nullptr &&
               intercepted->data_len * 4 >= sizeof(xEvent)) {
        const auto* event = reinterpret_cast<const xEvent*>(intercepted->data);
        const int type = event->u.u.type & 0x7f;
        const unsigned keycode = event->u.u.detail;
        if (type == KeyPress) {
            self->router_.keyPressed(keycode);
        } else if (type == KeyRelease) {
            self->router_.keyReleased(keycode);
        }
    }
    XRecordFreeData(intercepted);
}

} // namespace tarnic::x11
