#include "support/XvfbSession.h"

#include "support/ChildProcess.h"

#include <QByteArray>

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <chrono>
#include <poll.h>
#include <thread>

namespace tarnic::test {

namespace {

bool windowManagerRunning(Display* display) {
    const Atom check = XInternAtom(display, "_NET_SUPPORTING_WM_CHECK", False);
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long remaining = 0;
    unsigned char* data = nullptr;
    const int status = XGetWindowProperty(display, DefaultRootWindow(display), check, 0, 1, False,
                                          XA_WINDOW, &type, &format, &count, &remaining, &data);
    const bool running = status == Success && count == 1;
    if (data != nullptr) {
        XFree(data);
    }
    return running;
}

// Waits up to `timeout` for the window to be reparented (taken over by the window manager).
bool reparentedWithin(Display* display, Window window, std::chrono::milliseconds timeout) {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        while (XPending(display) > 0) {
            XEvent event{};
            XNextEvent(display, &event);
            if (event.type == ReparentNotify && event.xreparent.window == window) {
                return true;
            }
        }
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0) {
            return false;
        }
        pollfd descriptor{ConnectionNumber(display), POLLIN, 0};
        poll(&descriptor, 1, static_cast<int>(left.count()));
    }
}

// openbox announces itself before it is ready to manage windows, and drops a map request that
// comes too early. Ready means: it takes over a probe window (mapped again until it does).
bool windowManagerManages(Display* display, std::chrono::steady_clock::time_point deadline) {
    const Window probe =
        XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 10, 10, 0, 0, 0);
    XSelectInput(display, probe, StructureNotifyMask);
    bool managed = false;
    while (!managed && std::chrono::steady_clock::now() < deadline) {
        XUnmapWindow(display, probe);
        XMapWindow(display, probe);
        XFlush(display);
        managed = reparentedWithin(display, probe, std::chrono::milliseconds(300));
    }
    XDestroyWindow(display, probe);
    XSync(display, False);
    return managed;
}

} // namespace

XvfbSession::XvfbSession(bool withWindowManager, const QStringList& serverArguments) {
    if (startServer(serverArguments) && withWindowManager) {
        startWindowManager();
    }
}

XvfbSession::~XvfbSession() {
    for (QProcess* process : {&windowManager_, &server_}) {
        if (process->state() != QProcess::NotRunning) {
            process->terminate();
            if (!process->waitForFinished(5000)) {
                process->kill();
                process->waitForFinished(5000);
            }
        }
    }
}

QProcessEnvironment XvfbSession::environment() const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", display_);
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.remove("WAYLAND_DISPLAY");
    return environment;
}

bool XvfbSession::killServer() {
    server_.kill();
    return server_.waitForFinished(10000) || server_.state() == QProcess::NotRunning;
}

bool XvfbSession::startServer(const QStringList& serverArguments) {
    // Xvfb writes the display number it chose to standard output once it accepts clients.
    endWithTest(server_);
    server_.setProcessChannelMode(QProcess::SeparateChannels);
    server_.setStandardErrorFile(QProcess::nullDevice());
    server_.start("Xvfb", QStringList{"-displayfd", "1", "-noreset", "-nolisten", "tcp", "-screen",
                                      "0", "1024x768x24"} +
                              serverArguments);
    if (!server_.waitForStarted(10000)) {
        error_ = "Xvfb did not start: " + server_.errorString();
        return false;
    }
    QByteArray output;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!output.contains('\n') && std::chrono::steady_clock::now() < deadline &&
           server_.state() == QProcess::Running) {
        server_.waitForReadyRead(500);
        output += server_.readAllStandardOutput();
    }
    if (!output.contains('\n')) {
        error_ = "Xvfb did not name its display";
        return false;
    }
    display_ = ":" + QString::fromLatin1(output.trimmed());
    return true;
}

bool XvfbSession::startWindowManager() {
    endWithTest(windowManager_);
    windowManager_.setProcessEnvironment(environment());
    windowManager_.setStandardOutputFile(QProcess::nullDevice());
    windowManager_.setStandardErrorFile(QProcess::nullDevice());
    windowManager_.start("openbox", {"--sm-disable"});
    if (!windowManager_.waitForStarted(10000)) {
        error_ = "openbox did not start: " + windowManager_.errorString();
        return false;
    }
    Display* display = XOpenDisplay(display_.toLocal8Bit().constData());
    if (display == nullptr) {
        error_ = "cannot open " + display_;
        return false;
    }
    // The window manager announces itself on the root window; poll for it, bounded.
    bool running = false;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!(running = windowManagerRunning(display)) &&
           std::chrono::steady_clock::now() < deadline &&
           windowManager_.state() == QProcess::Running) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    running = running && windowManagerManages(display, deadline);
    XCloseDisplay(display);
    if (!running) {
        error_ = "openbox did not take over the display";
    }
    return running;
}

} // namespace tarnic::test
