#pragma once

#include <QByteArray>
#include <QString>

#include <limits>

namespace tarnic {

// What came of reading a file with RegularFileReader.
struct FileContents {
    enum class Status {
        Read,       // `bytes` holds the whole file
        Missing,    // nothing is at the path (a dangling link included)
        NotRegular, // a named pipe, a socket, a device or a folder: never read
        TooLarge,   // larger than the reader's limit: nothing read past it
        Failed,     // could not be opened or read (no permission, an I/O error)
    };
    Status status = Status::Failed;
    QByteArray bytes;
    // Why nothing was read, as a clause for a message: "it is a named pipe, not a regular file",
    // "it is larger than 4194304 bytes", or the system's reason ("Permission denied"). Empty
    // after Read.
    QString reason;

    bool isRead() const { return status == Status::Read; }
};

// Reads the files the program is handed (an imported file, its own settings) only when they are
// regular files. Anything else could hold the program for good: opening a named pipe waits for a
// writer, a terminal may wait for a carrier, and a device such as /dev/zero never ends. So the
// type is checked before opening (following links: a link to a regular file is fine), the open
// itself never waits (O_NONBLOCK) nor takes a terminal as the controlling one (O_NOCTTY), and the
// opened descriptor is checked again, for the path may have been replaced in between.
class RegularFileReader {
public:
    static constexpr qint64 kNoLimit = std::numeric_limits<qint64>::max();

    // `limit`: the largest file, in bytes, that is read; a larger one is TooLarge.
    explicit RegularFileReader(qint64 limit = kNoLimit);

    // The whole file at `path`.
    FileContents read(const QString& path) const;
    // What read() would find, without reading: Read (with no bytes) for a regular file that
    // opens for reading, whatever its size. For files that another reader (QSettings) opens
    // afterwards.
    FileContents check(const QString& path) const;

private:
    FileContents open(const QString& path, bool readBytes) const;

    qint64 limit_;
};

} // namespace tarnic
