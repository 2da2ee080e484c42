#include "shell/SiteAddress.h"

namespace tarnic {

QString siteBaseUrl() {
    return QStringLiteral(TARNIC_SITE_URL);
}

QString withoutTrailingSlashes(const QString& siteUrl) {
    QString base = siteUrl.trimmed();
    while (base.endsWith(QLatin1Char('/'))) {
        base.chop(1);
    }
    return base;
}

} // namespace tarnic
