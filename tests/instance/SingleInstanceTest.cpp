// The lock and the hand-over between copies: this test process plays one copy where it needs to
// see what the first copy is asked, and probe programs (real processes, as the copies of the
// application are) play the others.
#include "instance/SingleInstance.h"
#include "support/LineProcess.h"
#include "support/ProcessUntil.h"

#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <csignal>
#include <memory>
#include <unistd.h>

namespace tarnic {
namespace {

using namespace std::chrono_literals;
using test::LineProcess;
using test::processUntil;

const QString kDisplay = QStringLiteral(":42");

class SingleInstanceTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(folder.isValid()); }

    InstanceAddress address(const QString& display = kDisplay) const {
        return InstanceAddress::make(folder.path(), static_cast<unsigned>(getuid()),
                                     QStringLiteral("xcb"), display.toLocal8Bit(), QByteArray());
    }

    bool startProbe(LineProcess& probe, const QStringList& extra = {},
                    const QString& display = kDisplay) {
        return probe.start(TARNIC_INSTANCE_PROBE_PATH, QStringList{folder.path(), display} + extra,
                           QProcessEnvironment::systemEnvironment(), LineProcess::Errors::Keep);
    }

    // Waits for the probe to end by itself while this process's event loop runs (this process may
    // be the first copy it asks).
    static bool finishes(LineProcess& probe, std::chrono::milliseconds timeout = 30s) {
        return processUntil([&] { return probe.waitForExit(0ms); }, timeout) ||
               probe.waitForExit(0ms);
    }

    QTemporaryDir folder;
};

TEST_F(SingleInstanceTest, TheFirstCopyHoldsTheLockAndListens) {
    SingleInstance instance(address());
    ASSERT_EQ(instance.start(), SingleInstance::Outcome::First) << instance.report().toStdString();
    EXPECT_TRUE(instance.report().isEmpty());
    EXPECT_TRUE(QFile::exists(address().lockPath()));
    QLocalSocket socket;
    socket.connectToServer(address().serverPath());
    EXPECT_TRUE(socket.waitForConnected(2000)) << socket.errorString().toStdString();
}

TEST_F(SingleInstanceTest, ASecondStartHandsOverToTheFirstAndEndsWithOneLine) {
    SingleInstance first(address());
    int activations = 0;
    QObject::connect(&first, &SingleInstance::activationRequested, [&] { ++activations; });
    ASSERT_EQ(first.start(), SingleInstance::Outcome::First);

    LineProcess second;
    ASSERT_TRUE(startProbe(second));
    ASSERT_TRUE(finishes(second)) << second.transcript().toStdString();
    EXPECT_TRUE(second.exitedNormally());
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_EQ(second.lines(), QStringList{QStringLiteral("handed-over")});
    const QString errors = second.errorOutput();
    EXPECT_EQ(errors.count(QLatin1Char('\n')), 1) << errors.toStdString();
    EXPECT_TRUE(errors.contains(QStringLiteral("already running")));
    EXPECT_TRUE(errors.contains(QStringLiteral("process %1").arg(getpid())))
        << errors.toStdString();
    EXPECT_EQ(activations, 1);
}

TEST_F(SingleInstanceTest, EachDisplayHasAFirstCopyOfItsOwn) {
    SingleInstance first(address());
    ASSERT_EQ(first.start(), SingleInstance::Outcome::First);
    LineProcess other;
    ASSERT_TRUE(startProbe(other, {"--serve-ms", "0"}, QStringLiteral(":43")));
    ASSERT_TRUE(finishes(other));
    EXPECT_EQ(other.lines().value(0), QStringLiteral("first"));
    EXPECT_EQ(other.exitCode(), 0);
}

TEST_F(SingleInstanceTest, ACopyThatWasKilledDoesNotBlockTheNextStart) {
    LineProcess killed;
    ASSERT_TRUE(startProbe(killed, {"--serve-ms", "60000"}));
    ASSERT_GE(killed.waitForLine(QStringLiteral("first"), 0, 30s), 0)
        << killed.transcript().toStdString();
    ASSERT_EQ(kill(static_cast<pid_t>(killed.processId()), SIGKILL), 0);
    ASSERT_TRUE(killed.waitForExit(10s));
    // It left both its lock file and its socket behind.
    ASSERT_TRUE(QFile::exists(address().lockPath()));
    ASSERT_TRUE(QFile::exists(address().serverPath()));

    SingleInstance next(address());
    int activations = 0;
    QObject::connect(&next, &SingleInstance::activationRequested, [&] { ++activations; });
    ASSERT_EQ(next.start(), SingleInstance::Outcome::First) << next.report().toStdString();

    // And it is found by the start after it.
    LineProcess later;
    ASSERT_TRUE(startProbe(later));
    ASSERT_TRUE(finishes(later)) << later.transcript().toStdString();
    EXPECT_EQ(later.lines(), QStringList{QStringLiteral("handed-over")});
    EXPECT_EQ(later.exitCode(), 0);
    EXPECT_EQ(activations, 1);
}

