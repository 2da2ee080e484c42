#include "shell/BlockingHttpGet.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include <memory>

namespace tarnic {
namespace {

// Errors that stand for an HTTP status the server answered with (404, 500...). The answer came
// complete, so its body counts like any other.
bool isHttpStatusError(QNetworkReply::NetworkError error) {
    return (error >= QNetworkReply::ContentAccessDenied &&
            error <= QNetworkReply::UnknownContentError) ||
           error == QNetworkReply::ProtocolInvalidOperationError ||
           (error >= QNetworkReply::InternalServerError &&
            error <= QNetworkReply::UnknownServerError);
}

} // namespace

std::optional<QByteArray> BlockingHttpGet::get(const QUrl& url,
                                               std::chrono::milliseconds timeout) const {
    QNetworkAccessManager network;
    QNetworkRequest request(url);
    // One bound for the whole load below, not one per pause in the transfer: a server that
    // trickles bytes must not hold the start-up either.
    request.setTransferTimeout(0);
    const std::unique_ptr<QNetworkReply> reply(network.get(request));

    bool tooLarge = false;
    bool timedOut = false;
    QEventLoop loop;
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QObject::connect(reply.get(), &QNetworkReply::downloadProgress, &loop,
                     [&](qint64 received, qint64 total) {
                         if (!tooLarge && (received > kMaxBodyBytes || total > kMaxBodyBytes)) {
                             tooLarge = true;
                             reply->abort();
                         }
                     });
    QTimer deadline;
    deadline.setSingleShot(true);
    deadline.setTimerType(Qt::CoarseTimer);
    QObject::connect(&deadline, &QTimer::timeout, &loop, [&] {
        timedOut = true;
        reply->abort();
    });
    if (!reply->isFinished()) {
        deadline.start(timeout);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }

    if (tooLarge || timedOut || !reply->isFinished()) {
        return std::nullopt;
    }
    if (reply->error() != QNetworkReply::NoError && !isHttpStatusError(reply->error())) {
        return std::nullopt;
    }
    QByteArray body = reply->readAll();
    if (body.size() > kMaxBodyBytes) {
        return std::nullopt;
    }
    return body;
}

} // namespace tarnic
