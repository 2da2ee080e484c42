#pragma once

#include <QString>
#include <QUrl>

namespace tarnic {

enum class VersionGateResult {
    NoUrl,  // the site address does not form a URL: nothing is checked
    Passed, // the version-support file loaded as a dictionary
    Failed, // no connection, no such file, or not a dictionary property list
};

// <site>/tn11.plist; an invalid URL when the site address has no scheme or host.
QUrl versionSupportUrl(const QString& siteUrl);

// Loads the version-support file from the site, blocking until it has loaded or failed.
VersionGateResult checkVersionSupport(const QString& siteUrl);

} // namespace tarnic
