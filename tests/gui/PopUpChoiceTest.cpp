#include "EditorFixture.h"

#include "WheelInput.h"
#include "core/catalogue/Catalogue.h"

#include <QAbstractItemView>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

namespace tarnic::testing {
namespace {

// The pop-ups as a player meets them: a wheel turned over them or keys typed on them while they
// are closed change nothing; only a pick from the open list does.
class PopUpChoice : public EditorFixture {
protected:
    void SetUp() override {
        EditorFixture::SetUp();
        launch();
        window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    }

    int rowNamed(const std::string& name) {
        for (std::size_t r = 0; r < editor().mainDic().size(); ++r) {
            if (editor().mainDic()[r].at(name_spell) == name) {
                return static_cast<int>(r);
            }
        }
        ADD_FAILURE() << "no ability " << name;
        return 0;
    }
    int selected() {
        const auto rows = ui().tableView->selectionModel()->selectedRows();
        return rows.size() == 1 ? rows.first().row() : -1;
    }

    // Keys as the keyboard types them: to the window, which gives them to the focused widget.
    void type(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(window().windowHandle(), key, modifiers);
    }

    // The text the Export button writes now.
    std::string exported() {
        const QString target = tempPath(QStringLiteral("CustomKeys%1.txt").arg(++exports_));
        QSignalSpy finished(&exchange(), &FileExchangeController::exportFinished);
        exchange().fileDialog().setNextAnswer(target);
        click(*ui().exportButton);
        EXPECT_TRUE(!finished.isEmpty() || finished.wait(5000));
        return bytesOf(target).toStdString();
    }

    // Nothing the player did changed a key: not in the working list, not in the export, and
    // nothing was written to the store.
    void expectNoKeyChanged(const QByteArray& storeBefore) {
        EXPECT_EQ(editor().mainDic(), all_data());
        EXPECT_EQ(bytesOf(storePath()), storeBefore);
        EXPECT_EQ(exported(), golden("export-untouched.txt").toStdString());
    }

    // Waits until the list of `popup` has closed, and gives the window back the activation
    // that a window manager gives it when the list's window goes.
    void waitForListClosed(QComboBox& popup) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return !popup.view()->isVisible(); }, 5000));
        if (!window().isActiveWindow()) {
            window().activateWindow();
            // Not qWaitForWindowActive: the window counts as active for it while the closed
            // list, its transient, still holds the activation.
            ASSERT_TRUE(QTest::qWaitFor([&] { return window().isActiveWindow(); }, 5000));
        }
    }

    // Clicks the pop-up, which opens its list, then closes the list with Escape: the pop-up
    // keeps the focus, as after a change of mind.
    void clickOpenThenEscape(QComboBox& popup) {
        QTest::mouseClick(&popup, Qt::LeftButton, {}, popup.rect().center());
        ASSERT_TRUE(popup.view()->isVisible());
        type(Qt::Key_Escape);
        waitForListClosed(popup);
        ASSERT_EQ(QApplication::focusWidget(), &popup);
    }

    QPushButton& slotButton(int n) {
        QPushButton* buttons[] = {ui().invent1, ui().invent2, ui().invent3,
                                  ui().invent4, ui().invent5, ui().invent6};
        return *buttons[n - 1];
    }

private:
    int exports_ = 0;
};

TEST_F(PopUpChoice, WheelOverTheClosedHotkeyPopUpChangesNothing) {
    clickRow(rowNamed("Hold"));
    ASSERT_EQ(ui().keysPopup->currentText(), "H");
    const QByteArray store = bytesOf(storePath());

    EXPECT_EQ(turnWheelOver(*ui().keysPopup, -2), 2);
    EXPECT_EQ(turnWheelOver(*ui().keysPopup, 3), 3);
    QApplication::processEvents();

    EXPECT_EQ(ui().keysPopup->currentText(), "H");
    EXPECT_FALSE(ui().keysPopup->view()->isVisible());
    EXPECT_EQ(editor().tableModel().index(rowNamed("Hold"), 3).data().toString(), "");
    expectNoKeyChanged(store);
}

