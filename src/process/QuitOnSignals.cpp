#include "process/QuitOnSignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace tarnic {

namespace {

constexpr std::array kSignals = {SIGTERM, SIGINT, SIGHUP};

// Read by the handler, which may touch nothing but a lock-free atomic object.
volatile sig_atomic_t gWriteEnd = -1;
std::array<struct sigaction, kSignals.size()> gPrevious{};

extern "C" void writeSignalToPipe(int signalNumber) {
    const int savedErrno = errno;
    const auto byte = static_cast<unsigned char>(signalNumber);
    // Non-blocking: with the pipe full, a quit is already on its way.
    [[maybe_unused]] const ssize_t written = write(gWriteEnd, &byte, 1);
    errno = savedErrno;
}

} // namespace

QuitOnSignals::QuitOnSignals(QObject* parent) : QObject(parent) {
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    readEnd_ = ends[0];
    gWriteEnd = ends[1];
    notifier_ = std::make_unique<QSocketNotifier>(readEnd_, QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, &QuitOnSignals::readPipe);

    struct sigaction action {};
    action.sa_handler = writeSignalToPipe;
    sigemptyset(&action.sa_mask);
    // SA_RESETHAND: the second signal of a kind takes the default action, ending the process.
    action.sa_flags = SA_RESTART | SA_RESETHAND;
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        sigaction(kSignals[i], &action, &gPrevious[i]);
    }
}

QuitOnSignals::~QuitOnSignals() {
    if (readEnd_ < 0) {
        return;
    }
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        sigaction(kSignals[i], &gPrevious[i], nullptr);
    }
    notifier_.reset();
    const int writeEnd = gWriteEnd;
    gWriteEnd = -1;
    close(writeEnd);
    close(readEnd_);
}

void QuitOnSignals::readPipe() {
    unsigned char byte = 0;
    while (read(readEnd_, &byte, 1) == 1) {
    }
    // Queued, as closing the window does: the loop ends after the current event, and also when
    // the signal is read inside a nested loop (a modal alert) before the main one runs again.
    QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit,
                              Qt::QueuedConnection);
}

} // namespace tarnic
