#include "shell/BlockingHttpGet.h"

#include "shell/SiteModule.h"

#include <cstdio>
#include <utility>

namespace tarnic {

namespace {

void appendTo(void* context, const char* data, std::size_t size) {
    static_cast<QByteArray*>(context)->append(data, static_cast<qsizetype>(size));
}

} // namespace

BlockingHttpGet::BlockingHttpGet() : BlockingHttpGet(SiteModule::defaultPaths()) {}

BlockingHttpGet::BlockingHttpGet(QStringList modulePaths) : modulePaths_(std::move(modulePaths)) {}

std::optional<QByteArray> BlockingHttpGet::get(const QUrl& url,
                                               std::chrono::milliseconds timeout) const {
    QString failure;
    const site::GetFunction siteGet = SiteModule::load(modulePaths_, failure);
    if (siteGet == nullptr) {
        // Without the module the site cannot be asked: to the caller that is a site out of reach,
        // and standard error says why.
        std::fprintf(stderr,
                     "Tarnic Pro: cannot load the site module, so the site counts as not "
                     "reachable: %s\n",
                     failure.toLocal8Bit().constData());
        std::fflush(stderr);
        return std::nullopt;
    }
    QByteArray body;
    const QByteArray encoded = url.toEncoded();
    if (siteGet(encoded.constData(), static_cast<long long>(timeout.count()), kMaxBodyBytes,
                &appendTo, &body) != 1 ||
        body.size() > kMaxBodyBytes) {
        return std::nullopt;
    }
    return body;
}

} // namespace tarnic
