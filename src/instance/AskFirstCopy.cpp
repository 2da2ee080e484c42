#include "instance/AskFirstCopy.h"

#include "instance/InstanceProtocol.h"
#include "instance/UniqueFd.h"
#include "instance/UnixSocketAddress.h"

#include <QThread>

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>

namespace tarnic {

namespace {

using Clock = std::chrono::steady_clock;

// How long to wait before asking again while the first copy's queue of connections is full.
constexpr std::chrono::milliseconds kBusyPause{10};

int remainingMs(Clock::time_point deadline) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
    return left.count() > 0 ? static_cast<int>(left.count()) : 0;
}

// Waits until `fd` is ready for `events` (or hung up, which the next read or write reports);
// false once `deadline` has passed without that.
bool waitFor(int fd, short events, Clock::time_point deadline) {
    for (;;) {
        pollfd watched{fd, events, 0};
        const int ready = ::poll(&watched, 1, remainingMs(deadline));
        if (ready > 0) {
            return true;
        }
        if (ready == 0 || errno != EINTR || Clock::now() >= deadline) {
            return false;
        }
    }
}

bool connectBy(int fd, const sockaddr_un& address, Clock::time_point deadline) {
    for (;;) {
        if (::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0) {
            return true;
        }
        if (errno == EINPROGRESS) {
            int error = 0;
            socklen_t size = sizeof(error);
            return waitFor(fd, POLLOUT, deadline) &&
                   ::getsockopt(fd, SOL_SOCKET, SO_ERROR, &error, &size) == 0 && error == 0;
        }
        // A full queue of connections waiting to be taken: the first copy is busy, not gone.
        if (errno != EAGAIN && errno != EINTR) {
            return false;
        }
        if (Clock::now() >= deadline) {
            return false;
        }
        QThread::msleep(static_cast<unsigned long>(std::min<int>(
            static_cast<int>(kBusyPause.count()), std::max(1, remainingMs(deadline)))));
    }
}

bool sendAll(int fd, const QByteArray& data, Clock::time_point deadline) {
    qsizetype sent = 0;
    while (sent < data.size()) {
        const ssize_t written = ::send(fd, data.constData() + sent,
                                       static_cast<std::size_t>(data.size() - sent), MSG_NOSIGNAL);
        if (written > 0) {
            sent += written;
        } else if (written < 0 && errno == EINTR) {
            continue;
        } else if (written < 0 && errno == EAGAIN) {
            if (!waitFor(fd, POLLOUT, deadline)) {
                return false;
            }
        } else {
            return false;
        }
    }
    return true;
}

} // namespace

bool askFirstCopy(const QString& serverPath, Clock::time_point deadline,
                  std::chrono::milliseconds connectWait) {
    const auto address = unixSocketAddress(serverPath);
    if (!address) {
        return false;
    }
    const UniqueFd socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    if (!socket.valid() ||
        !connectBy(socket.get(), *address, std::min(deadline, Clock::now() + connectWait)) ||
        !sendAll(socket.get(), instance::kActivate, deadline)) {
        return false;
    }
    // The first copy answers from its event loop, which may still be busy starting up.
    QByteArray answer;
    while (!answer.contains('\n')) {
        if (answer.size() > instance::kLongestLine || !waitFor(socket.get(), POLLIN, deadline)) {
            return false;
        }
        char chunk[128];
        const ssize_t got = ::recv(socket.get(), chunk, sizeof(chunk), 0);
        if (got > 0) {
            answer.append(chunk, got);
        } else if (got == 0 || (errno != EINTR && errno != EAGAIN)) {
            return false;
        }
    }
    return answer.left(answer.indexOf('\n') + 1) == instance::kActivated;
}

} // namespace tarnic
