// A store nested far deeper than any the program writes is treated as unreadable: set aside, and
// the program starts with an empty store. Reading it neither overflows the stack nor takes long.
#include "store/DeepPlists.h"
#include "store/PlistFormat.h"
#include "store/StoreFolder.h"
#include "store/UserDefaults.h"

#include <QThread>

#include <gtest/gtest.h>

#include <future>

namespace tarnic {
namespace {

using ::testing::internal::CaptureStderr;
using ::testing::internal::GetCapturedStderr;

class DeepStore : public ::testing::Test {
protected:
    // Opens the store as the program does at start, on a thread of its own, and expects the file
    // `bytes` set aside and an empty store.
    void expectSetAside(const QByteArray& bytes) {
        folder.writeStore(bytes);
        QThread* const user = QThread::currentThread();
        CaptureStderr();
        auto settings = std::async(std::launch::async, [user] {
                            std::unique_ptr<QSettings> store = openUserDefaults();
                            store->moveToThread(user);
                            return store;
                        }).get();
        const std::string message = GetCapturedStderr();
        const QStringList aside = folder.setAsideFiles();
        ASSERT_EQ(aside.size(), 1) << message;
        EXPECT_EQ(folder.readInStoreFolder(aside[0]), bytes);
        EXPECT_NE(message.find("could not read"), std::string::npos) << message;
        EXPECT_TRUE(settings->allKeys().isEmpty());
        EXPECT_FALSE(UserDefaults(*settings).mainDic().has_value());
    }
    // The store opens with `bytes` kept where they are.
    void expectRead(const QByteArray& bytes) {
        folder.writeStore(bytes);
        CaptureStderr();
        auto settings = openUserDefaults();
        EXPECT_EQ(GetCapturedStderr(), "");
        EXPECT_TRUE(folder.setAsideFiles().isEmpty());
        EXPECT_TRUE(settings->contains(QStringLiteral("mainDic")));
    }

    StoreFolder folder;
};

TEST_F(DeepStore, FiftyThousandNestedArraysAreSetAside) {
    const QByteArray bytes = xmlNestedArrays(50000);
    EXPECT_GT(bytes.size(), 750000);
    expectSetAside(bytes);
}

TEST_F(DeepStore, TwentyThousandNestedArraysAreSetAside) {
    expectSetAside(xmlNestedArrays(20000));
}

TEST_F(DeepStore, DeepBinaryStoresAreSetAside) {
    expectSetAside(binaryNestedArrays(20000));
}

TEST_F(DeepStore, FiftyThousandBinaryLevelsAreSetAside) {
    expectSetAside(binaryNestedArrays(50000));
}

TEST_F(DeepStore, SixteenLevelsAreReadSeventeenAreNot) {
    // The top-level dictionary is the first level, "mainDic" the second.
    expectRead(xmlNestedArrays(15));
    expectRead(binaryNestedArrays(15));
    expectSetAside(xmlNestedArrays(16));
}

TEST_F(DeepStore, SeventeenBinaryLevelsAreNotRead) {
    expectSetAside(binaryNestedArrays(16));
}

TEST_F(DeepStore, SharedArraysCannotMultiplyTheWork) {
    // Four levels of 1,000 references each to the next array: 20 kB standing for 10^12 arrays.
    const QByteArray bytes = binarySharedArrays(4, 1000);
    EXPECT_LT(bytes.size(), 20000);
    expectSetAside(bytes);
}

TEST_F(DeepStore, TheProgramsOwnStoreIsRead) {
    QSettings::SettingsMap map;
    map.insert(QStringLiteral("mainDic"),
               QVariantList{QVariantMap{{QStringLiteral("name"), QStringLiteral("Attack")}}});
    map.insert(QStringLiteral("inventoryModel1"), QVariantList{1, 56, 6});
    expectRead(settingsToPlist(map));
}

} // namespace
} // namespace tarnic
