#include "shell/AppDelegate.h"

#include "core/platform/AccessibilityTrust.h"
#include "shell/AlertPresenter.h"
#include "support/LoopbackHttpServer.h"
#include "shell/PlistSamples.h"

#include <QCoreApplication>
#include <QCursor>
#include <QGuiApplication>
#include <QTimer>

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace tarnic {
namespace {

class FakeTrust : public AccessibilityTrust {
public:
    FakeTrust(bool answer, std::vector<std::string>& log) : answer_(answer), log_(log) {}

    bool isProcessTrusted() const override {
        log_.push_back("trust");
        return answer_;
    }
    UntrustedReason untrustedReason() const override {
        return answer_ ? UntrustedReason::Trusted : UntrustedReason::RecordingRefused;
    }

private:
    bool answer_;
    std::vector<std::string>& log_;
};

// Answers every alert with its first button ("Ok") at once, remembering what it showed.
class AnsweringAlerts : public AlertPresenter {
public:
    explicit AnsweringAlerts(std::vector<std::string>& log) : log_(log) {}

    void run(const Alert& alert) override {
        log_.push_back("alert");
        shown.push_back(alert);
        cursorsAtAlert.push_back(overrideCursorShape());
    }

    // The application's override cursor, if one is set.
    static std::optional<Qt::CursorShape> overrideCursorShape() {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        return cursor != nullptr ? std::optional(cursor->shape()) : std::nullopt;
    }

    std::vector<Alert> shown;
    std::vector<std::optional<Qt::CursorShape>> cursorsAtAlert;

private:
    std::vector<std::string>& log_;
};

constexpr int kNobodyQuit = 55;

// Runs the application's event loop until something quits it. A quit asked for through
// QCoreApplication::quit() travels as a window-system event and lands within an iteration or
// two; when none has come after ten passes through the loop, the loop ends with kNobodyQuit.
int runEventLoopOnce() {
    QTimer passes;
    passes.setInterval(0);
    int count = 0;
    QObject::connect(&passes, &QTimer::timeout, [&count] {
        if (++count == 10) {
            QCoreApplication::exit(kNobodyQuit);
        }
    });
    passes.start();
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, [] { QCoreApplication::exit(-1); });
    guard.start(10000);
    return QCoreApplication::exec();
}

class AppDelegateTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server.listen()); }

    test::LoopbackHttpServer server;
    std::vector<std::string> log;
    AnsweringAlerts alerts{log};
};

TEST_F(AppDelegateTest, PrintsTrueWhenTrusted) {
    server.serve("/tn11.plist", test::xmlDictionary());
    FakeTrust trust(true, log);
    AppDelegate delegate(trust, server.baseUrl(), alerts);

    ::testing::internal::CaptureStdout();
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "AXIsProcessTrusted true\n");
}

TEST_F(AppDelegateTest, PrintsFalseWhenNotTrustedAndStartsNormally) {
    server.serve("/tn11.plist", test::xmlDictionary());
    FakeTrust trust(false, log);
    AppDelegate delegate(trust, server.baseUrl(), alerts);

    ::testing::internal::CaptureStdout();
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "AXIsProcessTrusted false\n");
    EXPECT_EQ(server.requestedPaths(), QStringList{"/tn11.plist"});
    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_EQ(runEventLoopOnce(), kNobodyQuit);
}

TEST_F(AppDelegateTest, PassedGateShowsNothingAndKeepsRunning) {
    server.serve("/tn11.plist", test::xmlEmptyDictionary());
    FakeTrust trust(true, log);
    AppDelegate delegate(trust, server.baseUrl(), alerts);

    ::testing::internal::CaptureStdout();
    delegate.applicationDidFinishLaunching();
    ::testing::internal::GetCapturedStdout();

    EXPECT_EQ(log, (std::vector<std::string>{"trust"}));
    EXPECT_EQ(runEventLoopOnce(), kNobodyQuit);
}

TEST_F(AppDelegateTest, FailedGateShowsTheUnsupportedVersionAlert) {
    server.serve("/tn11.plist", test::xmlArray());
    FakeTrust trust(true, log);
    AppDelegate delegate(trust, server.baseUrl(), alerts);

    ::testing::internal::CaptureStdout();
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "AXIsProcessTrusted true\n");

    EXPECT_EQ(log, (std::vector<std::string>{"trust", "alert"}));
    ASSERT_EQ(alerts.shown.size(), 1u);
    const Alert& alert = alerts.shown.front();
    EXPECT_EQ(alert.text, "Version you're using is no longer supported!");
    EXPECT_EQ(alert.informativeText, "Update Tarnic Pro or check Internet connection .");
    EXPECT_EQ(alert.buttons, QStringList{"Ok"});
    EXPECT_EQ(alert.icon, QMessageBox::Warning);
}

TEST_F(AppDelegateTest, FailedGateQuitsAfterOkEvenBeforeTheEventLoopRuns) {
    server.serve("/tn11.plist", test::garbage());
    FakeTrust trust(true, log);
    AppDelegate delegate(trust, server.baseUrl(), alerts);
    int aboutToQuit = 0;
    QObject context;
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &context, [&] { ++aboutToQuit; });

    ::testing::internal::CaptureStdout();
    delegate.applicationDidFinishLaunching();
    ::testing::internal::GetCapturedStdout();

    ASSERT_EQ(alerts.shown.size(), 1u);
    EXPECT_EQ(runEventLoopOnce(), 0);
    EXPECT_EQ(aboutToQuit, 1);
}

