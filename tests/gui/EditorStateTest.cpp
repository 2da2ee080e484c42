#include "EditorFixture.h"

#include "QuitWatch.h"
#include "core/catalogue/Catalogue.h"
#include "core/editor/RecordFactory.h"
#include "core/vocabulary/KeyCodes.h"
#include "gui/GuiResources.h"
#include "store/ProgramOptions.h"

#include <QApplication>
#include <QDir>
#include <QFile>

// Resources are registered and unregistered by name, outside any namespace.
static void unregisterTemplate() {
    Q_CLEANUP_RESOURCE(defaultkeys);
}
static void registerTemplate() {
    Q_INIT_RESOURCE(defaultkeys);
}

namespace tarnic::testing {
namespace {

class EditorState : public EditorFixture {};

TEST_F(EditorState, InitialValuesBeforeTheViewLoads) {
    const std::unique_ptr<QSettings> settings = openUserDefaults();
    const std::unique_ptr<QSettings> options = openProgramOptions();
    InventoryBindings bindings;
    EditorController editor(*settings);
    FileExchangeController exchange(editor, alerts());
    InventoryPanelController panel(*settings, *options, bindings);
    EXPECT_EQ(exchange.def_keys_bundle(), "");
    EXPECT_EQ(exchange.result(), "");
    EXPECT_EQ(panel.inventoryEditNow(), 0);
    EXPECT_EQ(bindings, InventoryBindings{});
    EXPECT_EQ(editor.mainDic(), all_data());
    // Nothing is stored before the view loads.
    EXPECT_FALSE(QFile::exists(storePath()));
}

TEST_F(EditorState, FirstRunShowsAndStoresTheCatalogueWithEverySlotEmpty) {
    launch();
    const auto& catalogue = all_data();
    ASSERT_EQ(editor().tableModel().rowCount(), static_cast<int>(catalogue.size()));
    for (std::size_t r = 0; r < catalogue.size(); ++r) {
        EXPECT_EQ(
            editor().tableModel().index(static_cast<int>(r), 0).data().toString().toStdString(),
            catalogue[r].at(name_spell));
    }
    EXPECT_EQ(storedMainDic(), catalogue);
    for (int n = 1; n <= 6; ++n) {
        EXPECT_FALSE(app().inventoryBindings().of(n).has_value());
        EXPECT_FALSE(storeHasKey(QStringLiteral("inventoryModel%1").arg(n)));
    }
}

TEST_F(EditorState, StoredListReplacesTheCatalogueWhole) {
    auto list = generalCommands();
    list.push_back(makeRecord("Lost Ability", "Old Unit", "L"));
    storeMainDic(list);
    launch();
    EXPECT_EQ(editor().mainDic(), list);
    ASSERT_EQ(editor().tableModel().rowCount(), 8);
    EXPECT_EQ(editor().tableModel().index(7, 0).data().toString(), "Lost Ability");
    EXPECT_EQ(storedMainDic(), list);
    EXPECT_EQ(ui().spellLbl->text(), "Move");
}

TEST_F(EditorState, SingleAssignmentIsLostAtTheNextStart) {
    launch();
    clickRow(3);
    choose(*ui().keysPopup, "Q");
    ASSERT_EQ(editor().mainDic()[3].at(new_hotkey), "Q");
    EXPECT_EQ(storedMainDic(), all_data());
    launch();
    EXPECT_EQ(editor().mainDic()[3].at(new_hotkey), "");
    EXPECT_EQ(editor().mainDic(), all_data());
}

TEST_F(EditorState, AssignmentFollowedByGridLayoutSurvives) {
    launch();
    clickRow(3);
    choose(*ui().keysPopup, "Q");
    click(*ui().gridButton);
    const auto laidOut = editor().mainDic();
    launch();
    EXPECT_EQ(editor().mainDic()[3].at(new_hotkey), "Q");
    EXPECT_EQ(editor().mainDic(), laidOut);
}

TEST_F(EditorState, OnlyTheStoredSlotsAreRestored) {
    storeInventoryModel(2, {2, 0, 12});
    storeInventoryModel(5, {5, 56, 18});
    launch();
    EXPECT_EQ(app().inventoryBindings().of(2), (SlotBinding{2, 0, 12}));
    EXPECT_EQ(app().inventoryBindings().of(5), (SlotBinding{5, 56, 18}));
    for (const int slot : {1, 3, 4, 6}) {
        EXPECT_FALSE(app().inventoryBindings().of(slot).has_value());
    }
}

TEST_F(EditorState, PopupsHoldTheirTitlesInOrder) {
    launch();
    const QComboBox& inventory = *ui().inventPopup;
    ASSERT_EQ(inventory.count(), 49);
    EXPECT_EQ(inventory.itemText(0), "Select");
    for (int i = 0; i < 22; ++i) {
        EXPECT_EQ(inventory.itemText(1 + i).toStdString(), keyboardKeysNum[i]);
    }
    for (int i = 0; i < 26; ++i) {
        EXPECT_EQ(inventory.itemText(23 + i).toStdString(), keyboardKeys[i]);
    }
    const QComboBox& keys = *ui().keysPopup;
    ASSERT_EQ(keys.count(), 26);
    for (int i = 0; i < 26; ++i) {
        EXPECT_EQ(keys.itemText(i).toStdString(), keyboardKeys[i]);
    }
}

TEST_F(EditorState, FirstRowIsSelectedAndShown) {
    launch();
    EXPECT_EQ(ui().tableView->selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(ui().tableView->selectionModel()->selectedRows().value(0).row(), 0);
    EXPECT_EQ(ui().spellLbl->text().toStdString(), all_data().at(0).at(name_spell));
}

TEST_F(EditorState, TemplateIsTheShippedFileWhole) {
    launch();
    QFile shipped(QStringLiteral(TARNIC_SOURCE_DIR "/resources/defaultkeys"));
    ASSERT_TRUE(shipped.open(QIODevice::ReadOnly));
    EXPECT_EQ(exchange().def_keys_bundle(), shipped.readAll().toStdString());
    EXPECT_NE(exchange().def_keys_bundle().find(mark), std::string::npos);
}

TEST_F(EditorState, WithoutTheTemplateStartUpCompletesWithAnEmptyTemplate) {
    initGuiResources();
    unregisterTemplate();
    launch();
    registerTemplate();
    EXPECT_EQ(exchange().def_keys_bundle(), "");
    EXPECT_EQ(ui().spellLbl->text().toStdString(), all_data().at(0).at(name_spell));
}

TEST_F(EditorState, HidingTheApplicationEndsIt) {
    launch();
    EXPECT_TRUE(quitsAfter([] { emit qGuiApp->applicationStateChanged(Qt::ApplicationHidden); }));
}

TEST_F(EditorState, OtherApplicationStatesDoNotEndIt) {
    launch();
    EXPECT_FALSE(quitsAfter([] {
        emit qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
        emit qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    }));
}

TEST_F(EditorState, ClosingTheWindowEndsIt) {
    launch();
    // Not Qt's own last-window rule: the application ends itself.
    QApplication::setQuitOnLastWindowClosed(false);
    const bool quit = quitsAfter([this] { window().close(); });
    QApplication::setQuitOnLastWindowClosed(true);
    EXPECT_TRUE(quit);
}

TEST_F(EditorState, QuitInTheFileMenuEndsIt) {
    launch();
    QApplication::setQuitOnLastWindowClosed(false);
    const bool quit = quitsAfter([this] { ui().actionQuit->trigger(); });
    QApplication::setQuitOnLastWindowClosed(true);
    EXPECT_TRUE(quit);
}

TEST_F(EditorState, MinimizingDoesNotEndIt) {
    launch();
    EXPECT_FALSE(quitsAfter([this] { window().showMinimized(); }));
    EXPECT_FALSE(quitsAfter([this] { window().showNormal(); }));
}

TEST_F(EditorState, UnparsableStoreIsKeptAsideAndTheCatalogueLoads) {
    const QByteArray garbage = "this is not a property list \x01\x02";
    QDir().mkpath(QFileInfo(storePath()).path());
    {
        QFile file(storePath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(garbage);
    }
    launch();
    EXPECT_EQ(editor().mainDic(), all_data());
    const QDir folder = QFileInfo(storePath()).dir();
    const QStringList aside =
        folder.entryList({QFileInfo(storePath()).fileName() + "*unreadable*"}, QDir::Files);
    ASSERT_EQ(aside.size(), 1);
    QFile kept(folder.filePath(aside.first()));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), garbage);
    EXPECT_EQ(storedMainDic(), all_data());
}

using EditorStateDeathTest = EditorState;

TEST_F(EditorStateDeathTest, ListOfTheWrongTypeEndsTheProgram) {
    storeRaw("mainDic", QStringLiteral("not a list"));
    EXPECT_DEATH(launch(), "mainDic");
}

TEST_F(EditorStateDeathTest, BindingOfTheWrongTypeEndsTheProgram) {
    storeRaw("inventoryModel3", QStringLiteral("Q"));
    EXPECT_DEATH(launch(), "inventoryModel3");
}

TEST_F(EditorStateDeathTest, UnconnectedOutletEndsTheProgram) {
    const std::unique_ptr<QSettings> settings = openUserDefaults();
    const std::unique_ptr<QSettings> options = openProgramOptions();
    EditorController editor(*settings);
    EXPECT_DEATH(editor.viewDidLoad(),
                 "Unexpectedly found nil while implicitly unwrapping an Optional value: keysPopup");
    InventoryBindings bindings;
    InventoryPanelController panel(*settings, *options, bindings);
    EXPECT_DEATH(
        panel.viewDidLoad(),
        "Unexpectedly found nil while implicitly unwrapping an Optional value: inventPopup");
}

TEST_F(EditorStateDeathTest, OutletWhoseControlIsGoneEndsTheProgramAtItsUse) {
    launch();
    delete ui().defHotkey;
    EXPECT_DEATH(clickRow(2), "implicitly unwrapping an Optional value: defHotkey");
}

} // namespace
} // namespace tarnic::testing
