#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>

namespace tarnic::test {

// A private X server for one test: Xvfb on a display number it picks itself (-displayfd), with
// -noreset so that the keyboard state (Num Lock) survives its clients, and optionally openbox,
// which keeps _NET_ACTIVE_WINDOW. Both stop when the session ends.
class XvfbSession {
public:
    // `serverArguments` are added to Xvfb's own (for example "-extension", "RECORD" to take
    // RECORD away).
    explicit XvfbSession(bool withWindowManager, const QStringList& serverArguments = {});
    ~XvfbSession();
    XvfbSession(const XvfbSession&) = delete;
    XvfbSession& operator=(const XvfbSession&) = delete;

    bool ok() const { return error_.isEmpty(); }
    const QString& error() const { return error_; }
    // ":N"
    const QString& display() const { return display_; }
    // The caller's environment with DISPLAY set and Qt on xcb.
    QProcessEnvironment environment() const;

    // Kills the X server outright (SIGKILL), as a crash would end it, and waits until it is
    // gone; true if it is.
    bool killServer();

private:
    bool startServer(const QStringList& serverArguments);
    bool startWindowManager();

    QProcess server_;
    QProcess windowManager_;
    QString display_;
    QString error_;
};

} // namespace tarnic::test
