#include "support/SpecialFiles.h"

#include <QFile>

#include <cstring>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

bool modeIs(const QString& path, mode_t type) {
    struct stat status {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0 &&
           (status.st_mode & S_IFMT) == type;
}

} // namespace

bool makeNamedPipe(const QString& path) {
    return ::mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
}

BoundSocket::BoundSocket(const QString& path) : fd_(::socket(AF_UNIX, SOCK_STREAM, 0)) {
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (fd_ < 0 || static_cast<std::size_t>(name.size()) >= sizeof address.sun_path) {
        return;
    }
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    bound_ = ::bind(fd_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

BoundSocket::~BoundSocket() {
    if (fd_ >= 0) {
        ::close(fd_);
    }
}

bool makeSymlink(const QString& target, const QString& path) {
    return ::symlink(QFile::encodeName(target).constData(), QFile::encodeName(path).constData()) ==
           0;
}

bool makeZeroDeviceLink(const QString& path) {
    const QString node = path + QStringLiteral(".device");
    const bool own =
        ::mknod(QFile::encodeName(node).constData(), S_IFCHR | 0600, makedev(1, 5)) == 0;
    return makeSymlink(own ? node : QStringLiteral("/dev/zero"), path);
}

bool isNamedPipe(const QString& path) {
    return modeIs(path, S_IFIFO);
}

bool isSocket(const QString& path) {
    return modeIs(path, S_IFSOCK);
}

bool isSymlink(const QString& path) {
    return modeIs(path, S_IFLNK);
}

PipeWatchdog::PipeWatchdog(QString path, std::chrono::milliseconds patience)
    : path_(std::move(path)), thread_([this, patience] { watch(patience); }) {}

PipeWatchdog::~PipeWatchdog() {
    {
        std::lock_guard lock(mutex_);
        dismissed_ = true;
    }
    wake_.notify_all();
    thread_.join();
}

void PipeWatchdog::watch(std::chrono::milliseconds patience) {
    std::unique_lock lock(mutex_);
    if (wake_.wait_for(lock, patience, [this] { return dismissed_; })) {
        return;
    }
    fired_ = true;
    const QByteArray name = QFile::encodeName(path_);
    // Until dismissed: a reader may come and go more than once. ENXIO means no reader yet.
    while (!wake_.wait_for(lock, std::chrono::milliseconds(20), [this] { return dismissed_; })) {
        const int fd = ::open(name.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
        if (fd >= 0) {
            ::close(fd);
        }
    }
}
