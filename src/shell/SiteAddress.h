#pragma once

#include <QString>

namespace tarnic {

// The base address of the maker's web site, fixed when the program is built (the CMake setting
// TARNIC_SITE_URL, compiled into this one place).
QString siteBaseUrl();

// A site address without surrounding blanks and without trailing slashes, ready for "/<page>".
QString withoutTrailingSlashes(const QString& siteUrl);

} // namespace tarnic