TEST_F(PopUpChoice, WheelSentStraightToTheClosedHotkeyPopUpChangesNothing) {
    clickRow(rowNamed("Hold"));
    const QByteArray store = bytesOf(storePath());
    QComboBox& popup = *ui().keysPopup;
    for (int notch = 0; notch < 4; ++notch) {
        QWheelEvent wheel(popup.rect().center(), popup.mapToGlobal(popup.rect().center()), QPoint(),
                          QPoint(0, notch % 2 == 0 ? -120 : 120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&popup, &wheel);
    }
    EXPECT_EQ(popup.currentText(), "H");
    expectNoKeyChanged(store);
}

TEST_F(PopUpChoice, WheelDoesNotTakeTheFocusFromTheTable) {
    clickRow(rowNamed("Hold"));
    ASSERT_EQ(QApplication::focusWidget(), ui().tableView);
    turnWheelOver(*ui().keysPopup, -2);
    EXPECT_EQ(QApplication::focusWidget(), ui().tableView);
}

TEST_F(PopUpChoice, ArrowsAndLettersOnTheClosedHotkeyPopUpChangeNothing) {
    const int attack = rowNamed("Attack");
    clickRow(attack);
    ASSERT_EQ(ui().keysPopup->currentText(), "A");
    const QByteArray store = bytesOf(storePath());
    clickOpenThenEscape(*ui().keysPopup);

    for (Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_End,
                        Qt::Key_Home, Qt::Key_D, Qt::Key_Z, Qt::Key_Right, Qt::Key_Left}) {
        type(key);
    }
    type(Qt::Key_Up, Qt::ControlModifier);
    QTest::keyClicks(ui().keysPopup, QStringLiteral("dk"));
    QApplication::processEvents();

    EXPECT_EQ(ui().keysPopup->currentText(), "A");
    EXPECT_FALSE(ui().keysPopup->view()->isVisible());
    EXPECT_EQ(selected(), attack);
    expectNoKeyChanged(store);
}

TEST_F(PopUpChoice, SpaceReturnEnterAltDownAndF4OpenTheHotkeyList) {
    clickRow(rowNamed("Attack"));
    const QByteArray store = bytesOf(storePath());
    clickOpenThenEscape(*ui().keysPopup);
    const std::pair<Qt::Key, Qt::KeyboardModifiers> openers[] = {
        {Qt::Key_Space, Qt::NoModifier},
        {Qt::Key_Return, Qt::NoModifier},
        {Qt::Key_Enter, Qt::KeypadModifier},
        {Qt::Key_Down, Qt::AltModifier},
        {Qt::Key_F4, Qt::NoModifier}};
    for (const auto& [key, modifiers] : openers) {
        type(key, modifiers);
        EXPECT_TRUE(ui().keysPopup->view()->isVisible()) << key;
        // Escape leaves the list without a choice.
        type(Qt::Key_Escape);
        waitForListClosed(*ui().keysPopup);
    }
    EXPECT_EQ(ui().keysPopup->currentText(), "A");
    expectNoKeyChanged(store);
}

TEST_F(PopUpChoice, AChoiceFromTheOpenListChangesOneKeyThenTheArrowsMoveThroughAbilities) {
    const int attack = rowNamed("Attack");
    clickRow(attack);
    const QByteArray store = bytesOf(storePath());
    clickOpenThenEscape(*ui().keysPopup);

    // Open with Space; inside the list the arrows move: A is followed by S and D.
    type(Qt::Key_Space);
    ASSERT_TRUE(ui().keysPopup->view()->isVisible());
    type(Qt::Key_Down);
    type(Qt::Key_Down);
    EXPECT_EQ(editor().mainDic(), all_data()) << "moving in the open list chose something";
    type(Qt::Key_Return);
    waitForListClosed(*ui().keysPopup);

    EXPECT_EQ(ui().keysPopup->currentText(), "D");
    for (std::size_t r = 0; r < all_data().size(); ++r) {
        if (r != static_cast<std::size_t>(attack)) {
            EXPECT_EQ(editor().mainDic()[r], all_data()[r]) << "row " << r;
        }
    }
    EXPECT_EQ(editor().mainDic()[static_cast<std::size_t>(attack)].at(new_hotkey), "D");
    // Attack's one hotkey line, and nothing else, now holds D.
    std::string attackWithD = all_data()[static_cast<std::size_t>(attack)].at(def);
    const std::size_t line = attackWithD.rfind("Hotkey=A");
    ASSERT_NE(line, std::string::npos);
    attackWithD.replace(line, 8, "Hotkey=D");
    EXPECT_EQ(editor().mainDic()[static_cast<std::size_t>(attack)].at(new_edit), attackWithD);
    // Assigning a key is not stored.
    EXPECT_EQ(bytesOf(storePath()), store);

    // The focus is back on the table: Down moves to the next ability and changes no key.
    EXPECT_EQ(window().focusWidget(), ui().tableView);
    EXPECT_EQ(QApplication::focusWidget(), ui().tableView);
    type(Qt::Key_Down);
    EXPECT_EQ(selected(), attack + 1);
    const std::size_t next = static_cast<std::size_t>(attack + 1);
    EXPECT_EQ(editor().mainDic()[next], all_data()[next]);
    EXPECT_EQ(editor().mainDic()[static_cast<std::size_t>(attack)].at(new_hotkey), "D");

    // The export is the untouched one but for Attack's hotkey line.
    std::string expected = golden("export-untouched.txt").toStdString();
    const std::size_t section = expected.find("[CmdAttack]");
    ASSERT_NE(section, std::string::npos);
    const std::size_t key = expected.find("Hotkey=A", section);
    ASSERT_NE(key, std::string::npos);
    expected.replace(key, 8, "Hotkey=D");
    EXPECT_EQ(exported(), expected);
}

