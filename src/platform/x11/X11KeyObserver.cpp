#include "platform/x11/X11KeyObserver.h"

#include "platform/x11/X11Connection.h"

#include <X11/Xlib.h>
#include <X11/Xproto.h>
#include <X11/extensions/record.h>

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <csignal>
#include <mutex>
#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <unistd.h>

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
            const std::lock_guard lock(*control_->lock());
            XRecordProcessReplies(recordDisplay);
        }
    }

    // Replies read while waiting may have brought key events already; they were handled.
    stopFd_ = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (stopFd_ < 0) {
        recording_ = false;
        return;
    }
    keyThread_ = std::thread([this] { runKeyThread(); });
}

X11KeyObserver::~X11KeyObserver() {
    stopKeyThread();
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
    const std::lock_guard lock(*control_->lock());
    router_.addKeyDownHandler(std::move(handler));
}

void X11KeyObserver::addFlagsChangedMonitor(Handler handler) {
    const std::lock_guard lock(*control_->lock());
    router_.addFlagsChangedHandler(std::move(handler));
}

void X11KeyObserver::runKeyThread() {
    // Signals are the main thread's business (it ends the program in order on SIGTERM).
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);

    Display* recordDisplay = recordConnection_->display();
    pollfd descriptors[2] = {{ConnectionNumber(recordDisplay), POLLIN, 0}, {stopFd_, POLLIN, 0}};
    for (;;) {
        if (poll(descriptors, 2, -1) < 0) {
            if (errno == EINTR) {
                continue;
            }
            return;
        }
        if (descriptors[1].revents != 0) {
            return;
        }
        if (descriptors[0].revents != 0) {
            // Reads whatever the socket holds and calls receive() for each complete reply. A
            // socket the server closed ends the process from within (the I/O error handler).
            const std::lock_guard lock(*control_->lock());
            XRecordProcessReplies(recordDisplay);
        }
    }
}

void X11KeyObserver::stopKeyThread() {
    if (keyThread_.joinable()) {
        const std::uint64_t one = 1;
        while (write(stopFd_, &one, sizeof one) < 0 && errno == EINTR) {
        }
        keyThread_.join();
    }
    if (stopFd_ >= 0) {
        close(stopFd_);
        stopFd_ = -1;
    }
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
