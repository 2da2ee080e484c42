#include "contact/Pref.h"

#include "contact/ContactPanel.h"
#include "shell/SiteAddress.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QPushButton>
#include <QTemporaryDir>
#include <QUrlQuery>

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tarnic {
namespace {

// Stands in for the desktop's opener of one URL scheme and remembers what it was given.
class UrlRecorder : public QObject {
    Q_OBJECT

public:
    explicit UrlRecorder(const QString& scheme) : scheme_(scheme) {
        QDesktopServices::setUrlHandler(scheme_, this, "open");
    }
    ~UrlRecorder() override { QDesktopServices::unsetUrlHandler(scheme_); }

    QList<QUrl> opened;

public slots:
    void open(const QUrl& url) { opened.append(url); }

private:
    QString scheme_;
};

// Leaves the process with no program that could open a URL: no xdg-open, no browser.
void withoutAnyDesktopOpener() {
    static QTemporaryDir empty;
    qputenv("PATH", QFile::encodeName(empty.path()));
    qunsetenv("BROWSER");
    qunsetenv("DEFAULT_BROWSER");
    qunsetenv("XDG_CURRENT_DESKTOP");
}

TEST(Pref, FormHasTheMailAndWebButtons) {
    auto* panel = new Pref;
    ASSERT_FALSE(panel->mailBTN.isNull());
    ASSERT_FALSE(panel->webBTN.isNull());
    EXPECT_EQ(panel->mailBTN->text(), "Mail");
    EXPECT_EQ(panel->webBTN->text(), "Web page");
    const QPointer<QPushButton> mail = panel->mailBTN;
    delete panel;
    EXPECT_TRUE(mail.isNull());
}

TEST(Pref, EachMailPressOpensOneMessageToSupportWithSubjectAndEmptyBody) {
    UrlRecorder mailto("mailto");
    UrlRecorder web("http");
    Pref panel;

    panel.mailBTN->click();
    ASSERT_EQ(mailto.opened.size(), 1);
    panel.mailBTN->click();
    ASSERT_EQ(mailto.opened.size(), 2);
    EXPECT_TRUE(web.opened.isEmpty());

    for (const QUrl& url : mailto.opened) {
        EXPECT_EQ(url.toString(),
                  QStringLiteral("mailto:" TARNIC_SUPPORT_EMAIL "?subject=Tarnic&body="));
        EXPECT_EQ(url.scheme(), "mailto");
        // One recipient, and no extra ones in the query.
        EXPECT_EQ(url.path(), TARNIC_SUPPORT_EMAIL);
        EXPECT_FALSE(url.path().contains(','));
        const QUrlQuery query(url);
        const QList<QPair<QString, QString>> items = {{"subject", "Tarnic"}, {"body", ""}};
        EXPECT_EQ(query.queryItems(QUrl::FullyDecoded), items);
    }
}

TEST(Pref, EachWebPressOpensTheHomePageOnce) {
    UrlRecorder mailto("mailto");
    UrlRecorder web("http");
    Pref panel;

    panel.webBTN->click();
    ASSERT_EQ(web.opened.size(), 1);
    panel.webBTN->click();
    ASSERT_EQ(web.opened.size(), 2);
    EXPECT_TRUE(mailto.opened.isEmpty());

    QString expected = siteBaseUrl();
    while (expected.endsWith('/')) {
        expected.chop(1);
    }
    expected += '/';
    for (const QUrl& url : web.opened) {
        EXPECT_EQ(url.toString(), expected);
        EXPECT_EQ(url.path(), "/");
    }
}

TEST(Pref, SlotsWorkWithoutTheButtons) {
    UrlRecorder mailto("mailto");
    UrlRecorder web("http");
    Pref panel;

    panel.mail();
    panel.webpage();
    EXPECT_EQ(mailto.opened.size(), 1);
    EXPECT_EQ(web.opened.size(), 1);
}

TEST(PrefDeathTest, NoWayToOpenMailIsFatal) {
    Pref panel;
    EXPECT_DEATH(
        {
            withoutAnyDesktopOpener();
            panel.mail();
        },
        "Fatal error: No mail program could be opened.*mailto:");
}

TEST(PrefDeathTest, WebPageThatCannotOpenIsIgnored) {
    Pref panel;
    EXPECT_EXIT(
        {
            withoutAnyDesktopOpener();
            panel.webpage();
            std::exit(0);
        },
        ::testing::ExitedWithCode(0), "");
}

TEST(ContactPanel, ShowsOnePanelPerWindowAndRaisesItAgain) {
    QWidget window;
    window.show();

    QPointer<Pref> first = showContactPanel(&window);
    ASSERT_FALSE(first.isNull());
    EXPECT_TRUE(first->isVisible());
    EXPECT_TRUE(first->isWindow());
    EXPECT_EQ(showContactPanel(&window), first.data());
    EXPECT_EQ(window.findChildren<Pref*>().size(), 1);

    first->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(first.isNull());

    QPointer<Pref> second = showContactPanel(&window);
    ASSERT_FALSE(second.isNull());
    EXPECT_TRUE(second->isVisible());
    second->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace
} // namespace tarnic

#include "PrefTest.moc"
