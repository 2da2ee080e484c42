#include "shell/VersionGate.h"

#include "shell/BlockingHttpGet.h"
#include "shell/SiteAddress.h"
#include "shell/VersionSupport.h"

namespace tarnic {

QUrl versionSupportUrl(const QString& siteUrl) {
    QUrl url(withoutTrailingSlashes(siteUrl) + QStringLiteral("/tn11.plist"), QUrl::StrictMode);
    if (!url.isValid() || url.scheme().isEmpty() || url.host().isEmpty()) {
        return {};
    }
    return url;
}

VersionGateResult checkVersionSupport(const QString& siteUrl, std::chrono::milliseconds timeout) {
    const QUrl url = versionSupportUrl(siteUrl);
    if (!url.isValid()) {
        return VersionGateResult::NoUrl;
    }
    return checkVersionSupport(siteUrl, timeout, BlockingHttpGet());
}

VersionGateResult checkVersionSupport(const QString& siteUrl, std::chrono::milliseconds timeout,
                                      const BlockingHttpGet& http) {
    const QUrl url = versionSupportUrl(siteUrl);
    if (!url.isValid()) {
        return VersionGateResult::NoUrl;
    }
    const auto body = http.get(url, timeout);
    return body && isVersionSupportDictionary(*body) ? VersionGateResult::Passed
                                                     : VersionGateResult::Failed;
}

} // namespace tarnic
