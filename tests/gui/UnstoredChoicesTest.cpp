#include "EditorFixture.h"

#include "core/catalogue/Catalogue.h"

#include <QFile>
#include <QSignalSpy>

namespace tarnic::testing {
namespace {

// The title marks a working list that differs from the stored one: keys set by hand live in
// memory only and are gone after the window closes.
class UnstoredChoices : public EditorFixture {
protected:
    void SetUp() override {
        EditorFixture::SetUp();
        launch();
    }
    bool marked() { return window().isWindowModified(); }
    void importFile(const QString& path) {
        QSignalSpy finished(&exchange(), &FileExchangeController::importFinished);
        exchange().fileDialog().setNextAnswer(path);
        ui().actionImport->trigger();
        ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    }
};

TEST_F(UnstoredChoices, TheTitleCarriesTheModifiedPlaceholder) {
    EXPECT_EQ(window().windowTitle(), "Tarnic Pro[*]");
}

TEST_F(UnstoredChoices, AStartedWindowIsNotMarked) {
    EXPECT_FALSE(marked());
}

TEST_F(UnstoredChoices, AKeySetByHandMarksTheTitle) {
    clickRow(3);
    choose(*ui().keysPopup, "Q");
    EXPECT_TRUE(marked());
}

TEST_F(UnstoredChoices, GridLayoutStoresTheListAndClearsTheMark) {
    clickRow(3);
    choose(*ui().keysPopup, "Q");
    click(*ui().gridButton);
    EXPECT_FALSE(marked());
    EXPECT_EQ(storedMainDic(), editor().mainDic());
}

TEST_F(UnstoredChoices, ResetToTheStoredListClearsTheMark) {
    clickRow(3);
    choose(*ui().keysPopup, "Q");
    click(*ui().resetButton);
    EXPECT_FALSE(marked());
}

TEST_F(UnstoredChoices, ResetAwayFromAStoredLayoutMarksTheTitle) {
    click(*ui().gridButton);
    ASSERT_FALSE(marked());
    click(*ui().resetButton);
    EXPECT_TRUE(marked());
    // Reset stores nothing: the store still holds the layout.
    EXPECT_NE(storedMainDic(), all_data());
}

TEST_F(UnstoredChoices, SettingTheKeyBackDoesNotClearTheMarkWhileTheRecordDiffers) {
    // Choosing the default key by hand still fills the record's edited text.
    clickRow(3);
    choose(*ui().keysPopup, "Q");
    choose(*ui().keysPopup, "H");
    EXPECT_TRUE(marked());
}

TEST_F(UnstoredChoices, AnImportThatChangesTheListMarksTheTitle) {
    importFile(QStringLiteral(TARNIC_SOURCE_DIR "/tests/data/export-hand-set.txt"));
    EXPECT_TRUE(marked());
    importFile(QStringLiteral(TARNIC_SOURCE_DIR "/tests/data/game-default-CustomKeys.txt"));
    EXPECT_FALSE(marked());
}

TEST_F(UnstoredChoices, TheMarkedChoicesAreGoneAfterTheNextStart) {
    clickRow(3);
    choose(*ui().keysPopup, "Q");
    ASSERT_TRUE(marked());
    launch();
    EXPECT_EQ(editor().mainDic(), all_data());
    EXPECT_FALSE(marked());
}

} // namespace
} // namespace tarnic::testing
