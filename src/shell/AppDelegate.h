#pragma once

#include "shell/VersionGate.h"

#include <QObject>
#include <QString>

#include <chrono>

namespace tarnic {

class AccessibilityTrust;
class AlertPresenter;

// The application's delegate: reports the accessibility trust at launch and runs the version
// gate, which ends the application when the maker's version-support file cannot be loaded.
// It keeps no state of its own, only the collaborators it was given.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    // Checks the site at `siteUrl` and shows its alert through `alerts`. `versionLoadTimeout`
    // bounds the wait for the version-support file; the program always uses the default, tests
    // shorten it.
    AppDelegate(const AccessibilityTrust& trust, QString siteUrl, AlertPresenter& alerts,
                std::chrono::milliseconds versionLoadTimeout = kVersionLoadTimeout,
                QObject* parent = nullptr);

public slots:
    // Once the main window is up and the event loop runs: prints the trust line on standard
    // output, then runs the version gate, with a busy cursor while it waits. A failed gate
    // shows the alert and quits the application (also when called before the event loop has
    // started).
    void applicationDidFinishLaunching();
    // Hung on QCoreApplication::aboutToQuit. The store already holds everything the operations
    // stored while they ran, so there is nothing to do.
    void applicationWillTerminate();

private:
    const AccessibilityTrust& trust_;
    const QString siteUrl_;
    AlertPresenter& alerts_;
    const std::chrono::milliseconds versionLoadTimeout_;
};

} // namespace tarnic
