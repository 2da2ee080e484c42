#pragma once

#include "app/AfterFirstPaint.h"
#include "core/platform/Platform.h"
#include "core/remapper/RemapperSession.h"
#include "gui/LayoutKeyNames.h"
#include "gui/MainWindow.h"
#include "gui/TapRelay.h"
#include "gui/ViewController.h"
#include "platform/timer/GameDetectionTimer.h"
#include "shell/AppDelegate.h"
#include "shell/FatalAlerts.h"
#include "shell/MessageBoxAlertPresenter.h"

#include <QSettings>
#include <QString>

#include <chrono>
#include <future>
#include <memory>

namespace tarnic {

class AlertPresenter;

// Names the process for the desktop and the store (organization, application, desktop entry).
// Call right after the QApplication is made, before anything else. The window icon comes later,
// from Application::start().
void setApplicationIdentity();

// The whole program, put together in one place, in start-up order: the store (read on a thread of
// its own meanwhile) and the options file, the platform, the window with its menus, the controller
// with the remapper session and its game-detection timer, and the delegate. `main` runs one; the
// window tests run one on the recording fakes.
class Application {
public:
    // What differs between the program and its tests. The program uses the defaults.
    struct Options {
        // The maker's site, for the version gate.
        QString siteUrl;
        // Where the version gate's alert and the import's message go; null: a real message box.
        AlertPresenter* alerts = nullptr;
        std::chrono::milliseconds gameDetectionInterval{GameDetectionTimer::kIntervalMs};

        Options();
    };

    // Opens the store and the options file and builds everything on `platform`; nothing is shown
    // or loaded yet. Needs the QApplication.
    explicit Application(Platform platform, Options options = Options());
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    // Loads the view (the store's bindings and list, the template, row 0), installs the key
    // observers and the game-detection timer, and shows the window. Launching finishes once the
    // event loop runs: the trust line, then the version gate. The application's icon is looked
    // up in the icon theme once the table has painted: the lookup reads the theme's whole index,
    // and nothing in the first frame shows the icon. Call once.
    void start();

    QSettings& store() { return *store_; }
    Platform& platform() { return platform_; }
    ViewController& controller() { return controller_; }
    RemapperSession& remapperSession() { return remapperSession_; }
    // Null until start().
    GameDetectionTimer* gameDetectionTimer() { return gameDetectionTimer_.get(); }
    TapRelay& tapRelay() { return tapRelay_; }
    MainWindow& window() { return window_; }
    AppDelegate& delegate() { return delegate_; }

private:
    Options options_;
    // First: from here on a fatal error is also shown in a message box.
    FatalAlerts fatalAlerts_;
    // The store is read on a thread of its own while the window is built: reading and parsing the
    // whole list is the largest piece of start-up that needs no GUI. It is waited for before the
    // controller, the first to use it.
    std::future<std::unique_ptr<QSettings>> storeReading_;
    Platform platform_;
    MainWindow window_;
    std::unique_ptr<QSettings> store_;
    std::unique_ptr<QSettings> programOptions_;
    ViewController controller_;
    // Before the session: the remapper tells it of every tap until the session is gone. It shows
    // them in the controller's line under the slots.
    TapRelay tapRelay_;
    // After the controller: it reads the controller's six bindings and the options on every key
    // press.
    RemapperSession remapperSession_;
    std::unique_ptr<GameDetectionTimer> gameDetectionTimer_;
    // The keys' names as the player's layout prints them; made by start().
    std::unique_ptr<LayoutKeyNames> keyNames_;
    std::unique_ptr<AfterFirstPaint> afterFirstPaint_;
    MessageBoxAlertPresenter messageBoxes_;
    AppDelegate delegate_;
};

} // namespace tarnic
