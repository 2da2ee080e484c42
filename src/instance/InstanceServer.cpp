#include "instance/InstanceServer.h"

#include "instance/InstanceConnection.h"
#include "instance/UnixSocketAddress.h"

#include <QFile>
#include <QSocketNotifier>

#include <cerrno>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnic {

namespace {

// Later starts that may wait at once to be taken: two starts at the same instant are a handful.
constexpr int kPendingConnections = 50;

} // namespace

InstanceServer::InstanceServer(QObject* parent) : QObject(parent) {}

InstanceServer::~InstanceServer() {
    close();
}

void InstanceServer::removeStale(const QString& path) {
    ::unlink(QFile::encodeName(path).constData());
}

bool InstanceServer::listen(const QString& path) {
    close();
    const auto address = unixSocketAddress(path);
    if (!address) {
        error_ = QStringLiteral("the path is too long for a socket");
        return false;
    }
    UniqueFd socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    struct stat made {};
    if (!socket.valid() ||
        ::bind(socket.get(), reinterpret_cast<const sockaddr*>(&*address), sizeof(*address)) != 0 ||
        ::stat(address->sun_path, &made) != 0 || ::listen(socket.get(), kPendingConnections) != 0) {
        error_ = systemErrorText(errno);
        return false;
    }
    socket_ = std::move(socket);
    path_ = path;
    device_ = made.st_dev;
    inode_ = made.st_ino;
    error_.clear();
    incoming_ = std::make_unique<QSocketNotifier>(socket_.get(), QSocketNotifier::Read);
    connect(incoming_.get(), &QSocketNotifier::activated, this, &InstanceServer::acceptPending);
    return true;
}

void InstanceServer::close() {
    if (!socket_.valid()) {
        return;
    }
    // The notifier lets go of the descriptor before it is closed.
    incoming_.reset();
    // Another copy may have put its own socket at the path since (after this one was killed and
    // its lock taken over, say): only this server's own file goes.
    const QByteArray path = QFile::encodeName(path_);
    struct stat now {};
    if (::stat(path.constData(), &now) == 0 && now.st_dev == device_ && now.st_ino == inode_) {
        ::unlink(path.constData());
    }
    socket_.reset();
}

void InstanceServer::acceptPending() {
    for (;;) {
        UniqueFd client(::accept4(socket_.get(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
        if (!client.valid()) {
            if (errno == EINTR || errno == ECONNABORTED) {
                continue;
            }
            return; // none left (EAGAIN), or none to be had now: the notifier calls again
        }
        auto* connection = new InstanceConnection(std::move(client), this);
        // Its notifier also reports a request that came with the connection.
        connect(connection, &InstanceConnection::activationRequested, this,
                &InstanceServer::activationRequested);
    }
}

} // namespace tarnic
