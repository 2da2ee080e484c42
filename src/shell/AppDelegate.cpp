#include "shell/AppDelegate.h"

#include "core/platform/AccessibilityTrust.h"
#include "shell/Alert.h"
#include "shell/AlertPresenter.h"
#include "shell/VersionGate.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QMetaObject>

#include <cstdio>
#include <utility>

namespace tarnic {
namespace {

// One alert for a withdrawn release and for a machine that is offline: the program cannot tell
// the two apart.
Alert unsupportedVersionAlert() {
    Alert alert;
    alert.text = QStringLiteral("Version you're using is no longer supported!");
    alert.informativeText = QStringLiteral("Update Tarnic Pro or check Internet connection .");
    alert.buttons = {QStringLiteral("Ok")};
    alert.icon = QMessageBox::Warning;
    return alert;
}

// The application's busy cursor for as long as it lives.
class BusyCursor {
public:
    BusyCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyCursor() { QGuiApplication::restoreOverrideCursor(); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};

} // namespace

AppDelegate::AppDelegate(const AccessibilityTrust& trust, QString siteUrl, AlertPresenter& alerts,
                         std::chrono::milliseconds versionLoadTimeout, QObject* parent)
    : QObject(parent), trust_(trust), siteUrl_(std::move(siteUrl)), alerts_(alerts),
      versionLoadTimeout_(versionLoadTimeout) {}

void AppDelegate::applicationDidFinishLaunching() {
    // Only a diagnostic: start-up goes on the same way without trust.
    std::printf("AXIsProcessTrusted %s\n", trust_.isProcessTrusted() ? "true" : "false");
    std::fflush(stdout);

    VersionGateResult gate = VersionGateResult::NoUrl;
    {
        // The window takes no input while the check waits; the cursor says so.
        const BusyCursor busy;
        gate = checkVersionSupport(siteUrl_, versionLoadTimeout_);
    }
    if (gate != VersionGateResult::Failed) {
        return;
    }
    alerts_.run(unsupportedVersionAlert());
    // The alert's only button is also its escape button: however it was dismissed, the
    // application ends. Queued, so that the quit also lands when the event loop has not
    // started yet (QCoreApplication::quit() does nothing outside it).
    QMetaObject::invokeMethod(
        this, [] { QCoreApplication::quit(); }, Qt::QueuedConnection);
}

void AppDelegate::applicationWillTerminate() {}

} // namespace tarnic
