#include "store/PlistFormat.h"
#include "store/StoreFolder.h"
#include "store/UserDefaults.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <plist/plist.h>
#include <sys/stat.h>

#include <cstdint>
#include <ostream>

namespace tarnic {
namespace {

using ::testing::internal::CaptureStderr;
using ::testing::internal::GetCapturedStderr;

const AbilityRecord kAttack{{"name", "Attack"},
                            {"default", "[CmdAttack]\nHotkey=A"},
                            {"def hotkey", "A"},
                            {"new hotkey", ""},
                            {"for edit", "[CmdAttack]\nHotkey=\xE2\x9C\x94\xEF\xB8\x8E"},
                            {"new edit", ""}};
const AbilityRecord kHolyLight{
    {"name", "Holy Light"}, {"name parent", "Paladin"}, {"def hotkey", "T"}, {"new hotkey", "Q"}};
const AbilityRecord kEmptyParent{{"name", "Odd"}, {"name parent", ""}};

TEST(UserDefaults, StoreLivesInTheXdgConfigFolder) {
    StoreFolder folder;
    EXPECT_EQ(userDefaultsPath(), folder.storePath());
    // The same file that a user-scope QSettings of this format and these names picks.
    QSettings scoped(plistSettingsFormat(), QSettings::UserScope, QStringLiteral("Tarnic"),
                     QStringLiteral("Tarnic Pro"));
    EXPECT_EQ(scoped.fileName(), folder.storePath());
    EXPECT_EQ(openUserDefaults()->fileName(), folder.storePath());
}

TEST(UserDefaults, FirstStartHoldsNothing) {
    StoreFolder folder;
    auto settings = openUserDefaults();
    UserDefaults defaults(*settings);
    EXPECT_FALSE(defaults.mainDic().has_value());
    for (int slot = 1; slot <= 6; ++slot) {
        EXPECT_FALSE(defaults.inventoryModel(slot).has_value()) << slot;
    }
    EXPECT_FALSE(QFileInfo::exists(folder.storePath()));
}

TEST(UserDefaults, MainDicSurvivesARestartExactly) {
    StoreFolder folder;
    const std::vector<AbilityRecord> list{kAttack, kHolyLight, kEmptyParent};
    {
        auto settings = openUserDefaults();
        UserDefaults(*settings).setMainDic(list);
    }
    const QByteArray file = folder.readStore();
    EXPECT_TRUE(file.contains("<plist")) << file.toStdString();
    EXPECT_TRUE(file.contains("<key>mainDic</key>")) << file.toStdString();
    EXPECT_TRUE(file.contains("<key>name parent</key>")) << file.toStdString();

    auto settings = openUserDefaults();
    const std::optional<std::vector<AbilityRecord>> back = UserDefaults(*settings).mainDic();
    ASSERT_TRUE(back.has_value());
    EXPECT_EQ(*back, list);
    EXPECT_FALSE((*back)[0].contains("name parent"));
    EXPECT_EQ((*back)[2].at("name parent"), "");
    EXPECT_EQ((*back)[0].at("new hotkey"), "");
    EXPECT_EQ((*back)[0].at("for edit"), kAttack.at("for edit"));
}

TEST(UserDefaults, MainDicIsWrittenAtOnce) {
    StoreFolder folder;
    auto settings = openUserDefaults();
    UserDefaults(*settings).setMainDic({kHolyLight});
    // Still open: the file already holds the list.
    const std::optional<QSettings::SettingsMap> onDisk = settingsFromPlist(folder.readStore());
    ASSERT_TRUE(onDisk.has_value());
    const QVariantList stored = onDisk->value(QStringLiteral("mainDic")).toList();
    ASSERT_EQ(stored.size(), 1);
    EXPECT_EQ(stored[0].toMap().value(QStringLiteral("name parent")).toString(),
              QStringLiteral("Paladin"));
}

TEST(UserDefaults, TheListAlreadyHeldIsNotWrittenAgain) {
    StoreFolder folder;
    const std::vector<AbilityRecord> list{kAttack, kHolyLight, kEmptyParent};
    {
        auto settings = openUserDefaults();
        UserDefaults(*settings).setMainDicIfChanged(list);
    }
    const QByteArray first = folder.readStore();
    ASSERT_TRUE(settingsFromPlist(first).has_value());
    // A rewrite replaces the file with a new one; the list already held leaves it in place.
    const auto inode = [&] {
        struct stat status {};
        return ::stat(QFile::encodeName(folder.storePath()).constData(), &status) == 0
                   ? status.st_ino
                   : ino_t{0};
    };
    const ino_t before = inode();
    {
        auto settings = openUserDefaults();
        UserDefaults(*settings).setMainDicIfChanged(list);
    }
    EXPECT_EQ(inode(), before);
    EXPECT_EQ(folder.readStore(), first);
    {
        auto settings = openUserDefaults();
        UserDefaults(*settings).setMainDicIfChanged({kHolyLight});
    }
    EXPECT_NE(inode(), before);
    auto settings = openUserDefaults();
    EXPECT_EQ(UserDefaults(*settings).mainDic(), std::vector<AbilityRecord>{kHolyLight});
}

TEST(UserDefaults, SomeInventorySlotsStoredOthersAbsent) {
    StoreFolder folder;
    {
        auto settings = openUserDefaults();
        UserDefaults defaults(*settings);
        // An empty array, as a store written elsewhere may hold: the key is there, no binding.
        settings->setValue(QStringLiteral("inventoryModel6"), QVariantList{});
        defaults.setInventoryModel(1, {1, 56, 18});
        defaults.setInventoryModel(4, {4, 0, -1});
    }
    EXPECT_TRUE(folder.readStore().contains("<key>inventoryModel6</key>"));
    EXPECT_TRUE(folder.readStore().contains("<key>inventoryModel4</key>"));
    auto settings = openUserDefaults();
    UserDefaults defaults(*settings);
    EXPECT_EQ(defaults.inventoryModel(1), (SlotBinding{1, 56, 18}));
    EXPECT_EQ(defaults.inventoryModel(4), (SlotBinding{4, 0, -1}));
    EXPECT_FALSE(defaults.inventoryModel(6).has_value());
    EXPECT_FALSE(defaults.inventoryModel(2).has_value());
    EXPECT_FALSE(defaults.inventoryModel(3).has_value());
    EXPECT_FALSE(defaults.inventoryModel(5).has_value());
    EXPECT_FALSE(defaults.mainDic().has_value());
}

TEST(UserDefaults, RemovingASlotKeepsTheOthers) {
    StoreFolder folder;
    {
        auto settings = openUserDefaults();
        UserDefaults defaults(*settings);
        defaults.setMainDic({kAttack});
        defaults.setInventoryModel(2, {2, 0, 12});
        defaults.setInventoryModel(4, {4, 56, 13});
        defaults.removeInventoryModel(2);
        EXPECT_FALSE(defaults.inventoryModel(2).has_value());
    }
    EXPECT_FALSE(folder.readStore().contains("inventoryModel2"));
    auto settings = openUserDefaults();
    UserDefaults defaults(*settings);
    EXPECT_FALSE(defaults.inventoryModel(2).has_value());
    EXPECT_EQ(defaults.inventoryModel(4), (SlotBinding{4, 56, 13}));
    EXPECT_EQ(defaults.mainDic(), std::vector<AbilityRecord>{kAttack});
}

TEST(UserDefaults, StoringTheSameAgainRewritesTheSameBytes) {
    StoreFolder folder;
    const std::vector<AbilityRecord> list{kAttack, kHolyLight, kEmptyParent};
    {
        auto settings = openUserDefaults();
        UserDefaults defaults(*settings);
        defaults.setMainDic(list);
        defaults.setInventoryModel(3, {3, 0, 12});
    }
    const QByteArray first = folder.readStore();
    ASSERT_FALSE(first.isEmpty());
    {
        auto settings = openUserDefaults();
        UserDefaults defaults(*settings);
        defaults.setInventoryModel(3, {3, 0, 13});
    }
    ASSERT_NE(folder.readStore(), first);
    {
        auto settings = openUserDefaults();
        UserDefaults defaults(*settings);
        defaults.setMainDic(list);
        defaults.setInventoryModel(3, {3, 0, 12});
    }
    EXPECT_EQ(folder.readStore(), first);
}

TEST(UserDefaults, WritingLeavesNoTemporaryFilesBehind) {
    StoreFolder folder;
    {
        auto settings = openUserDefaults();
        UserDefaults defaults(*settings);
        for (int slot = 1; slot <= 6; ++slot) {
            defaults.setInventoryModel(slot, {slot, 0, 12});
        }
        defaults.setMainDic({kAttack});
        EXPECT_EQ(settings->status(), QSettings::NoError);
    }
    const QStringList files =
        QDir(folder.configHome() + QStringLiteral("/Tarnic")).entryList(QDir::Files | QDir::Hidden);
    EXPECT_EQ(files, QStringList{QStringLiteral("Tarnic Pro.plist")});
}

TEST(UserDefaults, StringDigitsAreNotAnInventoryModel) {
    StoreFolder folder;
    folder.writeStore(plistXml("<dict><key>inventoryModel3</key><array><integer>3</integer>"
                               "<integer>0</integer><integer>12</integer></array></dict>"));
    auto settings = openUserDefaults();
    EXPECT_EQ(UserDefaults(*settings).inventoryModel(3), (SlotBinding{3, 0, 12}));
    folder.writeStore(plistXml("<dict><key>inventoryModel3</key><array><string>3</string>"
                               "<string>0</string><string>12</string></array></dict>"));
    auto reread = openUserDefaults();
    EXPECT_DEATH(UserDefaults(*reread).inventoryModel(3),
                 "inventoryModel3.*expected array of integers, found array containing string");
}

// A hand-edited store with a value of the wrong type ends the program with a message that names
// the key, the type expected and the type found.
struct WrongTypeCase {
    const char* name;
    const char* body;
    const char* pattern;
};

void PrintTo(const WrongTypeCase& wrongCase, std::ostream* out) {
    *out << wrongCase.name;
}

class WrongStoredType : public ::testing::TestWithParam<WrongTypeCase> {};

TEST_P(WrongStoredType, IsAFatalErrorNamingKeyAndTypes) {
    StoreFolder folder;
    folder.writeStore(plistXml(QByteArray("<dict>") + GetParam().body + "</dict>"));
    auto settings = openUserDefaults();
    UserDefaults defaults(*settings);
    const bool isMainDic = QByteArray(GetParam().body).contains("mainDic");
    if (isMainDic) {
        EXPECT_DEATH(defaults.mainDic(), GetParam().pattern);
    } else {
        EXPECT_DEATH(defaults.inventoryModel(3), GetParam().pattern);
    }
    // Nothing was repaired or removed.
    EXPECT_TRUE(folder.readStore().contains(GetParam().body));
}

INSTANTIATE_TEST_SUITE_P(
    Store, WrongStoredType,
    ::testing::Values(
        WrongTypeCase{
            "MainDicString", "<key>mainDic</key><string>list</string>",
            "Fatal error: Stored value of the wrong type: key \"mainDic\".*expected array "
            "of dictionaries of strings, found string"},
        WrongTypeCase{"MainDicArrayOfIntegers",
                      "<key>mainDic</key><array><integer>1</integer><integer>2</integer></array>",
                      "key \"mainDic\".*expected array of dictionaries of strings, found array "
                      "containing integer"},
        WrongTypeCase{"MainDicIntegerValue",
                      "<key>mainDic</key><array><dict><key>name</key><string>Attack</string>"
                      "<key>def hotkey</key><integer>65</integer></dict></array>",
                      "key \"mainDic\".*expected array of dictionaries of strings, found array "
                      "containing dictionary with integer value under \"def hotkey\""},
        WrongTypeCase{"InventoryModelString", "<key>inventoryModel3</key><string>3,0,12</string>",
                      "Fatal error: Stored value of the wrong type: key \"inventoryModel3\".*"
                      "expected array of integers, found string"},
        WrongTypeCase{"InventoryModelArrayOfStrings",
                      "<key>inventoryModel3</key><array><string>a</string></array>",
                      "key \"inventoryModel3\".*expected array of integers, found array "
                      "containing string"}),
    [](const ::testing::TestParamInfo<WrongTypeCase>& info) { return info.param.name; });

TEST(UserDefaults, KeysWithASlashStayFlat) {
    StoreFolder folder;
    {
        auto settings = openUserDefaults();
        settings->setValue(QStringLiteral("window/geometry"), QStringLiteral("800x600"));
    }
    const QByteArray file = folder.readStore();
    EXPECT_TRUE(file.contains("<key>window/geometry</key>")) << file.toStdString();
    EXPECT_FALSE(file.contains("<key>window</key>")) << file.toStdString();
    auto settings = openUserDefaults();
    settings->beginGroup(QStringLiteral("window"));
    EXPECT_EQ(settings->value(QStringLiteral("geometry")).toString(), QStringLiteral("800x600"));
}

TEST(UserDefaults, BinaryPropertyListIsReadAndWrittenBackAsXml) {
    StoreFolder folder;
    plist_t root = plist_new_dict();
    plist_t model = plist_new_array();
    for (const std::int64_t number : {5, 56, 14}) {
        plist_array_append_item(model, plist_new_uint(static_cast<std::uint64_t>(number)));
    }
    plist_dict_set_item(root, "inventoryModel5", model);
    char* binary = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(root, &binary, &length);
    plist_free(root);
    ASSERT_NE(binary, nullptr);
    folder.writeStore(QByteArray(binary, static_cast<qsizetype>(length)));
    plist_to_bin_free(binary);
    ASSERT_TRUE(folder.readStore().startsWith("bplist00"));

    CaptureStderr();
    auto settings = openUserDefaults();
    EXPECT_EQ(GetCapturedStderr(), "");
    EXPECT_TRUE(folder.setAsideFiles().isEmpty());
    UserDefaults defaults(*settings);
    EXPECT_EQ(defaults.inventoryModel(5), (SlotBinding{5, 56, 14}));
    defaults.setInventoryModel(1, {1, 0, 12});
    const QByteArray file = folder.readStore();
    EXPECT_TRUE(file.contains("<key>inventoryModel5</key>")) << file.toStdString();
    EXPECT_TRUE(file.contains("<key>inventoryModel1</key>")) << file.toStdString();
}

TEST(UserDefaults, UnparsableStoreIsSetAsideAndTheStoreStartsEmpty) {
    StoreFolder folder;
    const QByteArray garbage("\x00\x01not a property list\xff\xfe{mainDic=(", 30);
    folder.writeStore(garbage);

    CaptureStderr();
    auto settings = openUserDefaults();
    const std::string message = GetCapturedStderr();

    const QStringList aside = folder.setAsideFiles();
    ASSERT_EQ(aside.size(), 1) << message;
    EXPECT_EQ(folder.readInStoreFolder(aside[0]), garbage);
    EXPECT_NE(message.find(folder.storePath().toStdString()), std::string::npos) << message;
    EXPECT_NE(message.find(aside[0].toStdString()), std::string::npos) << message;
    EXPECT_NE(message.find("could not read"), std::string::npos) << message;

    UserDefaults defaults(*settings);
    EXPECT_TRUE(settings->allKeys().isEmpty());
    EXPECT_EQ(settings->status(), QSettings::NoError);
    EXPECT_FALSE(defaults.mainDic().has_value());
    EXPECT_FALSE(defaults.inventoryModel(1).has_value());

    defaults.setMainDic({kAttack});
    settings.reset();
    EXPECT_EQ(folder.setAsideFiles(), aside);
    EXPECT_EQ(folder.readInStoreFolder(aside[0]), garbage);
    EXPECT_TRUE(settingsFromPlist(folder.readStore()).has_value());
    auto reopened = openUserDefaults();
    EXPECT_EQ(UserDefaults(*reopened).mainDic(), std::vector<AbilityRecord>{kAttack});
}

TEST(UserDefaults, ABinaryStoreWithAKeyHoldingANulByteIsSetAside) {
    StoreFolder folder;
    const QByteArray store = binaryPlistWithKey(QString::fromLatin1("mainDic\0", 8));
    folder.writeStore(store);
    CaptureStderr();
    auto settings = openUserDefaults();
    const std::string message = GetCapturedStderr();
    const QStringList aside = folder.setAsideFiles();
    ASSERT_EQ(aside.size(), 1) << message;
    EXPECT_EQ(folder.readInStoreFolder(aside[0]), store);
    EXPECT_TRUE(settings->allKeys().isEmpty());
    EXPECT_FALSE(UserDefaults(*settings).mainDic().has_value());
}

TEST(UserDefaults, TopLevelArrayIsTreatedAsUnparsable) {
    StoreFolder folder;
    const QByteArray array =
        plistXml("<array><dict><key>mainDic</key><string>x</string></dict></array>");
    folder.writeStore(array);
    CaptureStderr();
    auto settings = openUserDefaults();
    const std::string message = GetCapturedStderr();
    const QStringList aside = folder.setAsideFiles();
    ASSERT_EQ(aside.size(), 1) << message;
    EXPECT_EQ(folder.readInStoreFolder(aside[0]), array);
    EXPECT_NE(message.find(folder.storePath().toStdString()), std::string::npos) << message;
    EXPECT_FALSE(UserDefaults(*settings).mainDic().has_value());
}

TEST(UserDefaults, AnEarlierSetAsideCopyIsNeverOverwritten) {
    StoreFolder folder;
    const QByteArray first("first garbage");
    const QByteArray second("second garbage");
    folder.writeStore(first);
    CaptureStderr();
    openUserDefaults();
    folder.writeStore(second);
    openUserDefaults();
    GetCapturedStderr();
    const QStringList aside = folder.setAsideFiles();
    ASSERT_EQ(aside.size(), 2);
    QList<QByteArray> contents{folder.readInStoreFolder(aside[0]),
                               folder.readInStoreFolder(aside[1])};
    EXPECT_TRUE(contents.contains(first));
    EXPECT_TRUE(contents.contains(second));
}

TEST(UserDefaults, EmptyStoreFileIsJustEmpty) {
    StoreFolder folder;
    folder.writeStore(QByteArray());
    CaptureStderr();
    auto settings = openUserDefaults();
    EXPECT_EQ(GetCapturedStderr(), "");
    EXPECT_TRUE(folder.setAsideFiles().isEmpty());
    EXPECT_FALSE(UserDefaults(*settings).mainDic().has_value());
}

} // namespace
} // namespace tarnic
