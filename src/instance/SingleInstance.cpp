#include "instance/SingleInstance.h"

#include "instance/AskFirstCopy.h"

#include <QCoreApplication>
#include <QDir>
#include <QThread>

namespace tarnic {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kRetryPause{50};
constexpr std::chrono::milliseconds kConnectWait{500};

} // namespace

SingleInstance::SingleInstance(InstanceAddress address, QObject* parent)
    : SingleInstance(std::move(address), Timing{}, parent) {}

SingleInstance::SingleInstance(InstanceAddress address, Timing timing, QObject* parent)
    : QObject(parent), address_(std::move(address)), timing_(timing), lock_(address_.lockPath()) {
    // Only a lock whose process is gone is stale: a copy that has run for days still holds it.
    lock_.setStaleLockTime(0);
    connect(&server_, &InstanceServer::activationRequested, this,
            &SingleInstance::activationRequested);
}

SingleInstance::~SingleInstance() {
    server_.close();
}
SingleInstance::Outcome SingleInstance::start() {
    if (address_.folder().isEmpty() || !QDir(address_.folder()).exists()) {
        report_ = QStringLiteral("Tarnic Pro: there is no runtime folder to keep its lock in, so a "
                                 "second start on this display is not prevented.");
        return Outcome::Unguarded;
    }
    const Clock::time_point deadline = Clock::now() + timing_.answerWait;
    for (;;) {
        if (lock_.tryLock(static_cast<int>(timing_.lockWait.count()))) {
            if (!listen()) {
                return Outcome::Unguarded;
            }
            return Outcome::First;
        }
        if (lock_.error() != QLockFile::LockFailedError) {
            report_ = QStringLiteral("Tarnic Pro: cannot use the lock file \"%1\", so a second "
                                     "start on this display is not prevented.")
                          .arg(address_.lockPath());
            return Outcome::Unguarded;
        }
        // Another copy holds the lock. It may not listen yet (it started at the same instant), or
        // may be ending (it stops listening first, then lets go of the lock): try again, both ways.
        if (askFirstCopy(address_.serverPath(), deadline, kConnectWait)) {
            report_ = QStringLiteral("Tarnic Pro is already running on this display%1; its "
                                     "window was brought to the front.")
                          .arg(ownerText());
            return Outcome::HandedOver;
        }
        if (Clock::now() >= deadline) {
            report_ = QStringLiteral("Tarnic Pro is already running on this display%1 but did "
                                     "not answer; this start ends.")
                          .arg(ownerText());
            return Outcome::Unanswered;
        }
        QThread::msleep(static_cast<unsigned long>(kRetryPause.count()));
    }
}

bool SingleInstance::listen() {
    // A socket file found here was left by a copy that was killed: the lock is ours now, so no
    // running copy listens on it.
    InstanceServer::removeStale(address_.serverPath());
    if (server_.listen(address_.serverPath())) {
        // Ending copies stop taking requests before they let go of the lock, so that a start
        // in between waits for the lock instead of asking a copy that no longer answers.
        connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &server_,
                &InstanceServer::close);
        return true;
    }
    report_ = QStringLiteral("Tarnic Pro: cannot listen on \"%1\" (%2); a later start on "
                             "this display will end without bringing this window to the front.")
                  .arg(address_.serverPath(), server_.errorString());
    return false;
}

QString SingleInstance::ownerText() const {
    qint64 pid = 0;
    QString host;
    QString application;
    if (lock_.getLockInfo(&pid, &host, &application) && pid > 0) {
        return QStringLiteral(" (process %1)").arg(pid);
    }
    return QString();
}

} // namespace tarnic
