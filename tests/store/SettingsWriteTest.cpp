#include "store/SettingsWrite.h"

#include "StoreFolder.h"
#include "store/PlistFormat.h"
#include "store/UserDefaults.h"
#include "support/PlainUserThread.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace tarnic {
namespace {

bool setMode(const QString& path, mode_t mode) {
    return ::chmod(QFile::encodeName(path).constData(), mode) == 0;
}

class SettingsWrite : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir_.isValid());
        ASSERT_TRUE(setMode(dir_.path(), 0755));
        folder_ = dir_.filePath("settings");
        ASSERT_TRUE(QDir().mkpath(folder_));
        path_ = folder_ + "/s.plist";
        settings_ = std::make_unique<QSettings>(path_, plistSettingsFormat());
        settings_->setAtomicSyncRequired(true);
    }
    void TearDown() override { setMode(folder_, 0755); }
    // Sets `value` and writes it while the folder is read-only to an ordinary user.
    bool writeReadOnly(int value) {
        EXPECT_TRUE(setMode(folder_, 0555));
        bool written = true;
        {
            const PlainUserThread player;
            EXPECT_TRUE(player.isValid());
            settings_->setValue("a", value);
            written = writeSettings(*settings_);
        }
        EXPECT_TRUE(setMode(folder_, 0755));
        return written;
    }
    // What the file holds, read around QSettings (which shares what it has not written with
    // every QSettings object on the same file in this process).
    int onFile() const {
        QFile file(path_);
        if (!file.open(QIODevice::ReadOnly)) {
            return -1;
        }
        const auto map = settingsFromPlist(file.readAll());
        return map ? map->value("a").toInt() : -1;
    }

    QTemporaryDir dir_;
    QString folder_;
    QString path_;
    std::unique_ptr<QSettings> settings_;
};

TEST_F(SettingsWrite, AWriteThatWorksIsSaidToWork) {
    settings_->setValue("a", 1);
    EXPECT_TRUE(writeSettings(*settings_));
    EXPECT_TRUE(settingsWritten(*settings_));
    EXPECT_EQ(onFile(), 1);
}

TEST_F(SettingsWrite, AReadOnlyFolderIsSaidToFailUntilAWriteWorks) {
    settings_->setValue("a", 1);
    ASSERT_TRUE(writeSettings(*settings_));
    EXPECT_FALSE(writeReadOnly(2));
    EXPECT_FALSE(settingsWritten(*settings_));
    EXPECT_EQ(onFile(), 1);
    // QSettings' own status stays AccessError from here on; the next write that works still
    // counts.
    settings_->setValue("b", 3);
    EXPECT_TRUE(writeSettings(*settings_));
    EXPECT_TRUE(settingsWritten(*settings_));
    EXPECT_EQ(onFile(), 2);
}

TEST_F(SettingsWrite, FolderProblemsAreNamedInTheSystemsWords) {
    EXPECT_EQ(folderWriteProblem(path_), QString());
    EXPECT_EQ(folderWriteProblem(dir_.filePath("gone/s.plist")), "No such file or directory");
    QFile plain(dir_.filePath("plain"));
    ASSERT_TRUE(plain.open(QIODevice::WriteOnly));
    plain.close();
    EXPECT_EQ(folderWriteProblem(dir_.filePath("plain/s.plist")), "Not a directory");
}

TEST_F(SettingsWrite, AStoreSetAsideSaysUnderWhichName) {
    StoreFolder folder;
    folder.writeStore("not a property list");
    const std::unique_ptr<QSettings> store = openUserDefaults();
    const QStringList aside = folder.setAsideFiles();
    ASSERT_EQ(aside.size(), 1);
    EXPECT_EQ(QFileInfo(storeSetAsideAs(*store)).fileName(), aside[0]);
    const std::unique_ptr<QSettings> again = openUserDefaults();
    EXPECT_EQ(storeSetAsideAs(*again), QString());
}

} // namespace
} // namespace tarnic
