#pragma once

#include "instance/InstanceAddress.h"
#include "instance/InstanceServer.h"

#include <QLockFile>
#include <QObject>
#include <QString>

#include <chrono>

namespace tarnic {

// Keeps one copy of the program per user and display. The first copy to start holds a lock file
// and listens on a Unix-domain socket beside it; a later start finds the lock taken, asks that copy
// over the socket to bring its window to the front, and ends once it has answered.
//
// The lock decides, not the socket: two starts at the same instant cannot both take it, and
// QLockFile sees through a lock left by a copy that was killed (its process is gone) and takes it
// over. The socket a killed copy leaves behind is removed by the copy that holds the lock before
// it listens. Neither needs a session bus.
//
// Decided in main() before anything else is built: a second start never reads the store, never
// claims keycodes and never observes a key.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    enum class Outcome {
        // This is the only copy: it holds the lock and listens.
        First,
        // Another copy runs and has brought its window to the front: end now.
        HandedOver,
        // Another copy holds the lock but did not answer in time: end now as well.
        Unanswered,
        // The lock could not be used at all (no runtime folder, no permission): this copy runs,
        // without the guard.
        Unguarded,
    };

    struct Timing {
        // How long one try to take the lock may wait for a copy that is just letting go of it.
        std::chrono::milliseconds lockWait{100};
        // How long a later start waits, in all, for the first copy to answer.
        std::chrono::milliseconds answerWait{20000};
    };

    explicit SingleInstance(InstanceAddress address, QObject* parent = nullptr);
    SingleInstance(InstanceAddress address, Timing timing, QObject* parent = nullptr);
    ~SingleInstance() override;
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    // Takes the lock or hands over to the copy that holds it; blocks until one of the two has
    // happened or the time is up. Call once, with a QCoreApplication.
    Outcome start();

    // One line for standard error about what start() found, empty for Outcome::First.
    const QString& report() const { return report_; }

signals:
    // A later start asked this copy, the first, to bring its window to the front. It is answered
    // once the connected slots have returned.
    void activationRequested();

private:
    bool listen();
    QString ownerText() const;

    InstanceAddress address_;
    Timing timing_;
    QLockFile lock_;
    InstanceServer server_;
    QString report_;
};

} // namespace tarnic
