#pragma once

#include <QString>

namespace tarnic {

// The base address of the maker's web site, fixed when the program is built.
QString siteBaseUrl();

} // namespace tarnic
