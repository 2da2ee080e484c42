// The keyboard layout as the backend reads it from a real X server (Xvfb), switched with
// setxkbmap as a player's desktop switches it: the symbols of fr, de and us at the keys' places,
// the names and grid letters made from them, and the change of layout or of group followed.
#include "core/editor/GridLetters.h"
#include "core/vocabulary/KeyNames.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11EventPump.h"
#include "platform/x11/X11KeyLabels.h"
#include "support/GridGolden.h"
#include "support/LayoutKeysyms.h"
#include "support/ProcessUntil.h"
#include "support/XvfbSession.h"

#include <QProcess>
#include <QStringList>

#include <gtest/gtest.h>

#include <mutex>
#include <thread>

// Last: Xlib's macros (None, Bool) break the headers above.
#include <X11/XKBlib.h>
#include <X11/Xlib.h>

namespace tarnic {
namespace {

using namespace std::chrono_literals;
using test::XvfbSession;

class X11KeyLabelsTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(server.ok()) << server.error().toStdString();
        setLayout({"us"});
        connection = x11::X11Connection::open(display());
        ASSERT_NE(connection, nullptr);
    }

    const char* display() {
        displayName = server.display().toLocal8Bit();
        return displayName.constData();
    }

    void setLayout(const QStringList& arguments) {
        QProcess setxkbmap;
        setxkbmap.setProcessEnvironment(server.environment());
        setxkbmap.start("setxkbmap", arguments);
        ASSERT_TRUE(setxkbmap.waitForFinished(30000));
        ASSERT_EQ(setxkbmap.exitCode(), 0) << setxkbmap.readAllStandardError().toStdString();
    }

    // Switches the layout and waits until the labels were told of it.
    void switchTo(int& changes, const QStringList& arguments) {
        const int before = changes;
        setLayout(arguments);
        ASSERT_TRUE(test::processUntil([&] { return changes > before; }, 10s))
            << "no change announced after setxkbmap " << arguments.join(' ').toStdString();
    }

    static KeyNames namesFrom(const x11::X11KeyLabels& labels) {
        return KeyNames::fromLayout([&labels](int code) { return labels.keysymAt(code); });
    }

    // Every position of the hand-written table holds the keysym written there.
    static void expectKeysyms(const x11::X11KeyLabels& labels,
                              const std::map<int, std::uint32_t>& expected, const char* layout) {
        for (const auto& [code, keysym] : expected) {
            EXPECT_EQ(labels.keysymAt(code), keysym) << layout << ", key code " << code;
        }
    }

    XvfbSession server{false};
    QByteArray displayName;
    std::shared_ptr<x11::X11Connection> connection;
};

TEST_F(X11KeyLabelsTest, UsLayoutAsTheServerHasIt) {
    x11::X11KeyLabels labels(connection);
    expectKeysyms(labels, test::usKeysyms(), "us");
    const KeyNames names = namesFrom(labels);
    EXPECT_EQ(names.nameOf(12), "Q");
    EXPECT_EQ(names.nameOf(6), "Z");
    // Keys that print nothing keep their US names.
    EXPECT_EQ(names.nameOf(49), "Space");
    EXPECT_EQ(names.nameOf(53), "ESC");
    EXPECT_EQ(names.nameOf(122), "F1");
    EXPECT_EQ(names.nameOf(56), "\u21E7");
    EXPECT_EQ(names.nameOf(123), "\u25C0\uFE0E");
    EXPECT_EQ(gridLettersOf(names), qwerLetters());
}

TEST_F(X11KeyLabelsTest, FrenchGermanAndUsFollowedAsSetxkbmapSwitchesThem) {
    x11::X11KeyLabels labels(connection);
    int changes = 0;
    labels.addChangeMonitor([&changes] { ++changes; });

    switchTo(changes, {"fr"});
    expectKeysyms(labels, test::frenchKeysyms(), "fr");
    KeyNames names = namesFrom(labels);
    EXPECT_EQ(names.nameOf(12), "A");
    EXPECT_EQ(names.nameOf(6), "W");
    EXPECT_EQ(names.nameOf(0), "Q");
    EXPECT_EQ(gridLettersOf(names), (GridLetters{"A", "Z", "E", "R"}));

    switchTo(changes, {"de"});
    expectKeysyms(labels, test::germanKeysyms(), "de");
    names = namesFrom(labels);
    EXPECT_EQ(names.nameOf(6), "Y");
    EXPECT_EQ(names.nameOf(16), "Z");
    EXPECT_EQ(gridLettersOf(names), qwerLetters());

    switchTo(changes, {"us"});
    expectKeysyms(labels, test::usKeysyms(), "us");
    EXPECT_EQ(namesFrom(labels).nameOf(12), "Q");
}