TEST_F(AppDelegateTest, FailedGateQuitsWhenCalledFromTheRunningEventLoop) {
    FakeTrust trust(false, log);
    AppDelegate delegate(trust, server.baseUrl(), alerts); // nothing served: 404

    ::testing::internal::CaptureStdout();
    QTimer::singleShot(0, &delegate, &AppDelegate::applicationDidFinishLaunching);
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, [] { QCoreApplication::exit(-1); });
    guard.start(10000);
    const int exitCode = QCoreApplication::exec();
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "AXIsProcessTrusted false\n");

    EXPECT_EQ(exitCode, 0);
    EXPECT_EQ(alerts.shown.size(), 1u);
}

TEST_F(AppDelegateTest, OfflineShowsTheAlertAndQuits) {
    const quint16 port = test::closedLoopbackPort();
    ASSERT_NE(port, 0);
    FakeTrust trust(true, log);
    AppDelegate delegate(trust, QStringLiteral("http://127.0.0.1:%1").arg(port), alerts);

    ::testing::internal::CaptureStdout();
    delegate.applicationDidFinishLaunching();
    ::testing::internal::GetCapturedStdout();

    EXPECT_EQ(alerts.shown.size(), 1u);
    EXPECT_EQ(runEventLoopOnce(), 0);
}

using namespace std::chrono_literals;

TEST_F(AppDelegateTest, SiteThatNeverAnswersShowsTheAlertAndQuitsOnceTheBoundHasPassed) {
    // A late dictionary: a gate that waited past its bound would pass and show nothing.
    server.serveLate("/tn11.plist", 30s, test::xmlDictionary());
    FakeTrust trust(true, log);
    AppDelegate delegate(trust, server.baseUrl(), alerts, 300ms);

    ::testing::internal::CaptureStdout();
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "AXIsProcessTrusted true\n");

    EXPECT_EQ(server.requestedPaths(), QStringList{"/tn11.plist"});
    EXPECT_EQ(log, (std::vector<std::string>{"trust", "alert"}));
    ASSERT_EQ(alerts.shown.size(), 1u);
    EXPECT_EQ(alerts.shown.front().text, "Version you're using is no longer supported!");
    EXPECT_EQ(runEventLoopOnce(), 0);
}

TEST_F(AppDelegateTest, BusyCursorWhileTheCheckWaitsAndNotAfterwards) {
    server.serve("/tn11.plist", test::xmlDictionary());
    std::optional<Qt::CursorShape> duringLoad;
    server.onRequest([&](const QString&) { duringLoad = AnsweringAlerts::overrideCursorShape(); });
    FakeTrust trust(true, log);
    AppDelegate delegate(trust, server.baseUrl(), alerts);

    ::testing::internal::CaptureStdout();
    delegate.applicationDidFinishLaunching();
    ::testing::internal::GetCapturedStdout();

    EXPECT_EQ(duringLoad, Qt::WaitCursor);
    EXPECT_EQ(AnsweringAlerts::overrideCursorShape(), std::nullopt);
    EXPECT_TRUE(alerts.shown.empty());
}

TEST_F(AppDelegateTest, TheAlertComesWithTheNormalCursor) {
    server.serveLate("/tn11.plist", 30s, test::xmlDictionary());
    std::optional<Qt::CursorShape> duringLoad;
    server.onRequest([&](const QString&) { duringLoad = AnsweringAlerts::overrideCursorShape(); });
    FakeTrust trust(true, log);
    AppDelegate delegate(trust, server.baseUrl(), alerts, 300ms);

    ::testing::internal::CaptureStdout();
    delegate.applicationDidFinishLaunching();
    ::testing::internal::GetCapturedStdout();

    EXPECT_EQ(duringLoad, Qt::WaitCursor);
    ASSERT_EQ(alerts.cursorsAtAlert.size(), 1u);
    EXPECT_EQ(alerts.cursorsAtAlert.front(), std::nullopt);
    EXPECT_EQ(AnsweringAlerts::overrideCursorShape(), std::nullopt);
    EXPECT_EQ(runEventLoopOnce(), 0);
}

TEST_F(AppDelegateTest, DictionaryServedWithAnErrorStatusPasses) {
    server.serve("/tn11.plist", test::xmlDictionary(), 404);
    FakeTrust trust(true, log);
    AppDelegate delegate(trust, server.baseUrl(), alerts);

    ::testing::internal::CaptureStdout();
    delegate.applicationDidFinishLaunching();
    ::testing::internal::GetCapturedStdout();

    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_EQ(runEventLoopOnce(), kNobodyQuit);
}

TEST_F(AppDelegateTest, SiteTextThatIsNoUrlStopsTheCheckSilently) {
    FakeTrust trust(false, log);
    AppDelegate delegate(trust, QStringLiteral("::not a site::"), alerts);

    ::testing::internal::CaptureStdout();
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "AXIsProcessTrusted false\n");

    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_TRUE(server.requestedPaths().isEmpty());
    EXPECT_EQ(runEventLoopOnce(), kNobodyQuit);
}

} // namespace
} // namespace tarnic
