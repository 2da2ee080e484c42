#pragma once

#include "shell/AlertPresenter.h"
#include "shell/MessageBoxAlertPresenter.h"

#include <chrono>
#include <future>

namespace tarnic {

// While it lives, a fatal error is also shown in an alert before the program ends, so that a
// player who started it from the desktop's menu learns why; standard error still gets the line
// first, and the program still ends where it met the error. The alert is shown on the GUI thread:
// an error met on another thread is handed over, and that thread waits there until the alert is
// dismissed. While the alert is up, the rest of the program stands still (no timer, no queued
// call, no watched socket runs), so nothing acts on the state that broke.
class FatalAlerts {
public:
    // Alerts go to `alerts`; without one, to a message box when a display shows windows (not on
    // the offscreen or minimal platforms: nobody would see it), else nowhere.
    explicit FatalAlerts(AlertPresenter* alerts = nullptr);
    ~FatalAlerts();
    FatalAlerts(const FatalAlerts&) = delete;
    FatalAlerts& operator=(const FatalAlerts&) = delete;

    // Whether a QApplication runs on a platform that shows windows to someone.
    static bool displayShowsWindows();

    // On the GUI thread, in place of future.get(): while it waits, it shows the alert of a fatal
    // error met by the thread that fulfils the future.
    template <class T> static T take(std::future<T>& future) {
        while (future.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready) {
            showHandedOver();
        }
        return future.get();
    }

    // Shows the alert handed over by another thread, if one waits. GUI thread only.
    static void showHandedOver();

private:
    MessageBoxAlertPresenter messageBox_;
};

} // namespace tarnic
