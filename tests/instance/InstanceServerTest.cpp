// The first copy's socket on its own: what it leaves behind when it stops, and how it reads a
// request that comes in pieces.
#include "instance/InstanceServer.h"
#include "instance/SingleInstance.h"
#include "support/ProcessUntil.h"

#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <chrono>
#include <unistd.h>

namespace tarnic {
namespace {

using namespace std::chrono_literals;
using test::processUntil;

class InstanceServerTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(folder.isValid()); }

    QString path() const { return folder.filePath(QStringLiteral("copy.socket")); }

    QTemporaryDir folder;
};

TEST_F(InstanceServerTest, StoppingRemovesTheSocketFileItMade) {
    InstanceServer server;
    ASSERT_TRUE(server.listen(path())) << server.errorString().toStdString();
    EXPECT_TRUE(QFile::exists(path()));
    server.close();
    EXPECT_FALSE(server.isListening());
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(InstanceServerTest, StoppingLeavesASocketFileAnotherCopyPutInItsPlace) {
    InstanceServer server;
    ASSERT_TRUE(server.listen(path()));
    // Another copy took over meanwhile, with a socket of its own at the same path.
    ASSERT_EQ(::unlink(QFile::encodeName(path()).constData()), 0);
    QLocalServer other;
    ASSERT_TRUE(other.listen(path())) << other.errorString().toStdString();

    server.close();
    EXPECT_TRUE(QFile::exists(path()));
    QLocalSocket client;
    client.connectToServer(path());
    EXPECT_TRUE(client.waitForConnected(2000)) << client.errorString().toStdString();
}

TEST_F(InstanceServerTest, AFileInTheWayIsReportedNotRemoved) {
    QFile inTheWay(path());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.write("not a socket");
    inTheWay.close();

    InstanceServer server;
    EXPECT_FALSE(server.listen(path()));
    EXPECT_FALSE(server.errorString().isEmpty());
    EXPECT_TRUE(QFile::exists(path()));
}

TEST_F(InstanceServerTest, ARequestInPiecesIsAnsweredOnceWhole) {
    InstanceServer server;
    int activations = 0;
    QObject::connect(&server, &InstanceServer::activationRequested, [&] { ++activations; });
    ASSERT_TRUE(server.listen(path()));

    QLocalSocket client;
    client.connectToServer(path());
    ASSERT_TRUE(client.waitForConnected(2000));
    client.write("acti");
    client.flush();
    // The first piece alone activates nothing and keeps the connection open.
    EXPECT_FALSE(processUntil([&] { return activations > 0; }, 200ms));
    EXPECT_EQ(client.state(), QLocalSocket::ConnectedState);
    client.write("vate\n");
    client.flush();
    ASSERT_TRUE(processUntil([&] { return client.canReadLine(); }, 10s));
    EXPECT_EQ(client.readLine(), QByteArray("activated\n"));
    EXPECT_EQ(activations, 1);
    EXPECT_TRUE(
        processUntil([&] { return client.state() == QLocalSocket::UnconnectedState; }, 10s));
}

TEST_F(InstanceServerTest, ARuntimeFolderTooDeepForASocketLeavesTheCopyUnguardedAndSaysSo) {
    // A socket's path has room for 108 bytes; the lock file has no such limit.
    const QString deep = folder.filePath(QString(120, QLatin1Char('d')));
    ASSERT_TRUE(QDir().mkpath(deep));
    SingleInstance instance(InstanceAddress::make(deep, static_cast<unsigned>(getuid()),
                                                  QStringLiteral("xcb"), ":0", QByteArray()));
    EXPECT_EQ(instance.start(), SingleInstance::Outcome::Unguarded);
    EXPECT_TRUE(instance.report().contains(QStringLiteral("too long")))
        << instance.report().toStdString();
    EXPECT_FALSE(instance.report().contains(QLatin1Char('\n')));
}

} // namespace
} // namespace tarnic
