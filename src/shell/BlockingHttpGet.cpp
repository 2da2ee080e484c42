#include "shell/BlockingHttpGet.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <memory>

namespace tarnic {

std::optional<QByteArray> BlockingHttpGet::get(const QUrl& url) const {
    QNetworkAccessManager network;
    QNetworkRequest request(url);
    request.setTransferTimeout(0);
    const std::unique_ptr<QNetworkReply> reply(network.get(request));

    bool tooLarge = false;
    QEventLoop loop;
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QObject::connect(reply.get(), &QNetworkReply::downloadProgress, &loop,
                     [&](qint64 received, qint64 total) {
                         if (!tooLarge && (received > kMaxBodyBytes || total > kMaxBodyBytes)) {
                             tooLarge = true;
                             reply->abort();
                         }
                     });
    if (!reply->isFinished()) {
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }

    if (tooLarge || reply->error() != QNetworkReply::NoError) {
        return std::nullopt;
    }
    const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (status.isValid() && (status.toInt() < 200 || status.toInt() > 299)) {
        return std::nullopt;
    }
    QByteArray body = reply->readAll();
    if (body.size() > kMaxBodyBytes) {
        return std::nullopt;
    }
    return body;
}

} // namespace tarnic
