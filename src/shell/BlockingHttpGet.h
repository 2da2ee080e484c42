#pragma once

#include <QByteArray>
#include <QUrl>

#include <chrono>
#include <optional>

namespace tarnic {

// A plain HTTP GET that blocks the calling (main) thread until the reply is complete or the time
// is up. Timers and sockets keep running meanwhile; user input waits.
class BlockingHttpGet {
public:
    // A version-support file is a few hundred bytes; anything this large is not one, and reading
    // on would only hold the player up.
    static constexpr qint64 kMaxBodyBytes = 1024 * 1024;

    // The body of the server's answer, whatever its HTTP status: the caller judges the content.
    // Nothing when there is no complete answer (no connection, a connection lost on the way, no
    // complete answer within `timeout`) or when the body is over kMaxBodyBytes.
    std::optional<QByteArray> get(const QUrl& url, std::chrono::milliseconds timeout) const;
};

} // namespace tarnic
