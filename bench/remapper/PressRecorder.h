#pragma once

#include <QString>

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

struct _XDisplay;

namespace tarnic::bench {

// The bench's own RECORD client: stamps every key press the X server records (from all clients,
// the tools' XTest taps included) with CLOCK_MONOTONIC as it is read, on a thread of its own,
// real-time when the system allows it, so that it reads each press as soon as the server has
// sent it. The server hands a recorded press to every recording client in the same flush: the
// stamp of a trigger is the moment a remapper (ours, the floor; xbindkeys by its grab, in that
// flush too) can first see it, and the stamp of a tool's keypad press is the moment the server
// has taken its tap and sends it on to the focused window. One reader, one clock, in the
// server's order. Needs XInitThreads() before any other Xlib call of the process.
class PressRecorder {
public:
    struct Press {
        unsigned keycode = 0;
        long long seenNs = 0;
    };

    explicit PressRecorder(const QString& display);
    ~PressRecorder();
    PressRecorder(const PressRecorder&) = delete;
    PressRecorder& operator=(const PressRecorder&) = delete;

    // Whether the recording has begun.
    bool ok() const { return started_; }
    // Whether the reading thread runs with a real-time priority.
    bool realtime() const { return realtime_; }
    // The presses of keys `accept` takes seen at or after `fromNs`, oldest first.
    std::vector<long long> pressesOf(const std::function<bool(unsigned keycode)>& accept,
                                     long long fromNs) const;

    void record(unsigned keycode, long long seenNs);
    void markStarted() { started_ = true; }

private:
    void run();

    _XDisplay* control_ = nullptr;
    _XDisplay* data_ = nullptr;
    unsigned long context_ = 0;
    std::atomic<bool> started_{false};
    std::atomic<bool> stop_{false};
    std::atomic<bool> realtime_{false};
    mutable std::mutex mutex_;
    std::vector<Press> presses_;
    std::thread thread_;
};

} // namespace tarnic::bench
