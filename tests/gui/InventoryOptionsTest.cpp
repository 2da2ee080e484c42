// The inventory panel's additions: slot buttons titled with their bindings, the line that says
// whether the inventory keys can work, and the two options with where they are kept.
#include "EditorFixture.h"

#include "core/vocabulary/KeyCodes.h"
#include "platform/null/NullPlatform.h"
#include "store/ProgramOptions.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>

#include <string>
#include <vector>

namespace tarnic::testing {
namespace {

using Posts = std::vector<std::string>;

class InventoryOptionsPanel : public EditorFixture {
protected:
    QPushButton& slotButton(int n) {
        QPushButton* buttons[] = {ui().invent1, ui().invent2, ui().invent3,
                                  ui().invent4, ui().invent5, ui().invent6};
        return *buttons[n - 1];
    }
    QStringList slotTitles() {
        QStringList titles;
        for (int n = 1; n <= 6; ++n) {
            titles.append(slotButton(n).text());
        }
        return titles;
    }
    // The options as a fresh reader of the options file finds them.
    InventoryOptions storedOptions() {
        QSettings file(programOptionsPath(), QSettings::IniFormat);
        return ProgramOptions(file).inventoryOptions();
    }
};

TEST_F(InventoryOptionsPanel, OnAFirstStartEverySlotShowsNone) {
    launch();
    EXPECT_EQ(slotTitles(), QStringList({"Slot 1  none", "Slot 2  none", "Slot 3  none",
                                         "Slot 4  none", "Slot 5  none", "Slot 6  none"}));
}

TEST_F(InventoryOptionsPanel, SlotButtonsShowTheRestoredBindingsAtStart) {
    storeInventoryModel(2, {2, 0, 18});
    storeInventoryModel(4, {4, 56, 6});
    storeInventoryModel(5, {5, 56, 999});
    storeInventoryModel(6, {6, 0, -1});
    launch();
    EXPECT_EQ(slotTitles(),
              QStringList({"Slot 1  none", "Slot 2  1", "Slot 3  none", "Slot 4  Shift+Z",
                           "Slot 5  (damaged)", "Slot 6  (no key)"}));
}

TEST_F(InventoryOptionsPanel, ABindingShowsOnItsButtonAtOnce) {
    launch();
    click(slotButton(1));
    click(*ui().isShiftBox);
    choose(*ui().inventPopup, "Z");
    EXPECT_EQ(slotButton(1).text(), "Slot 1  Shift+Z");

    click(slotButton(3));
    choose(*ui().inventPopup, "Q");
    EXPECT_EQ(slotButton(3).text(), "Slot 3  Q");
    choose(*ui().inventPopup, "Select");
    EXPECT_EQ(slotButton(3).text(), "Slot 3  (no key)") << "bound, but to no key";
    click(*ui().delBTN);
    EXPECT_EQ(slotButton(3).text(), "Slot 3  none");
    EXPECT_EQ(slotButton(1).text(), "Slot 1  Shift+Z") << "the other slots keep their titles";
}

TEST_F(InventoryOptionsPanel, TickingShiftAloneLeavesTheTitleAsTheBindingIs) {
    launch();
    click(slotButton(2));
    choose(*ui().inventPopup, "E");
    click(*ui().isShiftBox);
    EXPECT_EQ(slotButton(2).text(), "Slot 2  E");
    choose(*ui().inventPopup, "E");
    EXPECT_EQ(slotButton(2).text(), "Slot 2  Shift+E");
}

TEST_F(InventoryOptionsPanel, TrustedTheLineSaysTheInventoryKeysAreActive) {
    launch();
    EXPECT_EQ(ui().inventStatusLbl->text(), "Inventory keys active");
    EXPECT_FALSE(ui().inventStatusLbl->isHidden());
}

TEST_F(InventoryOptionsPanel, WithoutAnXServerTheLineSaysSo) {
    launch(makeNullPlatform());
    EXPECT_EQ(ui().inventStatusLbl->text(),
              "Inventory keys off: no X server to watch your keys on. Start Tarnic Pro in the "
              "desktop session the game runs in (X11, or Wayland with XWayland).");
}

TEST_F(InventoryOptionsPanel, UntrustedTheLineNamesWhatStandsInTheWay) {
    Platform platform = makeFakePlatform();
    fakeParts(platform).accessibilityTrust->setUntrusted(UntrustedReason::NoKeyRecording);
    launch(std::move(platform));
    EXPECT_EQ(ui().inventStatusLbl->text(),
              "Inventory keys off: the X server has no RECORD extension, so Tarnic Pro cannot "
              "see your key presses.");

    platform = makeFakePlatform();
    fakeParts(platform).accessibilityTrust->setUntrusted(UntrustedReason::RecordingRefused);
    launch(std::move(platform));
    EXPECT_EQ(ui().inventStatusLbl->text(),
              "Inventory keys off: the X server would not let Tarnic Pro watch your key presses "
              "(RECORD).");
}

TEST_F(InventoryOptionsPanel, BothOptionsStartOffAndAFirstStartWritesNoOptionsFile) {
    launch();
    EXPECT_FALSE(ui().onlyInGameBox->isChecked());
    EXPECT_FALSE(ui().pauseInChatBox->isChecked());
    EXPECT_FALSE(ui().onlyInGameBox->isHidden());
    EXPECT_FALSE(ui().pauseInChatBox->isHidden());
    EXPECT_FALSE(app().inventoryBindings().options.onlyWhileGameInFront);
    EXPECT_FALSE(app().inventoryBindings().options.pauseWhileTypingInChat);
    EXPECT_FALSE(QFile::exists(programOptionsPath()));
}

TEST_F(InventoryOptionsPanel, OptionsAreStoredInTheirOwnFileAndRestoredAtTheNextStart) {
    launch();
    click(*ui().onlyInGameBox);
    EXPECT_TRUE(app().inventoryBindings().options.onlyWhileGameInFront);
    EXPECT_FALSE(app().inventoryBindings().options.pauseWhileTypingInChat);
    EXPECT_TRUE(storedOptions().onlyWhileGameInFront);
    EXPECT_FALSE(storedOptions().pauseWhileTypingInChat);
    EXPECT_EQ(programOptionsPath(),
              dir_.filePath(QStringLiteral("config/Tarnic/Tarnic Pro Options.conf")));

    click(*ui().pauseInChatBox);
    EXPECT_TRUE(storedOptions().pauseWhileTypingInChat);
    // The user defaults store keeps exactly its own keys.
    EXPECT_EQ(storeKeys(), QStringList({"mainDic"}));

    launch();
    EXPECT_TRUE(ui().onlyInGameBox->isChecked());
    EXPECT_TRUE(ui().pauseInChatBox->isChecked());
    EXPECT_TRUE(app().inventoryBindings().options.onlyWhileGameInFront);
    EXPECT_TRUE(app().inventoryBindings().options.pauseWhileTypingInChat);

    click(*ui().onlyInGameBox);
    EXPECT_FALSE(app().inventoryBindings().options.onlyWhileGameInFront);
    EXPECT_FALSE(storedOptions().onlyWhileGameInFront);
    launch();
    EXPECT_FALSE(ui().onlyInGameBox->isChecked());
    EXPECT_TRUE(ui().pauseInChatBox->isChecked());
}

TEST_F(InventoryOptionsPanel, ADamagedOptionsFileReadsAsOff) {
    QDir().mkpath(QFileInfo(programOptionsPath()).path());
    QFile file(programOptionsPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[InventoryKeys]\nonlyWhileGameInFront=banana\npauseWhileTypingInChat=1 2\n");
    file.close();
    launch();
    EXPECT_FALSE(ui().onlyInGameBox->isChecked());
    EXPECT_FALSE(ui().pauseInChatBox->isChecked());
    EXPECT_FALSE(app().inventoryBindings().options.onlyWhileGameInFront);
}

TEST_F(InventoryOptionsPanel, OnlyWhileTheGameIsInFrontGatesTheTapsOnceTicked) {
    storeInventoryModel(1, {1, 0, 12});
    launch();
    fakes().frontmostWatcher->announce("notepad.exe");
    fakes().keyObserver->pressKey(12);
    EXPECT_EQ(fakes().keyPoster->posts(), (Posts{"89 down", "89 up"})) << "off: taps anywhere";

    fakes().keyPoster->clear();
    click(*ui().onlyInGameBox);
    fakes().keyObserver->pressKey(12);
    EXPECT_TRUE(fakes().keyPoster->posts().empty());
    fakes().frontmostWatcher->announce(std::string(war3ID));
    fakes().keyObserver->pressKey(12);
    EXPECT_EQ(fakes().keyPoster->posts(), (Posts{"89 down", "89 up"}));
}

TEST_F(InventoryOptionsPanel, PauseWhileTypingInChatHoldsTheTapsOnceTicked) {
    storeInventoryModel(2, {2, 0, 13});
    launch();
    click(*ui().pauseInChatBox);
    fakes().frontmostWatcher->announce(std::string(war3ID));
    fakes().keyObserver->pressKey(36); // Return: the chat line opens
    fakes().keyObserver->pressKey(13);
    EXPECT_TRUE(fakes().keyPoster->posts().empty());
    fakes().keyObserver->pressKey(36); // sent
    fakes().keyObserver->pressKey(13);
    EXPECT_EQ(fakes().keyPoster->posts(), (Posts{"91 down", "91 up"}));
}

TEST_F(InventoryOptionsPanel, TheGameAlreadyInFrontAtStartCounts) {
    storeInventoryModel(1, {1, 0, 12});
    QSettings file(programOptionsPath(), QSettings::IniFormat);
    ProgramOptions(file).setOnlyWhileGameInFront(true);
    Platform platform = makeFakePlatform();
    fakeParts(platform).frontmostWatcher->announce(std::string(war3ID));
    launch(std::move(platform));
    fakes().keyObserver->pressKey(12);
    EXPECT_EQ(fakes().keyPoster->posts(), (Posts{"89 down", "89 up"}));
}

} // namespace
} // namespace tarnic::testing