TEST_F(X11KeyLabelsTest, TheGridExportFollowsEachLayout) {
    x11::X11KeyLabels labels(connection);
    int changes = 0;
    labels.addChangeMonitor([&changes] { ++changes; });
    const std::string golden = test::sourceFile("tests/data/export-grid-layout.txt");
    const std::string templateText = test::sourceFile("resources/defaultkeys");
    const auto gridExport = [&] {
        std::vector<AbilityRecord> list = all_data();
        allQWER(list, gridLettersOf(namesFrom(labels)));
        return exportText(list, templateText);
    };

    switchTo(changes, {"fr"});
    EXPECT_EQ(gridExport(), test::goldenGridExportWith({"A", "Z", "E", "R"}));
    switchTo(changes, {"de"});
    EXPECT_EQ(gridExport(), golden);
    switchTo(changes, {"us"});
    EXPECT_EQ(gridExport(), golden);
}

TEST_F(X11KeyLabelsTest, AGroupSwitchIsFollowed) {
    setLayout({"-layout", "us,fr"});
    x11::X11KeyLabels labels(connection);
    int changes = 0;
    labels.addChangeMonitor([&changes] { ++changes; });
    EXPECT_EQ(labels.keysymAt(12), std::uint32_t{'q'});

    // Another client locks the second group, as a layout toggle key would.
    Display* other = XOpenDisplay(display());
    ASSERT_NE(other, nullptr);
    ASSERT_TRUE(XkbLockGroup(other, XkbUseCoreKbd, 1));
    XSync(other, False);
    ASSERT_TRUE(test::processUntil([&] { return changes > 0; }, 10s));
    EXPECT_EQ(labels.keysymAt(12), std::uint32_t{'a'});
    EXPECT_EQ(gridLettersOf(namesFrom(labels)), (GridLetters{"A", "Z", "E", "R"}));

    const int before = changes;
    ASSERT_TRUE(XkbLockGroup(other, XkbUseCoreKbd, 0));
    XSync(other, False);
    ASSERT_TRUE(test::processUntil([&] { return changes > before; }, 10s));
    EXPECT_EQ(labels.keysymAt(12), std::uint32_t{'q'});
    XCloseDisplay(other);
}

TEST_F(X11KeyLabelsTest, ABurstOfNotificationsIsReadOnceAfterItSettles) {
    x11::X11KeyLabels labels(connection);
    int changes = 0;
    labels.addChangeMonitor([&changes] { ++changes; });
    setLayout({"de"});
    setLayout({"fr"});
    ASSERT_TRUE(connection->syncSucceeded());
    connection->eventPump().readPending();
    // Read, but not yet acted on: the layout is read again only once the burst has settled.
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(labels.keysymAt(12), std::uint32_t{'q'});
    ASSERT_TRUE(test::processUntil([&] { return changes > 0; }, 10s));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(labels.keysymAt(12), std::uint32_t{'a'});
}

// The key thread reads this connection's events in the middle of a key: a change of layout it
// reads there is still followed, from the main thread, and no Qt object is touched from the key
// thread meanwhile.
TEST_F(X11KeyLabelsTest, ALayoutChangeReadOnTheKeyThreadIsFollowed) {
    x11::X11KeyLabels labels(connection);
    int changes = 0;
    labels.addChangeMonitor([&changes] { ++changes; });
    static QStringList warnings;
    warnings.clear();
    const QtMessageHandler previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& message) { warnings << message; });
    setLayout({"fr"});
    std::thread keyThread([this] {
        const std::lock_guard lock(*connection->lock());
        if (connection->syncSucceeded()) {
            connection->eventPump().readPending();
        }
    });
    keyThread.join();
    const bool followed = test::processUntil([&] { return changes > 0; }, 10s);
    qInstallMessageHandler(previous);
    EXPECT_TRUE(followed);
    EXPECT_EQ(labels.keysymAt(12), std::uint32_t{'a'});
    EXPECT_TRUE(warnings.isEmpty()) << warnings.join('\n').toStdString();
}

TEST_F(X11KeyLabelsTest, ModifiersAndTheSameKeymapAgainTellNobody) {
    x11::X11KeyLabels labels(connection);
    int changes = 0;
    labels.addChangeMonitor([&changes] { ++changes; });
    Display* other = XOpenDisplay(display());
    ASSERT_NE(other, nullptr);
    // Caps Lock locked and unlocked: a state change, not a group change.
    XkbLockModifiers(other, XkbUseCoreKbd, LockMask, LockMask);
    XkbLockModifiers(other, XkbUseCoreKbd, LockMask, 0);
    XSync(other, False);
    // The same layout loaded again: notifications, but no key's symbol changed.
    setLayout({"us"});
    // The server sends every event it made before it answers our round trip; then they are read,
    // and the layout with them.
    ASSERT_TRUE(connection->syncSucceeded());
    labels.takeInChanges();
    EXPECT_EQ(changes, 0);
    setLayout({"fr"});
    ASSERT_TRUE(connection->syncSucceeded());
    labels.takeInChanges();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(labels.keysymAt(12), std::uint32_t{'a'});
    XCloseDisplay(other);
}

} // namespace
} // namespace tarnic
