#include "contact/Pref.h"

#include "ui_Pref.h"

#include "core/fatal/Fatal.h"
#include "shell/SiteAddress.h"

#include <QDesktopServices>
#include <QPushButton>

namespace tarnic {
namespace {

QString siteRoot() {
    return withoutTrailingSlashes(siteBaseUrl()) + QLatin1Char('/');
}

} // namespace

Pref::Pref(QWidget* parent) : QDialog(parent) {
    Ui::Pref ui;
    ui.setupUi(this);
    mailBTN = ui.mailBTN;
    webBTN = ui.webBTN;
    connect(mailBTN, &QPushButton::clicked, this, &Pref::mail);
    connect(webBTN, &QPushButton::clicked, this, &Pref::webpage);
}

QUrl Pref::mailUrl() {
    QUrl url;
    url.setScheme(QStringLiteral("mailto"));
    url.setPath(QStringLiteral(TARNIC_SUPPORT_EMAIL));
    // Spelled out: QUrlQuery would drop the "=" of the empty body.
    url.setQuery(QStringLiteral("subject=Tarnic&body="));
    return url;
}

QUrl Pref::webpageUrl() {
    return QUrl(siteRoot(), QUrl::StrictMode);
}

void Pref::mail() {
    const QUrl url = mailUrl();
    if (!QDesktopServices::openUrl(url)) {
        fatalError("No mail program could be opened to write to support",
                   url.toString().toStdString());
    }
}

void Pref::webpage() {
    const QUrl url = webpageUrl();
    if (!url.isValid() || url.host().isEmpty()) {
        fatalError("The address of the web page is not a URL", siteRoot().toStdString());
    }
    QDesktopServices::openUrl(url);
}

} // namespace tarnic
