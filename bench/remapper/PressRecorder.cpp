#include "PressRecorder.h"

#include <X11/Xlib.h>
#include <X11/Xproto.h>
#include <X11/extensions/record.h>

#include <chrono>
#include <ctime>
#include <poll.h>
#include <pthread.h>
#include <sched.h>

namespace tarnic::bench {

namespace {

long long monotonicNs() {
    timespec t{};
    clock_gettime(CLOCK_MONOTONIC, &t);
    return static_cast<long long>(t.tv_sec) * 1000000000LL + t.tv_nsec;
}

void receive(XPointer closure, XRecordInterceptData* data) {
    const long long seen = monotonicNs();
    auto* self = reinterpret_cast<PressRecorder*>(closure);
    if (data->category == XRecordStartOfData) {
        self->markStarted();
    } else if (data->category == XRecordFromServer && data->data != nullptr) {
        const auto* event = reinterpret_cast<const xEvent*>(data->data);
        if ((event->u.u.type & 0x7f) == KeyPress) {
            self->record(event->u.u.detail, seen);
        }
    }
    XRecordFreeData(data);
}

} // namespace

PressRecorder::PressRecorder(const QString& display) {
    const QByteArray name = display.toLocal8Bit();
    control_ = XOpenDisplay(name.constData());
    data_ = XOpenDisplay(name.constData());
    int major = 0;
    int minor = 0;
    if (control_ == nullptr || data_ == nullptr || !XRecordQueryVersion(control_, &major, &minor)) {
        return;
    }
    presses_.reserve(100000);
    XRecordRange* range = XRecordAllocRange();
    range->device_events.first = KeyPress;
    range->device_events.last = KeyPress;
    XRecordClientSpec clients = XRecordAllClients;
    context_ = XRecordCreateContext(control_, 0, &clients, 1, &range, 1);
    XFree(range);
    XSync(control_, False);
    if (context_ == 0 || XRecordEnableContextAsync(data_, context_, receive,
                                                   reinterpret_cast<XPointer>(this)) == 0) {
        return;
    }
    XFlush(data_);
    thread_ = std::thread([this] { run(); });
    sched_param priority{};
    priority.sched_priority = sched_get_priority_min(SCHED_FIFO);
    realtime_ = pthread_setschedparam(thread_.native_handle(), SCHED_FIFO, &priority) == 0;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!started_ && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

PressRecorder::~PressRecorder() {
    stop_ = true;
    if (thread_.joinable()) {
        thread_.join();
    }
    if (context_ != 0) {
        XRecordDisableContext(control_, context_);
        XRecordFreeContext(control_, context_);
        XSync(control_, False);
    }
    if (data_ != nullptr) {
        XCloseDisplay(data_);
    }
    if (control_ != nullptr) {
        XCloseDisplay(control_);
    }
}

void PressRecorder::run() {
    while (!stop_) {
        pollfd descriptor{ConnectionNumber(data_), POLLIN, 0};
        if (poll(&descriptor, 1, 100) > 0) {
            XRecordProcessReplies(data_);
        }
    }
}

void PressRecorder::record(unsigned keycode, long long seenNs) {
    std::lock_guard lock(mutex_);
    presses_.push_back({keycode, seenNs});
}

std::vector<long long> PressRecorder::pressesOf(const std::function<bool(unsigned keycode)>& accept,
                                                long long fromNs) const {
    std::lock_guard lock(mutex_);
    std::vector<long long> result;
    for (const Press& press : presses_) {
        if (accept(press.keycode) && press.seenNs >= fromNs) {
            result.push_back(press.seenNs);
        }
    }
    return result;
}

} // namespace tarnic::bench
