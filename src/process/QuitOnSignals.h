#pragma once

#include <QObject>

#include <memory>

class QSocketNotifier;

namespace tarnic {

// Ends the application in order when the process gets SIGTERM, SIGINT or SIGHUP: the signal
// leaves the event loop (as closing the main window does), so main() returns and every
// destructor runs; the X11 backend gives back the keycodes it claimed in its own.
//
// A signal handler may do almost nothing, so it only writes the signal's number into a pipe;
// the event loop reads the pipe and asks the application to quit. A second signal of the same
// kind ends the process at once, as if no handler were installed, in case the orderly end hangs.
//
// One instance at a time, made on the main thread once the QCoreApplication exists; the
// previous handlers come back when it is destroyed.
class QuitOnSignals : public QObject {
public:
    explicit QuitOnSignals(QObject* parent = nullptr);
    ~QuitOnSignals() override;
    QuitOnSignals(const QuitOnSignals&) = delete;
    QuitOnSignals& operator=(const QuitOnSignals&) = delete;

private:
    void readPipe();

    int readEnd_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace tarnic
