// The site module: the version check's HTTP GET with Qt Network, loaded by the program only when
// the check runs.
#include "site/SiteGetAbi.h"

#include <QByteArray>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>
#include <QtGlobal>

#include <chrono>
#include <memory>
#include <optional>
#include <type_traits>

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

std::optional<QByteArray> blockingGet(const QUrl& url, std::chrono::milliseconds timeout,
                                      qint64 maxBodyBytes) {
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
                         if (!tooLarge && (received > maxBodyBytes || total > maxBodyBytes)) {
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
    if (body.size() > maxBodyBytes) {
        return std::nullopt;
    }
    return body;
}

} // namespace

extern "C" Q_DECL_EXPORT int tarnic_site_get_v1(const char* url, long long timeoutMs,
                                                long long maxBodyBytes, tarnic::site::BodySink sink,
                                                void* context) {
    if (url == nullptr || sink == nullptr || timeoutMs < 0 || maxBodyBytes < 0) {
        return 0;
    }
    const auto body = blockingGet(QUrl::fromEncoded(QByteArray(url), QUrl::StrictMode),
                                  std::chrono::milliseconds(timeoutMs), maxBodyBytes);
    if (!body) {
        return 0;
    }
    sink(context, body->constData(), static_cast<std::size_t>(body->size()));
    return 1;
}

// The program calls the module through this type; a change to one without the other stops the
// build here instead of at the player's.
static_assert(std::is_same_v<decltype(&tarnic_site_get_v1), tarnic::site::GetFunction>);
