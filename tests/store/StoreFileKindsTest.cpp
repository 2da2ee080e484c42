// The store and the options file are read only when they are regular files: a named pipe, a
// socket, a device or a folder in their place never holds up the start, and says so.
#include "store/PlistFormat.h"
#include "store/ProgramOptions.h"
#include "store/StoreFolder.h"
#include "store/UserDefaults.h"
#include "support/SpecialFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <future>
#include <string>

namespace tarnic {
namespace {

using ::testing::internal::CaptureStderr;
using ::testing::internal::GetCapturedStderr;

const AbilityRecord kAttack{{"name", "Attack"}, {"def hotkey", "A"}, {"new hotkey", ""}};

// One kind of thing in place of a file: how to make it, how to know it again, what the message
// calls it.
struct Kind {
    const char* name;
    std::function<bool(const QString&)> make;
    std::function<bool(const QString&)> is;
    const char* reason;
};

// Failure messages name the kind, not its bytes.
void PrintTo(const Kind& kind, std::ostream* out) {
    *out << kind.name;
}

std::vector<Kind> kinds() {
    return {
        {"named pipe", makeNamedPipe, isNamedPipe, "it is a named pipe, not a regular file"},
        {"socket", [](const QString&) { return true; }, isSocket,
         "it is a socket, not a regular file"},
        {"link to a device", makeZeroDeviceLink, isSymlink,
         "it is a character device, not a regular file"},
        {"folder", [](const QString& path) { return QDir().mkdir(path); },
         [](const QString& path) { return QFileInfo(path).isDir() && !isSymlink(path); },
         "it is a folder, not a regular file"},
    };
}

class StoreFileKinds : public ::testing::TestWithParam<Kind> {
protected:
    void SetUp() override {
        ASSERT_TRUE(QDir().mkpath(folder.configHome() + QStringLiteral("/Tarnic")));
    }
    // Makes the kind at `path`; a socket stays bound as long as the test.
    void makeAt(const QString& path) {
        if (std::string(GetParam().name) == "socket") {
            socket_ = std::make_unique<BoundSocket>(path);
            ASSERT_TRUE(socket_->isBound());
        } else {
            ASSERT_TRUE(GetParam().make(path));
        }
        ASSERT_TRUE(GetParam().is(path));
    }
    // Runs `open` on a thread of its own, as the program reads its store, with a watchdog that
    // frees it should it wait in open() on a pipe at `path`; stores what it wrote on standard
    // error.
    std::unique_ptr<QSettings> openGuarded(const QString& path,
                                           std::function<std::unique_ptr<QSettings>()> open) {
        PipeWatchdog watchdog(path);
        QThread* const user = QThread::currentThread();
        CaptureStderr();
        auto settings = std::async(std::launch::async, [&] {
                            std::unique_ptr<QSettings> opened = open();
                            opened->moveToThread(user);
                            return opened;
                        }).get();
        message = GetCapturedStderr();
        EXPECT_FALSE(watchdog.fired()) << "waited in open() on " << path.toStdString();
        return settings;
    }

    StoreFolder folder;
    std::string message;

private:
    std::unique_ptr<BoundSocket> socket_;
};

TEST_P(StoreFileKinds, StoreIsSetAsideUnopenedAndTheStoreStartsEmpty) {
    makeAt(folder.storePath());
    auto settings = openGuarded(folder.storePath(), openUserDefaults);

    const QStringList aside = folder.setAsideEntries();
    ASSERT_EQ(aside.size(), 1) << message;
    EXPECT_TRUE(GetParam().is(folder.inStoreFolder(aside[0]))) << aside[0].toStdString();
    EXPECT_NE(message.find(folder.storePath().toStdString()), std::string::npos) << message;
    EXPECT_NE(message.find(GetParam().reason), std::string::npos) << message;
    EXPECT_NE(message.find(aside[0].toStdString()), std::string::npos) << message;

    UserDefaults defaults(*settings);
    EXPECT_TRUE(settings->allKeys().isEmpty());
    EXPECT_FALSE(defaults.mainDic().has_value());
    defaults.setMainDic({kAttack});
    settings.reset();
    EXPECT_TRUE(QFileInfo(folder.storePath()).isFile());
    EXPECT_TRUE(settingsFromPlist(folder.readStore()).has_value());
    EXPECT_TRUE(GetParam().is(folder.inStoreFolder(aside[0])));
}

TEST_P(StoreFileKinds, OptionsAreOffAndTheFileIsLeftAsItIs) {
    const QString path = programOptionsPath();
    makeAt(path);
    auto settings = openGuarded(path, openProgramOptions);
    EXPECT_NE(message.find("options file"), std::string::npos) << message;
    EXPECT_NE(message.find(path.toStdString()), std::string::npos) << message;
    EXPECT_NE(message.find(GetParam().reason), std::string::npos) << message;

    ProgramOptions options(*settings);
    EXPECT_FALSE(options.inventoryOptions().onlyWhileGameInFront);
    EXPECT_FALSE(options.inventoryOptions().pauseWhileTypingInChat);
    // A change holds for this run only: the file stays what it was, and nothing else appears.
    options.setOnlyWhileGameInFront(true);
    EXPECT_TRUE(options.inventoryOptions().onlyWhileGameInFront);
    EXPECT_TRUE(GetParam().is(path));
    QStringList expected{QFileInfo(path).fileName()};
    if (QFileInfo::exists(path + QStringLiteral(".device"))) {
        expected.append(QFileInfo(path).fileName() + QStringLiteral(".device"));
    }
    EXPECT_EQ(QDir(QFileInfo(path).path())
                  .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot,
                             QDir::Name),
              expected);
}

INSTANTIATE_TEST_SUITE_P(Kinds, StoreFileKinds, ::testing::ValuesIn(kinds()),
                         [](const ::testing::TestParamInfo<Kind>& info) {
                             std::string name = info.param.name;
                             std::replace(name.begin(), name.end(), ' ', '_');
                             return name;
                         });

} // namespace
} // namespace tarnic
