// The X server under the running application dies (a crash, a killed session): the application
// ends within two seconds, with a non-zero status and one line on standard error that says why,
// and leaves the store on disk exactly as it was. The real program, on a private Xvfb, with a
// private XDG config folder and the maker's site served on loopback at the address it was built
// with.
#include "support/LineProcess.h"
#include "support/LoopbackHttpServer.h"
#include "support/ProcessUntil.h"
#include "support/XTestDriver.h"
#include "support/XdgSandbox.h"
#include "support/XvfbSession.h"

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <chrono>
#include <sys/stat.h>
#include <thread>
#include <tuple>

namespace tarnic {
namespace {

using namespace std::chrono_literals;
using test::LineProcess;
using test::LoopbackHttpServer;
using test::processUntil;
using test::XTestDriver;
using test::XvfbSession;

// What a file on disk is: its bytes, its modification time to the nanosecond and its inode (a
// file written again through a temporary and a rename gets a new one).
using FileState = std::tuple<QByteArray, long long, unsigned long long>;

// Every file under `folder`, by path.
QMap<QString, FileState> snapshot(const QString& folder) {
    QMap<QString, FileState> files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        QFile file(path);
        struct stat status {};
        if (!file.open(QIODevice::ReadOnly) || stat(QFile::encodeName(path).constData(), &status)) {
            files.insert(path, {});
            continue;
        }
        const long long mtime =
            static_cast<long long>(status.st_mtim.tv_sec) * 1000000000LL + status.st_mtim.tv_nsec;
        files.insert(path, {file.readAll(), mtime, status.st_ino});
    }
    return files;
}

// Lines an AddressSanitizer build adds at an abrupt exit, which a player's build never prints.
bool isSanitizerNoise(const QString& line) {
    static const QRegularExpression noise(
        "^(==\\d+==|SUMMARY: (Address|Leak|UndefinedBehavior)Sanitizer|-----|Suppressions used:|"
        "\\s*count\\s+bytes\\s+template|\\s*\\d+\\s+\\d+\\s+\\S+$|\\s*#\\d+ |Direct leak|Indirect "
        "leak|$)");
    return noise.match(line).hasMatch();
}

TEST(XServerGone, TheApplicationEndsWithinTwoSecondsSayingWhyAndLeavesTheStoreAsItWas) {
    XvfbSession server(false);
    ASSERT_TRUE(server.ok()) << server.error().toStdString();
    XdgSandbox sandbox;
    ASSERT_TRUE(sandbox.isValid());

    LoopbackHttpServer site;
    ASSERT_TRUE(site.listen(TARNIC_SITE_PORT))
        << "port " << TARNIC_SITE_PORT << " on 127.0.0.1 is taken; the program is built to ask it";
    QFile versionFile(TARNIC_SITE_DIR "/tn11.plist");
    ASSERT_TRUE(versionFile.open(QIODevice::ReadOnly));
    site.serve("/tn11.plist", versionFile.readAll());

    QProcessEnvironment environment = server.environment();
    environment.insert("XDG_CONFIG_HOME", sandbox.configHome());
    // A leak check at an end the X server forced would only time the sanitizer's scan of the
    // heap (seconds), not the program.
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    LineProcess application;
    ASSERT_TRUE(application.start(TARNIC_APP_PATH, {}, environment, LineProcess::Errors::Keep));

    // Up: its window is mapped and the version check has passed.
    {
        // Closed before the server dies: a connection still open then would end this test.
        XTestDriver driver(server.display());
        ASSERT_TRUE(driver.ok());
        ASSERT_TRUE(
            processUntil([&] { return driver.waitForWindowOfClass("Tarnic Pro", 0ms) != 0; }, 60s))
            << "no window of the application appeared\n"
            << application.transcript().toStdString() << application.errorOutput().toStdString();
    }
    ASSERT_TRUE(processUntil([&] { return site.requestedPaths().contains("/tn11.plist"); }, 60s));
    ASSERT_GE(application.waitForPrefix("AXIsProcessTrusted ", 0, 30s), 0);
    // The store is written while the application starts, partly from its event loop; it has
    // settled once it stays the same for a while (bounded).
    QMap<QString, FileState> before = snapshot(sandbox.configHome());
    bool settled = false;
    for (int check = 0; check < 60 && !settled; ++check) {
        processUntil([] { return false; }, 300ms);
        const QMap<QString, FileState> now = snapshot(sandbox.configHome());
        settled = now == before && !now.isEmpty();
        before = now;
    }
    ASSERT_TRUE(settled) << "the store never settled";
    ASSERT_TRUE(QFile::exists(sandbox.configHome() + "/Tarnic/Tarnic Pro.plist"));
    const QString errorsBefore = application.errorOutput();

    ASSERT_TRUE(server.killServer());
    const auto killed = std::chrono::steady_clock::now();
    // Two seconds is the promise; the margin is for the test's own polling.
    const bool ended = application.waitForExit(2500ms);
    const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now() - killed);
    if (!ended) {
        // Still there: leave nothing behind, then fail.
        application.stop();
    }
    ASSERT_TRUE(ended) << "still running " << took.count() << " ms after the X server died";
    EXPECT_LE(took.count(), 2500);
    EXPECT_TRUE(!application.exitedNormally() || application.exitCode() != 0)
        << "ended with status 0";

    const QStringList errors =
        application.errorOutput().mid(errorsBefore.size()).split('\n', Qt::SkipEmptyParts);
    QStringList said;
    for (const QString& line : errors) {
        if (!isSanitizerNoise(line)) {
            said << line;
        }
    }
    ASSERT_EQ(said.size(), 1) << "standard error after the X server died:\n"
                              << errors.join('\n').toStdString();
    EXPECT_TRUE(said[0].contains("X server", Qt::CaseInsensitive) ||
                said[0].contains("X11", Qt::CaseInsensitive))
        << said[0].toStdString();

    EXPECT_TRUE(snapshot(sandbox.configHome()) == before) << "the store changed";
}

} // namespace
} // namespace tarnic
