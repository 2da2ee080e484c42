#include "EditorFixture.h"

#include "core/catalogue/Catalogue.h"
#include "core/editor/GridLayout.h"

#include <QDir>
#include <QSignalSpy>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <unistd.h>

namespace tarnic::testing {
namespace {

// A small filesystem of the test program's own: a tmpfs mounted in a mount namespace of this
// process alone, so that a full disk costs the machine nothing and vanishes with the process.
// Made before main(), while the process still has one thread: a thread that enters a mount
// namespace takes only itself there.
struct SmallDisk {
    std::string path;
    std::string whyNot;
};

const SmallDisk& smallDisk();

SmallDisk makeSmallDisk() {
    SmallDisk disk;
    const auto failed = [&disk](const char* what) {
        disk.whyNot = std::string(what) + ": " + std::strerror(errno);
        return disk;
    };
    if (::unshare(CLONE_NEWNS) != 0) {
        return failed("unshare(CLONE_NEWNS)");
    }
    if (::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
        return failed("making / private in the new mount namespace");
    }
    char folder[] = "/tmp/tarnic-small-disk-XXXXXX";
    if (::mkdtemp(folder) == nullptr) {
        return failed("mkdtemp");
    }
    if (::mount("tarnic-small-disk", folder, "tmpfs", MS_NOSUID | MS_NODEV, "size=2m,mode=0755") !=
        0) {
        ::rmdir(folder);
        return failed("mount -t tmpfs -o size=2m");
    }
    disk.path = folder;
    // The mount point itself is in the machine's /tmp. A copy of its name of its own: the handler
    // runs after the static SmallDisk is gone.
    static char mountPoint[sizeof folder];
    std::memcpy(mountPoint, folder, sizeof folder);
    std::atexit([] {
        ::umount2(mountPoint, MNT_DETACH);
        ::rmdir(mountPoint);
    });
    return disk;
}

const SmallDisk& smallDisk() {
    static const SmallDisk disk = makeSmallDisk();
    return disk;
}

[[maybe_unused]] const bool kMadeBeforeMain = !smallDisk().path.empty();

class FullDisk : public EditorFixture {
protected:
    void SetUp() override {
        if (!smallDisk().whyNot.empty()) {
            GTEST_SKIP() << "No small filesystem to fill (" << smallDisk().whyNot
                         << "); a full disk needs a mount namespace, which needs root.";
        }
        EditorFixture::SetUp();
        disk_ = QString::fromStdString(smallDisk().path);
        QDir(disk_).removeRecursively();
        QDir().mkpath(disk_);
    }
    void TearDown() override {
        EditorFixture::TearDown();
        if (!disk_.isEmpty()) {
            QDir(disk_).removeRecursively();
            QDir().mkpath(disk_);
        }
    }
    // Fills the disk to the last byte. Bounded by its size.
    void fill() {
        const QByteArray path = QFile::encodeName(disk_ + "/filler");
        const int fd = ::open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        ASSERT_GE(fd, 0);
        const std::string page(4096, 'x');
        int pages = 0;
        while (pages < 1024 && ::write(fd, page.data(), page.size()) > 0) {
            ++pages;
        }
        for (int bytes = 0; bytes < 4096 && ::write(fd, "x", 1) == 1; ++bytes) {
        }
        const int full = errno;
        ::close(fd);
        ASSERT_EQ(full, ENOSPC) << std::strerror(full);
    }
    void freeUp() { ASSERT_TRUE(QFile::remove(disk_ + "/filler")); }
    void exportAnswering(const QString& path) {
        QSignalSpy finished(&exchange(), &FileExchangeController::exportFinished);
        exchange().fileDialog().setNextAnswer(path);
        click(*ui().exportButton);
        ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    }

    QString disk_;
};

TEST_F(FullDisk, ExportSaysSoAndKeepsTheOldFile) {
    launch();
    const QString old = disk_ + "/CustomKeys.txt";
    writeFile(old, "my old keys\r\n");
    fill();
    exportAnswering(old);
    EXPECT_EQ(bytesOf(old), "my old keys\r\n");
    EXPECT_EQ(QDir(disk_).entryList(QDir::Files | QDir::Hidden, QDir::Name),
              (QStringList{"CustomKeys.txt", "filler"}));
    ASSERT_EQ(alerts().shown.size(), 1U);
    EXPECT_EQ(alerts().shown[0].text, "\u201C"
                                      "CustomKeys.txt\u201D could not be saved.");
    EXPECT_TRUE(alerts().shown[0].informativeText.contains("No space left on device"))
        << alerts().shown[0].informativeText.toStdString();
    EXPECT_TRUE(alerts().shown[0].informativeText.contains(disk_));
}

TEST_F(FullDisk, GridLayoutKeepsTheMarkAndWarnsUntilAWriteWorks) {
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(disk_ + "/config"));
    launch();
    ASSERT_EQ(storedMainDic(), all_data());
    const QByteArray before = bytesOf(storePath());
    fill();
    click(*ui().gridButton);
    EXPECT_EQ(bytesOf(storePath()), before);
    EXPECT_TRUE(window().isWindowModified());
    const auto* warning = window().findChild<QLabel*>(QStringLiteral("storeWarningLbl"));
    ASSERT_NE(warning, nullptr);
    EXPECT_FALSE(warning->isHidden());
    EXPECT_TRUE(warning->text().contains("disk may be full")) << warning->text().toStdString();

    freeUp();
    click(*ui().gridButton);
    std::vector<AbilityRecord> laidOut = all_data();
    allQWER(laidOut);
    EXPECT_EQ(storedMainDic(), laidOut);
    EXPECT_FALSE(window().isWindowModified());
    EXPECT_TRUE(warning->isHidden());
}

} // namespace
} // namespace tarnic::testing