TEST_F(SingleInstanceTest, StartsAtTheSameInstantLeaveExactlyOneFirstCopy) {
    constexpr int kStarts = 4;
    std::array<std::unique_ptr<LineProcess>, kStarts> probes;
    for (auto& probe : probes) {
        probe = std::make_unique<LineProcess>();
    }
    for (auto& probe : probes) {
        ASSERT_TRUE(startProbe(*probe, {"--serve-ms", "15000"}));
    }
    const auto outcome = [](LineProcess& probe) {
        const int at = probe.waitFor(
            [](const QString& line) { return line != QLatin1String("activation"); }, 0, 30s);
        return at < 0 ? QString() : probe.lines()[at];
    };
    int firsts = 0;
    int handedOver = 0;
    LineProcess* first = nullptr;
    for (auto& probe : probes) {
        const QString said = outcome(*probe);
        if (said == QLatin1String("first")) {
            ++firsts;
            first = probe.get();
        } else if (said == QLatin1String("handed-over")) {
            ++handedOver;
            EXPECT_TRUE(probe->waitForExit(10s));
            EXPECT_EQ(probe->exitCode(), 0);
        } else {
            ADD_FAILURE() << "a start said \"" << said.toStdString()
                          << "\": " << probe->transcript().toStdString();
        }
    }
    EXPECT_EQ(firsts, 1);
    EXPECT_EQ(handedOver, kStarts - 1);
    ASSERT_NE(first, nullptr);
    // The first copy was asked once by every other start.
    EXPECT_GE(first->waitFor(
                  [&](const QString&) {
                      return first->lines().count(QStringLiteral("activation")) == kStarts - 1;
                  },
                  0, 10s),
              0)
        << first->transcript().toStdString();
}

TEST_F(SingleInstanceTest, AStartWhileTheFirstCopyIsEndingWaitsAndBecomesTheFirst) {
    // The first copy ends: it stops listening, then holds the lock for another second (as the
    // application does while it gives back its keycodes) and only then lets go.
    LineProcess ending;
    ASSERT_TRUE(startProbe(ending, {"--serve-ms", "200", "--linger-ms", "1000"}));
    ASSERT_GE(ending.waitForLine(QStringLiteral("first"), 0, 30s), 0)
        << ending.transcript().toStdString();
    // It has stopped listening and still holds the lock.
    ASSERT_TRUE(processUntil([&] { return !QFile::exists(address().serverPath()); }, 10s));
    ASSERT_TRUE(QFile::exists(address().lockPath()));

    SingleInstance next(address());
    EXPECT_EQ(next.start(), SingleInstance::Outcome::First) << next.report().toStdString();
    EXPECT_TRUE(ending.waitForExit(10s));
    EXPECT_EQ(ending.exitCode(), 0);
}

TEST_F(SingleInstanceTest, AFirstCopyThatDoesNotAnswerEndsTheSecondStartWithinItsTime) {
    // Holds the lock and takes connections, but never answers (a copy that hangs).
    QLockFile lock(address().lockPath());
    ASSERT_TRUE(lock.tryLock(0));
    QLocalServer silent;
    ASSERT_TRUE(silent.listen(address().serverPath()));

    SingleInstance second(address(), SingleInstance::Timing{100ms, 1500ms});
    const auto before = std::chrono::steady_clock::now();
    EXPECT_EQ(second.start(), SingleInstance::Outcome::Unanswered);
    const auto waited = std::chrono::steady_clock::now() - before;
    EXPECT_GE(waited, 1400ms);
    EXPECT_LT(waited, 10s);
    EXPECT_TRUE(second.report().contains(QStringLiteral("did not answer")))
        << second.report().toStdString();
    EXPECT_FALSE(second.report().contains(QLatin1Char('\n')));
}

TEST_F(SingleInstanceTest, ARequestThatIsNotOursActivatesNothing) {
    SingleInstance first(address());
    int activations = 0;
    QObject::connect(&first, &SingleInstance::activationRequested, [&] { ++activations; });
    ASSERT_EQ(first.start(), SingleInstance::Outcome::First);

    QLocalSocket stranger;
    stranger.connectToServer(address().serverPath());
    ASSERT_TRUE(stranger.waitForConnected(2000));
    stranger.write(QByteArray(200, 'x'));
    stranger.flush();
    EXPECT_TRUE(
        processUntil([&] { return stranger.state() == QLocalSocket::UnconnectedState; }, 10s));

    QLocalSocket wrong;
    wrong.connectToServer(address().serverPath());
    ASSERT_TRUE(wrong.waitForConnected(2000));
    wrong.write("quit\n");
    wrong.flush();
    EXPECT_TRUE(processUntil([&] { return wrong.state() == QLocalSocket::UnconnectedState; }, 10s));
    EXPECT_EQ(activations, 0);
}

TEST_F(SingleInstanceTest, WithoutARuntimeFolderTheCopyRunsUnguardedAndSaysSo) {
    SingleInstance instance(InstanceAddress::make(folder.filePath(QStringLiteral("missing")),
                                                  static_cast<unsigned>(getuid()),
                                                  QStringLiteral("xcb"), ":0", QByteArray()));
    EXPECT_EQ(instance.start(), SingleInstance::Outcome::Unguarded);
    EXPECT_FALSE(instance.report().isEmpty());
    EXPECT_FALSE(instance.report().contains(QLatin1Char('\n')));
}

} // namespace
} // namespace tarnic
