#pragma once

// While it lives, the calling thread meets file permissions as an ordinary user does. A test
// process that runs as root (as it does in CI) writes into read-only folders and over read-only
// files; a player cannot. Only the calling thread changes (the raw system calls, not the C
// library's wrappers, which change every thread), and it is root again afterwards. A process
// that is not root already is an ordinary user: then nothing changes.
class PlainUserThread {
public:
    PlainUserThread();
    ~PlainUserThread();
    PlainUserThread(const PlainUserThread&) = delete;
    PlainUserThread& operator=(const PlainUserThread&) = delete;

    // False when the thread could not give up root.
    bool isValid() const { return valid_; }

private:
    bool wasRoot_ = false;
    bool valid_ = true;
};
