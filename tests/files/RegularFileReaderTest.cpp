#include "files/RegularFileReader.h"
#include "support/SpecialFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <future>

#include <unistd.h>

namespace tarnic {
namespace {

using Status = FileContents::Status;

class RegularFileReaderTest : public ::testing::Test {
protected:
    QString path(const char* name) const { return dir_.filePath(QLatin1String(name)); }
    void write(const QString& file, const QByteArray& bytes) const {
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        ASSERT_EQ(out.write(bytes), bytes.size());
    }
    // Reads on a thread of its own, so that a reader stuck in open() is freed by the watchdog
    // and the test reports it instead of hanging.
    FileContents readGuarded(const QString& file, bool checkOnly = false,
                             qint64 limit = RegularFileReader::kNoLimit) {
        PipeWatchdog watchdog(file);
        auto reading = std::async(std::launch::async, [&] {
            const RegularFileReader reader(limit);
            return checkOnly ? reader.check(file) : reader.read(file);
        });
        FileContents contents = reading.get();
        EXPECT_FALSE(watchdog.fired()) << "the reader waited in open() on " << file.toStdString();
        return contents;
    }

    QTemporaryDir dir_;
};

TEST_F(RegularFileReaderTest, ReadsARegularFileWhole) {
    const QByteArray bytes = QByteArray("[AHfs]\r\nHotkey=F\r\n") + QByteArray(200000, 'x');
    write(path("keys.txt"), bytes);
    const FileContents contents = RegularFileReader().read(path("keys.txt"));
    EXPECT_EQ(contents.status, Status::Read);
    EXPECT_EQ(contents.bytes, bytes);
    EXPECT_TRUE(contents.reason.isEmpty());
}

TEST_F(RegularFileReaderTest, ReadsThroughALinkToARegularFile) {
    write(path("keys.txt"), "abc");
    ASSERT_TRUE(makeSymlink(path("keys.txt"), path("link.txt")));
    EXPECT_EQ(RegularFileReader().read(path("link.txt")).bytes, "abc");
}

TEST_F(RegularFileReaderTest, AnEmptyFileIsReadAsEmpty) {
    write(path("empty"), "");
    const FileContents contents = RegularFileReader().read(path("empty"));
    EXPECT_EQ(contents.status, Status::Read);
    EXPECT_TRUE(contents.bytes.isEmpty());
}

TEST_F(RegularFileReaderTest, TheLimitItselfIsReadOneByteMoreIsTooLarge) {
    write(path("ten"), "0123456789");
    EXPECT_EQ(RegularFileReader(10).read(path("ten")).bytes, "0123456789");
    const FileContents tooLarge = RegularFileReader(9).read(path("ten"));
    EXPECT_EQ(tooLarge.status, Status::TooLarge);
    EXPECT_TRUE(tooLarge.bytes.isEmpty());
    EXPECT_EQ(tooLarge.reason, "it is larger than 9 bytes");
    // Checking reads nothing, so no size is too large for it.
    EXPECT_EQ(RegularFileReader(9).check(path("ten")).status, Status::Read);
}

TEST_F(RegularFileReaderTest, NothingThereIsMissing) {
    const FileContents contents = RegularFileReader().read(path("none.txt"));
    EXPECT_EQ(contents.status, Status::Missing);
    EXPECT_EQ(contents.reason, "No such file or directory");
    ASSERT_TRUE(makeSymlink(path("none.txt"), path("dangling")));
    EXPECT_EQ(RegularFileReader().check(path("dangling")).status, Status::Missing);
    EXPECT_EQ(RegularFileReader().read(QString()).status, Status::Missing);
}

TEST_F(RegularFileReaderTest, AFileWithoutReadPermissionFails) {
    if (::geteuid() == 0) {
        GTEST_SKIP() << "root reads every file";
    }
    write(path("secret"), "abc");
    ASSERT_TRUE(QFile(path("secret")).setPermissions(QFileDevice::WriteOwner));
    const FileContents contents = RegularFileReader().read(path("secret"));
    EXPECT_EQ(contents.status, Status::Failed);
    EXPECT_EQ(contents.reason, "Permission denied");
}

TEST_F(RegularFileReaderTest, ANamedPipeIsTurnedAwayWithoutWaitingForAWriter) {
    ASSERT_TRUE(makeNamedPipe(path("x.fifo")));
    for (const bool checkOnly : {false, true}) {
        const FileContents contents = readGuarded(path("x.fifo"), checkOnly);
        EXPECT_EQ(contents.status, Status::NotRegular);
        EXPECT_EQ(contents.reason, "it is a named pipe, not a regular file");
    }
    EXPECT_TRUE(isNamedPipe(path("x.fifo")));
}

TEST_F(RegularFileReaderTest, ALinkToANamedPipeIsTurnedAway) {
    ASSERT_TRUE(makeNamedPipe(path("x.fifo")));
    ASSERT_TRUE(makeSymlink(path("x.fifo"), path("link")));
    EXPECT_EQ(readGuarded(path("link")).status, Status::NotRegular);
}

TEST_F(RegularFileReaderTest, ASocketIsTurnedAway) {
    const BoundSocket socket(path("s.sock"));
    ASSERT_TRUE(socket.isBound());
    const FileContents contents = readGuarded(path("s.sock"));
    EXPECT_EQ(contents.status, Status::NotRegular);
    EXPECT_EQ(contents.reason, "it is a socket, not a regular file");
}

TEST_F(RegularFileReaderTest, ADeviceIsTurnedAway) {
    // /dev/zero never ends; /dev/null ends at once. Neither is read.
    for (const char* device : {"/dev/zero", "/dev/null"}) {
        const FileContents contents = RegularFileReader(4096).read(QLatin1String(device));
        EXPECT_EQ(contents.status, Status::NotRegular) << device;
        EXPECT_EQ(contents.reason, "it is a character device, not a regular file") << device;
        EXPECT_TRUE(contents.bytes.isEmpty());
    }
    ASSERT_TRUE(makeSymlink("/dev/zero", path("zero")));
    EXPECT_EQ(RegularFileReader().check(path("zero")).status, Status::NotRegular);
}

TEST_F(RegularFileReaderTest, AFolderIsTurnedAway) {
    ASSERT_TRUE(QDir(dir_.path()).mkdir("folder"));
    const FileContents contents = RegularFileReader().read(path("folder"));
    EXPECT_EQ(contents.status, Status::NotRegular);
    EXPECT_EQ(contents.reason, "it is a folder, not a regular file");
}

} // namespace
} // namespace tarnic
