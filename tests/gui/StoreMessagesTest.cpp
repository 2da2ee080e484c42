#include "EditorFixture.h"

#include "core/catalogue/Catalogue.h"
#include "core/editor/GridLayout.h"
#include "support/PlainUserThread.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <sys/stat.h>

namespace tarnic::test {
namespace {

bool setMode(const QString& path, mode_t mode) {
    return ::chmod(QFile::encodeName(path).constData(), mode) == 0;
}

// What the window tells the player about the store: a change it could not write, and a file it
// could not read at start.
class StoreMessages : public EditorFixture {
protected:
    void SetUp() override {
        EditorFixture::SetUp();
        // An ordinary user must reach the store's folder inside the test's own.
        ASSERT_TRUE(setMode(dir_.path(), 0755));
        ASSERT_TRUE(setMode(dir_.configHome(), 0755));
    }
    void TearDown() override {
        setMode(storeFolder(), 0755);
        EditorFixture::TearDown();
    }
    QString storeFolder() const { return QFileInfo(storePath()).path(); }
    // The status bar's warning; a window without one has none to show.
    QString warning(bool tooltip = false) {
        auto* label = window().findChild<QLabel*>(QStringLiteral("storeWarningLbl"));
        if (label == nullptr || label->isHidden()) {
            return {};
        }
        return tooltip ? label->toolTip() : label->text();
    }
    bool warned() { return !warning().isEmpty(); }
    bool marked() { return window().isWindowModified(); }
    // Runs `act` while the store's folder is read-only, as a player's own folder would be.
    template <class Act> void withReadOnlyStoreFolder(Act act) {
        ASSERT_TRUE(setMode(storeFolder(), 0555));
        {
            const PlainUserThread player;
            ASSERT_TRUE(player.isValid());
            act();
        }
        ASSERT_TRUE(setMode(storeFolder(), 0755));
    }
    std::vector<AbilityRecord> laidOut() const {
        std::vector<AbilityRecord> list = all_data();
        allQWER(list);
        return list;
    }
};

TEST_F(StoreMessages, NoWarningWhileTheStoreIsWritten) {
    launch();
    click(*ui().gridButton);
    EXPECT_FALSE(warned());
    EXPECT_FALSE(marked());
}

TEST_F(StoreMessages, GridLayoutIntoAReadOnlyFolderKeepsTheMarkAndWarns) {
    launch();
    const QByteArray before = bytesOf(storePath());
    withReadOnlyStoreFolder([this] { click(*ui().gridButton); });
    // Nothing was stored (the file's bytes: a QSettings object on it would show what its twin
    // could not write), and the window says so.
    EXPECT_EQ(bytesOf(storePath()), before);
    EXPECT_EQ(editor().mainDic(), laidOut());
    EXPECT_TRUE(marked());
    EXPECT_TRUE(warned());
    EXPECT_TRUE(warning().contains("Permission denied")) << warning().toStdString();
    EXPECT_TRUE(warning(true).contains(storePath())) << warning(true).toStdString();
}

TEST_F(StoreMessages, AWriteThatWorksAgainClearsTheMarkAndTheWarning) {
    launch();
    withReadOnlyStoreFolder([this] { click(*ui().gridButton); });
    ASSERT_TRUE(marked());
    click(*ui().gridButton);
    EXPECT_FALSE(marked());
    EXPECT_FALSE(warned());
    EXPECT_EQ(storedMainDic(), laidOut());
}

TEST_F(StoreMessages, ABindingWrittenLaterTakesTheUnwrittenListAlong) {
    launch();
    withReadOnlyStoreFolder([this] { click(*ui().gridButton); });
    ASSERT_TRUE(marked());
    // The store writes everything it holds at its next write.
    click(*ui().invent2);
    choose(*ui().inventPopup, "Q");
    EXPECT_EQ(storedInventoryModel(2), (SlotBinding{2, 0, 12}));
    EXPECT_EQ(storedMainDic(), laidOut());
    EXPECT_FALSE(marked());
    EXPECT_FALSE(warned());
}

TEST_F(StoreMessages, ABindingIntoAReadOnlyFolderWarns) {
    launch();
    const QByteArray before = bytesOf(storePath());
    withReadOnlyStoreFolder([this] {
        click(*ui().invent3);
        choose(*ui().inventPopup, "W");
    });
    EXPECT_EQ(bytesOf(storePath()), before);
    EXPECT_TRUE(warned());
    // The list itself is what is stored.
    EXPECT_FALSE(marked());
}

TEST_F(StoreMessages, DeletingABindingInAReadOnlyFolderWarns) {
    launch();
    click(*ui().invent1);
    choose(*ui().inventPopup, "E");
    ASSERT_TRUE(storedInventoryModel(1).has_value());
    const QByteArray before = bytesOf(storePath());
    withReadOnlyStoreFolder([this] { click(*ui().delBTN); });
    EXPECT_EQ(bytesOf(storePath()), before);
    EXPECT_TRUE(warned());
}

TEST_F(StoreMessages, AFirstStartIntoAReadOnlyFolderWarnsAndStoresTheListOnceItCan) {
    QDir().mkpath(storeFolder());
    withReadOnlyStoreFolder([this] { launch(); });
    EXPECT_FALSE(QFile::exists(storePath()));
    EXPECT_EQ(editor().mainDic(), all_data());
    EXPECT_TRUE(marked());
    EXPECT_TRUE(warned());
    // The next write that works takes the list along.
    click(*ui().invent2);
    choose(*ui().inventPopup, "Q");
    EXPECT_EQ(storedMainDic(), all_data());
    EXPECT_FALSE(marked());
    EXPECT_FALSE(warned());
}

TEST_F(StoreMessages, AStoredListIsNeitherMarkedNorWrittenAgainAtStart) {
    storeMainDic(laidOut());
    // A comment that a rewrite would drop.
    QByteArray handKept = bytesOf(storePath());
    const qsizetype top = handKept.indexOf("<plist");
    ASSERT_GT(top, 0);
    handKept.insert(top, "<!-- kept by hand -->\n");
    writeFile(storePath(), handKept);
    launch();
    EXPECT_EQ(editor().mainDic(), laidOut());
    EXPECT_FALSE(marked());
    EXPECT_FALSE(warned());
    EXPECT_EQ(bytesOf(storePath()), handKept);

    // Choosing the key a row has already leaves the list as stored; another key marks it.
    clickRow(7);
    const QString laidKey = QString::fromStdString(laidOut()[7].at(new_hotkey));
    choose(*ui().keysPopup, laidKey);
    EXPECT_EQ(editor().mainDic(), laidOut());
    EXPECT_FALSE(marked());
    choose(*ui().keysPopup, laidKey == "W" ? "E" : "W");
    EXPECT_TRUE(marked());
    click(*ui().resetButton);
    EXPECT_TRUE(marked());
    EXPECT_EQ(bytesOf(storePath()), handKept);
}

TEST_F(StoreMessages, AStoreSetAsideAtStartIsToldOnceWithItsNewName) {
    QDir().mkpath(storeFolder());
    writeFile(storePath(), "this is not a property list \x01\x02");
    launch();
    const QStringList aside = QDir(storeFolder()).entryList({"*.unreadable-*"}, QDir::Files);
    ASSERT_EQ(aside.size(), 1);
    const auto notices = [this, &aside] {
        std::vector<Alert> found;
        for (const Alert& alert : alerts().shown) {
            if (alert.informativeText.contains(aside[0])) {
                found.push_back(alert);
            }
        }
        return found;
    };
    // The notice comes after the window's first paint.
    EXPECT_TRUE(QTest::qWaitFor([&] { return !notices().empty(); }, 5000));
    ASSERT_EQ(notices().size(), 1U);
    const Alert notice = notices()[0];
    EXPECT_TRUE(notice.informativeText.contains(storeFolder()))
        << notice.informativeText.toStdString();
    EXPECT_EQ(notice.icon, QMessageBox::Warning);
    // Once: the window goes on without another word.
    QTest::qWait(700);
    EXPECT_EQ(alerts().shown.size(), 1U);
}

TEST_F(StoreMessages, AReadableStoreIsNotMentioned) {
    launch();
    launch();
    QTest::qWait(700);
    EXPECT_TRUE(alerts().shown.empty());
}

} // namespace
} // namespace tarnic::test
