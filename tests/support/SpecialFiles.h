#pragma once

#include <QString>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

// Things a path can name besides a regular file, made for a test.
// A named pipe (mkfifo); false when it could not be made.
bool makeNamedPipe(const QString& path);
// A Unix-domain socket bound at `path`, open until the object goes.
class BoundSocket {
public:
    explicit BoundSocket(const QString& path);
    ~BoundSocket();
    BoundSocket(const BoundSocket&) = delete;
    BoundSocket& operator=(const BoundSocket&) = delete;
    bool isBound() const { return bound_; }

private:
    int fd_ = -1;
    bool bound_ = false;
};
// A character device that never ends (a zero device) as a symbolic link at `path`: to a node of
// its own beside it where the test may make one (root), else to /dev/zero. A program that wrote
// through the link as root would otherwise replace the machine's own /dev/zero.
bool makeZeroDeviceLink(const QString& path);
// A symbolic link at `path` to `target`.
bool makeSymlink(const QString& target, const QString& path);
// Whether `path` itself (not what a link names) is a named pipe, a socket, a symbolic link.
bool isNamedPipe(const QString& path);
bool isSocket(const QString& path);
bool isSymlink(const QString& path);

// Frees whoever is stuck opening a named pipe for reading: if it has not been dismissed within
// `patience`, it opens the pipe for writing (which lets a waiting reader's open() return) and
// closes it again (which gives that reader the end of the file). A test that would hang for good
// on a program that opens the pipe ends instead, and fired() tells it so.
class PipeWatchdog {
public:
    explicit PipeWatchdog(QString path,
                          std::chrono::milliseconds patience = std::chrono::seconds(10));
    ~PipeWatchdog();
    PipeWatchdog(const PipeWatchdog&) = delete;
    PipeWatchdog& operator=(const PipeWatchdog&) = delete;

    // Whether it had to free a reader (or tried to).
    bool fired() const { return fired_; }

private:
    void watch(std::chrono::milliseconds patience);

    QString path_;
    std::mutex mutex_;
    std::condition_variable wake_;
    bool dismissed_ = false;
    std::atomic<bool> fired_{false};
    std::thread thread_;
};
