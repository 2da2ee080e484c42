#include "shell/SiteAddress.h"

namespace tarnic {

QString siteBaseUrl() {
    return QStringLiteral(TARNIC_SITE_URL);
}

} // namespace tarnic
