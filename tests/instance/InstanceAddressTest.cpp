#include "instance/InstanceAddress.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <gtest/gtest.h>

#include <unistd.h>

namespace tarnic {
namespace {

QString nameOn(const char* display, unsigned uid = 1000) {
    return InstanceAddress::make(QStringLiteral("/run/user/1000"), uid, QStringLiteral("xcb"),
                                 display, QByteArray())
        .name();
}

TEST(InstanceAddress, OneXDisplayHowEverItIsWritten) {
    EXPECT_EQ(nameOn(":0"), nameOn(":0.0"));
    EXPECT_EQ(nameOn(":0"), nameOn("unix:0"));
    EXPECT_EQ(nameOn(":0"), nameOn(":0.1"));
}

TEST(InstanceAddress, EachXDisplayAndEachUserHasItsOwn) {
    EXPECT_NE(nameOn(":0"), nameOn(":1"));
    EXPECT_NE(nameOn(":1"), nameOn(":10"));
    EXPECT_NE(nameOn(":0"), nameOn("otherhost:0"));
    EXPECT_NE(nameOn(":0", 1000), nameOn(":0", 1001));
    EXPECT_TRUE(nameOn(":0", 1000).contains(QStringLiteral("1000")));
}

TEST(InstanceAddress, WaylandDisplaysAreApartFromXDisplays) {
    const auto wayland = [](const char* socket) {
        return InstanceAddress::make(QStringLiteral("/run/user/1000"), 1000,
                                     QStringLiteral("wayland"), ":0", socket)
            .name();
    };
    EXPECT_NE(wayland("wayland-0"), nameOn(":0"));
    EXPECT_NE(wayland("wayland-0"), wayland("wayland-1"));
    // Unset, Wayland clients use "wayland-0".
    EXPECT_EQ(wayland(""), wayland("wayland-0"));
}

TEST(InstanceAddress, FilesLieInTheFolderAndTheirNamesAreSafeAndShort) {
    const InstanceAddress address = InstanceAddress::make(
        QStringLiteral("/run/user/1000"), 1000, QStringLiteral("wayland"), QByteArray(),
        "/some/very/long/path/to/a/compositor/socket/that/goes/on/and/on/wayland-7");
    EXPECT_TRUE(address.lockPath().startsWith(QStringLiteral("/run/user/1000/")));
    EXPECT_TRUE(address.serverPath().startsWith(QStringLiteral("/run/user/1000/")));
    EXPECT_NE(address.lockPath(), address.serverPath());
    EXPECT_FALSE(address.name().contains(QLatin1Char('/')));
    EXPECT_LE(address.name().size(), 60);
    EXPECT_FALSE(nameOn("a/b:0").contains(QLatin1Char('/')));
}

QStringList messages;

void keepMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
    messages.append(message);
}

TEST(InstanceAddress, WithoutXdgRuntimeDirQtsPrivateFolderIsUsedWithoutANotice) {
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    const bool had = qEnvironmentVariableIsSet("XDG_RUNTIME_DIR");
    qunsetenv("XDG_RUNTIME_DIR");
    messages.clear();
    const QtMessageHandler previous = qInstallMessageHandler(keepMessage);
    const InstanceAddress address = InstanceAddress::current(QStringLiteral("xcb"));
    qWarning("after the lookup");
    qInstallMessageHandler(previous);
    if (had) {
        qputenv("XDG_RUNTIME_DIR", before);
    }

    EXPECT_EQ(messages, QStringList{QStringLiteral("after the lookup")});
    ASSERT_FALSE(address.folder().isEmpty());
    const QFileInfo folder(address.folder());
    EXPECT_TRUE(folder.isDir());
    EXPECT_EQ(folder.ownerId(), getuid());
    EXPECT_EQ(folder.permissions() & (QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                      QFile::ReadOther | QFile::WriteOther | QFile::ExeOther),
              QFile::Permissions());
    EXPECT_TRUE(address.name().contains(QString::number(getuid())));
}

} // namespace
} // namespace tarnic
