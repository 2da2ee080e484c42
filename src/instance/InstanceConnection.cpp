#include "instance/InstanceConnection.h"

#include "instance/InstanceProtocol.h"

#include <QPointer>

#include <cerrno>
#include <sys/socket.h>

namespace tarnic {

InstanceConnection::InstanceConnection(UniqueFd socket, QObject* parent)
    : QObject(parent), socket_(std::move(socket)), readable_(socket_.get(), QSocketNotifier::Read) {
    connect(&readable_, &QSocketNotifier::activated, this, &InstanceConnection::readAvailable);
    quiet_.setSingleShot(true);
    connect(&quiet_, &QTimer::timeout, this, &InstanceConnection::finish);
    quiet_.start(instance::kQuietClientWait);
}

void InstanceConnection::readAvailable() {
    for (;;) {
        char chunk[128];
        const ssize_t got = ::recv(socket_.get(), chunk, sizeof(chunk), 0);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) {
            return; // the rest of the line is still on its way
        }
        if (got <= 0) {
            finish(); // the client went, or the connection broke, before a whole line
            return;
        }
        request_.append(chunk, got);
        const qsizetype end = request_.indexOf('\n');
        if (end >= 0) {
            answer(request_.left(end + 1));
            return;
        }
        if (request_.size() > instance::kLongestLine) {
            finish();
            return;
        }
    }
}

void InstanceConnection::answer(const QByteArray& line) {
    if (line == instance::kActivate) {
        // A slot may end the program's copy, this connection with it.
        const QPointer<InstanceConnection> alive(this);
        emit activationRequested();
        if (alive.isNull()) {
            return;
        }
        // A fresh connection has room for one short line, so this never has to wait; a client
        // that has gone meanwhile just misses the answer.
        ssize_t sent = 0;
        do {
            sent = ::send(socket_.get(), instance::kActivated.constData(),
                          static_cast<std::size_t>(instance::kActivated.size()),
                          MSG_NOSIGNAL | MSG_DONTWAIT);
        } while (sent < 0 && errno == EINTR);
    }
    finish();
}

void InstanceConnection::finish() {
    // The notifier lets go of the descriptor before it is closed.
    readable_.setEnabled(false);
    quiet_.stop();
    socket_.reset();
    deleteLater();
}

} // namespace tarnic
