#pragma once

#include <QByteArray>
#include <QStringList>
#include <QUrl>

#include <chrono>
#include <optional>

namespace tarnic {

// A plain HTTP GET that blocks the calling (main) thread until the reply is complete or the time
// is up. Timers and sockets keep running meanwhile; user input waits. The GET itself is in the
// site module (see SiteModule), loaded on the first call: without it, there is no answer.
class BlockingHttpGet {
public:
    // A version-support file is a few hundred bytes; anything this large is not one, and reading
    // on would only hold the player up.
    static constexpr qint64 kMaxBodyBytes = 1024 * 1024;

    // With the site module where the build or the installation puts it.
    BlockingHttpGet();
    // With the site module at the first of `modulePaths` that loads.
    explicit BlockingHttpGet(QStringList modulePaths);

    // The body of the server's answer, whatever its HTTP status: the caller judges the content.
    // Nothing when there is no complete answer (no connection, a connection lost on the way, no
    // complete answer within `timeout`) or when the body is over kMaxBodyBytes; nothing as well
    // when the site module cannot be loaded, which one line on standard error then says, naming
    // the paths tried.
    std::optional<QByteArray> get(const QUrl& url, std::chrono::milliseconds timeout) const;

private:
    QStringList modulePaths_;
};

} // namespace tarnic
