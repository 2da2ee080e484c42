#pragma once

#include <QString>

#include <chrono>

struct _XDisplay;

namespace tarnic::test {

// The test's own connection: types with XTest, as a keyboard would, and moves the focus.
class XTestDriver {
public:
    explicit XTestDriver(const QString& display);
    ~XTestDriver();
    XTestDriver(const XTestDriver&) = delete;
    XTestDriver& operator=(const XTestDriver&) = delete;

    bool ok() const { return display_ != nullptr; }

    void press(unsigned xKeycode);
    void release(unsigned xKeycode);
    void tap(unsigned xKeycode);

    // Asks the window manager to activate the window (as a pager would), or without one sets the
    // input focus directly; then waits, bounded, until the window has the focus.
    bool focus(unsigned long window, std::chrono::milliseconds timeout);
    unsigned long inputFocus();
    // The window in _NET_ACTIVE_WINDOW on the root window; 0 when none is named.
    unsigned long activeWindow();
    // A mapped window whose WM_CLASS class is `windowClass` (ignoring case), waiting for it up
    // to `timeout`; 0 if none shows up.
    unsigned long waitForWindowOfClass(const QString& windowClass,
                                       std::chrono::milliseconds timeout);

    bool numLockOn();
    void setNumLock(bool on);

private:
    _XDisplay* display_;
};

} // namespace tarnic::test