TEST_F(PopUpChoice, ChoosingTheShownKeyAgainStillAssignsIt) {
    const int hold = rowNamed("Hold");
    clickRow(hold);
    ui().keysPopup->setFocus();
    type(Qt::Key_Return);
    ASSERT_TRUE(ui().keysPopup->view()->isVisible());
    type(Qt::Key_Return);
    EXPECT_EQ(editor().mainDic()[static_cast<std::size_t>(hold)].at(new_hotkey), "H");
    // Its default text already holds H, so the filled template is that text.
    EXPECT_EQ(editor().mainDic()[static_cast<std::size_t>(hold)].at(new_edit),
              all_data()[static_cast<std::size_t>(hold)].at(def));
}

TEST_F(PopUpChoice, SelectingRowsMovesThePopUpWithoutAssigningAnything) {
    for (int row : {0, 5, 1, 9, 3}) {
        clickRow(row);
    }
    type(Qt::Key_Down);
    type(Qt::Key_Down);
    EXPECT_EQ(selected(), 5);
    EXPECT_EQ(ui().keysPopup->currentText(), QString::fromStdString(all_data()[5].at(def_hotkey)));
    EXPECT_EQ(editor().mainDic(), all_data());
}

TEST_F(PopUpChoice, WheelOverTheClosedInventoryPopUpBindsNothing) {
    click(slotButton(1));
    ASSERT_EQ(ui().inventPopup->currentText(), "Select");
    const QByteArray store = bytesOf(storePath());

    EXPECT_EQ(turnWheelOver(*ui().inventPopup, -3), 3);
    EXPECT_EQ(turnWheelOver(*ui().inventPopup, 2), 2);
    QApplication::processEvents();

    EXPECT_EQ(ui().inventPopup->currentText(), "Select");
    EXPECT_FALSE(app().inventoryBindings().of(1).has_value());
    EXPECT_FALSE(storeHasKey(QStringLiteral("inventoryModel1")));
    EXPECT_EQ(bytesOf(storePath()), store);
}

TEST_F(PopUpChoice, KeysOnTheClosedInventoryPopUpBindNothing) {
    click(slotButton(2));
    choose(*ui().inventPopup, "E");
    ASSERT_EQ(storedInventoryModel(2), (SlotBinding{2, 0, 14}));
    const QByteArray store = bytesOf(storePath());
    clickOpenThenEscape(*ui().inventPopup);

    for (Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_End,
                        Qt::Key_3, Qt::Key_Q, Qt::Key_PageUp}) {
        type(key);
    }
    QApplication::processEvents();

    EXPECT_EQ(ui().inventPopup->currentText(), "E");
    EXPECT_EQ(app().inventoryBindings().of(2), (SlotBinding{2, 0, 14}));
    EXPECT_EQ(bytesOf(storePath()), store);
    for (int other : {1, 3, 4, 5, 6}) {
        EXPECT_FALSE(storeHasKey(QStringLiteral("inventoryModel%1").arg(other)));
    }
}

TEST_F(PopUpChoice, AChoiceFromTheOpenInventoryListBindsOnceAndGivesTheFocusBack) {
    const int row = selected();
    click(slotButton(1));
    clickOpenThenEscape(*ui().inventPopup);
    ASSERT_FALSE(storeHasKey(QStringLiteral("inventoryModel1")));

    // Alt+Down opens; "Select" is followed by the digits 1, 2, 3.
    type(Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(ui().inventPopup->view()->isVisible());
    for (int step = 0; step < 3; ++step) {
        type(Qt::Key_Down);
    }
    EXPECT_FALSE(storeHasKey(QStringLiteral("inventoryModel1")));
    type(Qt::Key_Return);
    waitForListClosed(*ui().inventPopup);

    EXPECT_EQ(ui().inventPopup->currentText(), "3");
    EXPECT_EQ(app().inventoryBindings().of(1), (SlotBinding{1, 0, 20}));
    EXPECT_EQ(storedInventoryModel(1), (SlotBinding{1, 0, 20}));
    for (int other : {2, 3, 4, 5, 6}) {
        EXPECT_FALSE(app().inventoryBindings().of(other).has_value());
        EXPECT_FALSE(storeHasKey(QStringLiteral("inventoryModel%1").arg(other)));
    }
    EXPECT_EQ(window().focusWidget(), ui().tableView);
    EXPECT_EQ(QApplication::focusWidget(), ui().tableView);
    EXPECT_EQ(selected(), row);
    EXPECT_EQ(editor().mainDic(), all_data());
}

} // namespace
} // namespace tarnic::testing
