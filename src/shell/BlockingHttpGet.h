#pragma once

#include <QByteArray>
#include <QUrl>

#include <optional>

namespace tarnic {

// A plain HTTP GET that blocks the calling (main) thread until the reply is complete. Timers and
// sockets keep running meanwhile; user input waits. There is no time-out of its own: the load
// ends when the server answers or the connection fails.
class BlockingHttpGet {
public:
    // A version-support file is a few hundred bytes; anything this large is not one, and reading
    // on would only hold the player up.
    static constexpr qint64 kMaxBodyBytes = 1024 * 1024;

    // The body of a successful reply; nothing on a connection failure, an HTTP error status or a
    // body over kMaxBodyBytes.
    std::optional<QByteArray> get(const QUrl& url) const;
};

} // namespace tarnic
