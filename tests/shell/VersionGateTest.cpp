#include "shell/VersionGate.h"

#include "shell/BlockingHttpGet.h"
#include "support/LoopbackHttpServer.h"
#include "shell/PlistSamples.h"
#include "shell/SiteAddress.h"
#include "shell/SiteModule.h"

#include "support/QtPrinters.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <ostream>
#include <string>

namespace tarnic {

// Readable names in failure messages.
void PrintTo(VersionGateResult result, std::ostream* out) {
    switch (result) {
    case VersionGateResult::NoUrl:
        *out << "NoUrl";
        return;
    case VersionGateResult::Passed:
        *out << "Passed";
        return;
    case VersionGateResult::Failed:
        *out << "Failed";
        return;
    }
}

namespace {

TEST(VersionSupportUrl, IsTheFileDirectlyUnderTheSiteRoot) {
    EXPECT_EQ(versionSupportUrl("http://127.0.0.1:8765").toString(),
              "http://127.0.0.1:8765/tn11.plist");
    EXPECT_EQ(versionSupportUrl("http://tarnic.example/").toString(),
              "http://tarnic.example/tn11.plist");
    EXPECT_EQ(versionSupportUrl(" http://tarnic.example// ").toString(),
              "http://tarnic.example/tn11.plist");
}

TEST(SiteAddress, LosesSurroundingBlanksAndTrailingSlashesOnly) {
    EXPECT_EQ(withoutTrailingSlashes(" http://tarnic.example/a/// "), "http://tarnic.example/a");
    EXPECT_EQ(withoutTrailingSlashes("http://tarnic.example"), "http://tarnic.example");
    EXPECT_EQ(withoutTrailingSlashes("///"), "");
}

TEST(VersionSupportUrl, BuiltInSiteIsAPlainHttpAddress) {
    EXPECT_TRUE(versionSupportUrl(siteBaseUrl()).isValid()) << siteBaseUrl().toStdString();
    EXPECT_EQ(versionSupportUrl(siteBaseUrl()).path(), "/tn11.plist");
    EXPECT_EQ(versionSupportUrl(siteBaseUrl()).scheme(), "http");
}

TEST(VersionSupportUrl, SiteTextThatIsNoUrlGivesNone) {
    EXPECT_FALSE(versionSupportUrl("").isValid());
    EXPECT_FALSE(versionSupportUrl("not a url").isValid());
    EXPECT_FALSE(versionSupportUrl("127.0.0.1:8765").isValid());
    EXPECT_FALSE(versionSupportUrl("http://").isValid());
    EXPECT_FALSE(versionSupportUrl("http://exa mple.com").isValid());
}

TEST(VersionGate, SiteTextThatIsNoUrlChecksNothing) {
    EXPECT_EQ(checkVersionSupport("no url here"), VersionGateResult::NoUrl);
}

TEST(VersionGate, ClosedPortFails) {
    const quint16 port = test::closedLoopbackPort();
    ASSERT_NE(port, 0);
    EXPECT_EQ(checkVersionSupport(QStringLiteral("http://127.0.0.1:%1").arg(port)),
              VersionGateResult::Failed);
}

struct ServedCase {
    const char* name;
    std::function<QByteArray()> body;
    int status;
    VersionGateResult expected;
};

void PrintTo(const ServedCase& served, std::ostream* out) {
    *out << served.name;
}

class VersionGateServed : public ::testing::TestWithParam<ServedCase> {};

TEST_P(VersionGateServed, GivesTheExpectedAnswer) {
    const ServedCase& served = GetParam();
    test::LoopbackHttpServer server;
    ASSERT_TRUE(server.listen());
    server.serve("/tn11.plist", served.body(), served.status);

    EXPECT_EQ(checkVersionSupport(server.baseUrl()), served.expected);
    EXPECT_EQ(server.requestedPaths(), QStringList{"/tn11.plist"});
}

constexpr qsizetype kMiB = BlockingHttpGet::kMaxBodyBytes;

INSTANTIATE_TEST_SUITE_P(
    Cases, VersionGateServed,
    ::testing::Values(
        ServedCase{"XmlDictionary", test::xmlDictionary, 200, VersionGateResult::Passed},
        ServedCase{"EmptyDictionary", test::xmlEmptyDictionary, 200, VersionGateResult::Passed},
        ServedCase{"BinaryDictionary", test::binaryDictionary, 200, VersionGateResult::Passed},
        ServedCase{"DictionaryOfExactlyTheLimit", [] { return test::xmlDictionaryOfSize(kMiB); },
                   200, VersionGateResult::Passed},
        ServedCase{"XmlArray", test::xmlArray, 200, VersionGateResult::Failed},
        ServedCase{"BinaryArray", test::binaryArray, 200, VersionGateResult::Failed},
        ServedCase{"Garbage", test::garbage, 200, VersionGateResult::Failed},
        ServedCase{"EmptyBody", [] { return QByteArray(); }, 200, VersionGateResult::Failed},
        ServedCase{"NotFound", test::garbage, 404, VersionGateResult::Failed},
        ServedCase{"ArrayWithNotFound", test::xmlArray, 404, VersionGateResult::Failed},
        // Only whether a dictionary loads matters, not the status it came with.
        ServedCase{"DictionaryWithNotFound", test::xmlDictionary, 404, VersionGateResult::Passed},
        ServedCase{"DictionaryWithServerError", test::xmlDictionary, 500,
                   VersionGateResult::Passed},
        ServedCase{"BinaryDictionaryWithForbidden", test::binaryDictionary, 403,
                   VersionGateResult::Passed},
        ServedCase{"EmptyDictionaryWithBadRequest", test::xmlEmptyDictionary, 400,
                   VersionGateResult::Passed},
        ServedCase{"DictionaryOverTheLimitWithServerError",
                   [] { return test::xmlDictionaryOfSize(kMiB + 1); }, 500,
                   VersionGateResult::Failed},
        ServedCase{"DictionaryOverTheLimit", [] { return test::xmlDictionaryOfSize(kMiB + 1); },
                   200, VersionGateResult::Failed},
        ServedCase{"HugeDictionary", [] { return test::xmlDictionaryOfSize(8 * kMiB); }, 200,
                   VersionGateResult::Failed}),
    [](const ::testing::TestParamInfo<ServedCase>& info) { return std::string(info.param.name); });

TEST(VersionGate, MissingFileOnTheServerFails) {
    test::LoopbackHttpServer server;
    ASSERT_TRUE(server.listen());
    server.serve("/other.plist", test::xmlDictionary());

    EXPECT_EQ(checkVersionSupport(server.baseUrl()), VersionGateResult::Failed);
    EXPECT_EQ(server.requestedPaths(), QStringList{"/tn11.plist"});
}

using namespace std::chrono_literals;

// Long enough that a gate which ignores its bound gets this dictionary and passes, so that the
// failure shows in the result instead of in a test that hangs.
constexpr std::chrono::milliseconds kLateAnswer = 30s;

TEST(VersionGate, ServerThatAcceptsAndNeverAnswersFailsOnceTheBoundHasPassed) {
    test::LoopbackHttpServer server;
    ASSERT_TRUE(server.listen());
    server.serveLate("/tn11.plist", kLateAnswer, test::xmlDictionary());

    EXPECT_EQ(checkVersionSupport(server.baseUrl(), 300ms), VersionGateResult::Failed);
    EXPECT_EQ(server.requestedPaths(), QStringList{"/tn11.plist"});
    // The check gave the connection up instead of leaving it to the late answer.
    EXPECT_TRUE(QTest::qWaitFor([&] { return server.abandonedByClient() == 1; }, 10000));
}

TEST(VersionGate, SlowAnswerWithinTheBoundPasses) {
    test::LoopbackHttpServer server;
    ASSERT_TRUE(server.listen());
    server.serveLate("/tn11.plist", 200ms, test::xmlDictionary());

    EXPECT_EQ(checkVersionSupport(server.baseUrl(), 20s), VersionGateResult::Passed);
    EXPECT_EQ(server.abandonedByClient(), 0);
}

TEST(BlockingHttpGet, ReturnsTheBodyUnchanged) {
    test::LoopbackHttpServer server;
    ASSERT_TRUE(server.listen());
    const QByteArray body = test::binaryDictionary();
    server.serve("/file", body);

    const auto fetched = BlockingHttpGet().get(QUrl(server.baseUrl() + "/file"), 20s);
    ASSERT_TRUE(fetched.has_value());
    EXPECT_EQ(*fetched, body);
}

TEST(BlockingHttpGet, ReturnsTheBodyOfAnErrorAnswer) {
    test::LoopbackHttpServer server;
    ASSERT_TRUE(server.listen());
    const QByteArray body = test::xmlDictionary();
    server.serve("/file", body, 404);

    const auto fetched = BlockingHttpGet().get(QUrl(server.baseUrl() + "/file"), 20s);
    ASSERT_TRUE(fetched.has_value());
    EXPECT_EQ(*fetched, body);
}

TEST(BlockingHttpGet, NothingWhenNoAnswerCameInTime) {
    test::LoopbackHttpServer server;
    ASSERT_TRUE(server.listen());
    server.serveLate("/file", kLateAnswer, test::xmlDictionary());

    EXPECT_FALSE(BlockingHttpGet().get(QUrl(server.baseUrl() + "/file"), 200ms).has_value());
}

// The site module is where the version check's GET lives; the program loads it only when the
// check runs.
using ::testing::internal::CaptureStderr;
using ::testing::internal::GetCapturedStderr;

QString lines(const std::string& text) {
    return QString::fromStdString(text);
}

TEST(SiteModule, IsLookedForBesideTheProgramThenInItsFolderUnderTheLibraryFolder) {
    const QStringList paths = SiteModule::defaultPaths();
    ASSERT_EQ(paths.size(), 2);
    const QDir program(QCoreApplication::applicationDirPath());
    EXPECT_EQ(paths[0], program.filePath("tarnic-pro-site.so"));
    EXPECT_TRUE(paths[1].endsWith("/tarnic-pro/modules/tarnic-pro-site.so"))
        << paths[1].toStdString();
    EXPECT_TRUE(QDir::isAbsolutePath(paths[1]));
    EXPECT_EQ(QDir::cleanPath(paths[1]), paths[1]);
    // From the program's own folder, so that an installed copy finds it under any prefix.
    QDir prefix = program;
    ASSERT_TRUE(prefix.cdUp());
    EXPECT_TRUE(paths[1].startsWith(prefix.path() + "/")) << paths[1].toStdString();
}

TEST(SiteModule, TheBuiltModuleLoadsAndHasItsFunction) {
    QString failure = QStringLiteral("not cleared");
    EXPECT_NE(SiteModule::load({TARNIC_SITE_MODULE_PATH}, failure), nullptr)
        << failure.toStdString();
    EXPECT_TRUE(failure.isEmpty());
}

TEST(SiteModule, TheFirstPathThatLoadsIsTaken) {
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    QString failure;
    EXPECT_NE(
        SiteModule::load({folder.filePath("tarnic-pro-site.so"), TARNIC_SITE_MODULE_PATH}, failure),
        nullptr)
        << failure.toStdString();
}

TEST(VersionGate, MissingSiteModuleCountsAsASiteNotReachableAndSaysSoOnOneLine) {
    test::LoopbackHttpServer server;
    ASSERT_TRUE(server.listen());
    // A dictionary a working check would pass on.
    server.serve("/tn11.plist", test::xmlDictionary());
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    const QString missing = folder.filePath("tarnic-pro-site.so");

    CaptureStderr();
    const VersionGateResult result =
        checkVersionSupport(server.baseUrl(), 20s, BlockingHttpGet({missing}));
    const QString said = lines(GetCapturedStderr());

    EXPECT_EQ(result, VersionGateResult::Failed);
    EXPECT_EQ(said.count('\n'), 1) << said.toStdString();
    EXPECT_TRUE(said.endsWith('\n')) << said.toStdString();
    EXPECT_TRUE(said.contains(missing)) << said.toStdString();
    EXPECT_TRUE(said.contains("not reachable")) << said.toStdString();
    // Nothing was asked of the site.
    EXPECT_TRUE(server.requestedPaths().isEmpty());
}

TEST(VersionGate, SiteModuleThatIsNoLibraryCountsAsASiteNotReachable) {
    test::LoopbackHttpServer server;
    ASSERT_TRUE(server.listen());
    server.serve("/tn11.plist", test::xmlDictionary());
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    const QString broken = folder.filePath("tarnic-pro-site.so");
    QFile file(broken);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write("\x7f"
                         "ELF but cut short"),
              18);
    file.close();
    const QString missing = folder.filePath("lib/tarnic-pro/modules/tarnic-pro-site.so");

    CaptureStderr();
    const VersionGateResult result =
        checkVersionSupport(server.baseUrl(), 20s, BlockingHttpGet({broken, missing}));
    const QString said = lines(GetCapturedStderr());

    EXPECT_EQ(result, VersionGateResult::Failed);
    EXPECT_EQ(said.count('\n'), 1) << said.toStdString();
    EXPECT_TRUE(said.contains(broken)) << said.toStdString();
    EXPECT_TRUE(said.contains(missing)) << said.toStdString();
    EXPECT_TRUE(server.requestedPaths().isEmpty());
}

TEST(VersionGate, TheModuleFoundBesideTheProgramAsksTheSiteAndSaysNothing) {
    test::LoopbackHttpServer server;
    ASSERT_TRUE(server.listen());
    server.serve("/tn11.plist", test::xmlDictionary());

    CaptureStderr();
    const VersionGateResult result = checkVersionSupport(server.baseUrl(), 20s);
    const std::string said = GetCapturedStderr();

    EXPECT_EQ(result, VersionGateResult::Passed);
    EXPECT_EQ(said, "");
    EXPECT_EQ(server.requestedPaths(), QStringList{"/tn11.plist"});
}

} // namespace
} // namespace tarnic
