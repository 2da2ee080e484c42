#pragma once

#include "app/AfterFirstPaint.h"
#include "core/platform/Platform.h"
#include "core/remapper/RemapperSession.h"
#include "gui/EditorController.h"
#include "gui/FileExchangeController.h"
#include "gui/InventoryPanelController.h"
#include "gui/LayoutKeyNames.h"
#include "gui/MainWindow.h"
#include "gui/TapRelay.h"
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
// its own meanwhile) and the options file, the platform, the window with its menus, its three
// controllers (the hotkey editor, the file exchange, the inventory panel), the remapper session
// with its game-detection timer, and the delegate. Closing the window, or hiding the
// application, ends it. `main` runs one; the
// window tests run one on the recording fakes.
class Application {
public:
    // The store as the thread that reads it at start hands it over.
    struct OpenedStore {
        std::unique_ptr<QSettings> settings;
        // The store was empty, and the thread has stored the catalogue in it.
        bool catalogueStored = false;
    };
    // What differs between the program and its tests. The program uses the defaults.
    struct Options {
        // The maker's site, for the version gate.
        QString siteUrl;
        // Where the version gate's alert and the import's message go; null: a real message box.
        AlertPresenter* alerts = nullptr;
        std::chrono::milliseconds gameDetectionInterval{GameDetectionTimer::kIntervalMs};
        // The first frame waits for nothing else; a window that opens covered, and so gets no
        // paint, still finishes launching this long after start().
        std::chrono::milliseconds launchAtTheLatest{500};

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
    // table has painted (or, for a window that opens covered, `launchAtTheLatest` after the start):
    // the trust line, then the version gate. The application's icon is looked up in the icon theme
    // while the gate waits: the lookup reads the theme's whole index, and nothing in the first
    // frame shows the icon. Call once.
    void start();

    QSettings& store() { return *store_.settings; }
    Platform& platform() { return platform_; }
    EditorController& editor() { return editor_; }
    FileExchangeController& fileExchange() { return fileExchange_; }
    InventoryPanelController& inventoryPanel() { return inventoryPanel_; }
    // The inventory keys as the panel shows them; the remapper session has a copy.
    const InventoryBindings& inventoryBindings() const { return inventoryBindings_; }
    RemapperSession& remapperSession() { return remapperSession_; }
    // Null until start().
    GameDetectionTimer* gameDetectionTimer() { return gameDetectionTimer_.get(); }
    TapRelay& tapRelay() { return tapRelay_; }
    MainWindow& window() { return window_; }
    AppDelegate& delegate() { return delegate_; }

private:
    // Ends the application; nothing is saved at this point.
    static void windowWillClose();
    // Where alerts go: the tests' presenter, else real message boxes.
    AlertPresenter& alerts();
    // Hands the keys' names in the player's layout to the editor and the panel.
    void setKeyNames();

    Options options_;
    // First: from here on a fatal error is also shown in a message box.
    FatalAlerts fatalAlerts_;
    // The store is read on a thread of its own while the window is built: reading and parsing the
    // whole list is the largest piece of start-up that needs no GUI. It is waited for before the
    // controllers, the first to use it.
    std::future<OpenedStore> storeReading_;
    Platform platform_;
    MainWindow window_;
    OpenedStore store_;
    std::unique_ptr<QSettings> programOptions_;
    MessageBoxAlertPresenter messageBoxes_;
    // The six slot bindings and their options: the panel edits them, and the remapper session
    // gets a copy at every change.
    InventoryBindings inventoryBindings_;
    EditorController editor_;
    FileExchangeController fileExchange_;
    InventoryPanelController inventoryPanel_;
    // Before the session: the remapper tells it of every tap, on the key thread, until the session
    // is gone. It shows them in the panel's line under the slots.
    TapRelay tapRelay_;
    RemapperSession remapperSession_;
    std::unique_ptr<GameDetectionTimer> gameDetectionTimer_;
    // The keys' names as the player's layout prints them; made by start().
    std::unique_ptr<LayoutKeyNames> keyNames_;
    std::unique_ptr<AfterFirstPaint> afterFirstPaint_;
    AppDelegate delegate_;
};

} // namespace tarnic
