#include "files/RegularFileReader.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnic {

namespace {

using Status = FileContents::Status;

FileContents failure(Status status, QString reason) {
    FileContents contents;
    contents.status = status;
    contents.reason = std::move(reason);
    return contents;
}

FileContents systemFailure(int error) {
    // A path that names nothing, or runs through something that is not a folder, is simply not
    // there.
    const Status status = error == ENOENT || error == ENOTDIR ? Status::Missing : Status::Failed;
    return failure(status, qt_error_string(error));
}

FileContents notRegular(mode_t mode) {
    QString kind;
    if (S_ISFIFO(mode)) {
        kind = QStringLiteral("a named pipe");
    } else if (S_ISSOCK(mode)) {
        kind = QStringLiteral("a socket");
    } else if (S_ISCHR(mode)) {
        kind = QStringLiteral("a character device");
    } else if (S_ISBLK(mode)) {
        kind = QStringLiteral("a block device");
    } else if (S_ISDIR(mode)) {
        kind = QStringLiteral("a folder");
    } else {
        kind = QStringLiteral("something else");
    }
    return failure(Status::NotRegular, QStringLiteral("it is %1, not a regular file").arg(kind));
}

class Descriptor {
public:
    explicit Descriptor(int fd) : fd_(fd) {}
    ~Descriptor() {
        if (fd_ >= 0) {
            ::close(fd_);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int get() const { return fd_; }

private:
    int fd_;
};

} // namespace

RegularFileReader::RegularFileReader(qint64 limit) : limit_(limit < 0 ? 0 : limit) {}

FileContents RegularFileReader::read(const QString& path) const {
    return open(path, true);
}

FileContents RegularFileReader::check(const QString& path) const {
    return open(path, false);
}

FileContents RegularFileReader::open(const QString& path, bool readBytes) const {
    const QByteArray name = QFile::encodeName(path);
    if (name.isEmpty()) {
        return systemFailure(ENOENT);
    }
    struct stat status {};
    if (::stat(name.constData(), &status) != 0) {
        return systemFailure(errno);
    }
    if (!S_ISREG(status.st_mode)) {
        return notRegular(status.st_mode);
    }
    Descriptor file(::open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (file.get() < 0) {
        return systemFailure(errno);
    }
    // The path may name something else by now: what counts is what was opened.
    if (::fstat(file.get(), &status) != 0) {
        return systemFailure(errno);
    }
    if (!S_ISREG(status.st_mode)) {
        return notRegular(status.st_mode);
    }
    FileContents contents;
    contents.status = Status::Read;
    if (!readBytes) {
        return contents;
    }
    const auto tooLarge = [this] {
        return failure(Status::TooLarge, QStringLiteral("it is larger than %1 bytes").arg(limit_));
    };
    if (status.st_size > limit_) {
        return tooLarge();
    }
    // The size is a hint only (the file may grow while it is read); the limit is what holds.
    contents.bytes.reserve(static_cast<qsizetype>(status.st_size));
    char buffer[65536];
    for (;;) {
        const ssize_t got = ::read(file.get(), buffer, sizeof buffer);
        if (got < 0) {
            if (errno == EINTR) {
                continue;
            }
            return systemFailure(errno);
        }
        if (got == 0) {
            break;
        }
        if (got > limit_ - contents.bytes.size()) {
            return tooLarge();
        }
        contents.bytes.append(buffer, static_cast<qsizetype>(got));
    }
    return contents;
}

} // namespace tarnic
