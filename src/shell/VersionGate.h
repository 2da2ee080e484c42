#pragma once

#include <QString>
#include <QUrl>

#include <chrono>

namespace tarnic {

class BlockingHttpGet;

enum class VersionGateResult {
    NoUrl,  // the site address does not form a URL: nothing is checked
    Passed, // the version-support file loaded as a dictionary
    Failed, // no connection, no answer in time, or not a dictionary property list
};

// How long the start-up waits for the version-support file before counting the check as failed:
// the usual default bound for loading a URL.
inline constexpr std::chrono::milliseconds kVersionLoadTimeout = std::chrono::seconds(60);

// <site>/tn11.plist; an invalid URL when the site address has no scheme or host.
QUrl versionSupportUrl(const QString& siteUrl);

// Loads the version-support file from the site, blocking until it has loaded, failed, or not
// come within `timeout`. Only whether the answer's body is a dictionary matters, not its HTTP
// status.
VersionGateResult checkVersionSupport(const QString& siteUrl,
                                      std::chrono::milliseconds timeout = kVersionLoadTimeout);
// The same, with `http` for the GET. One that cannot load its site module counts as a site that
// cannot be reached: the check fails.
VersionGateResult checkVersionSupport(const QString& siteUrl, std::chrono::milliseconds timeout,
                                      const BlockingHttpGet& http);

} // namespace tarnic
