#include "EditorFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

namespace tarnic::testing {
namespace {

class InventoryPanel : public EditorFixture {
protected:
    void SetUp() override {
        EditorFixture::SetUp();
        launch();
    }
    QPushButton& slotButton(int n) {
        QPushButton* buttons[] = {ui().invent1, ui().invent2, ui().invent3,
                                  ui().invent4, ui().invent5, ui().invent6};
        return *buttons[n - 1];
    }
    QString shownTitle() { return ui().inventPopup->currentText(); }
    bool shownShift() { return ui().isShiftBox->isChecked(); }
};

TEST_F(InventoryPanel, ControlsStayHiddenUntilTheFirstSlotIsChosen) {
    EXPECT_EQ(panel().inventoryEditNow(), 0);
    EXPECT_TRUE(ui().inventPopup->isHidden());
    EXPECT_TRUE(ui().isShiftBox->isHidden());
    EXPECT_TRUE(ui().delBTN->isHidden());
    click(slotButton(4));
    EXPECT_EQ(panel().inventoryEditNow(), 4);
    EXPECT_FALSE(ui().inventPopup->isHidden());
    EXPECT_FALSE(ui().isShiftBox->isHidden());
    EXPECT_FALSE(ui().delBTN->isHidden());
    click(slotButton(2));
    EXPECT_EQ(panel().inventoryEditNow(), 2);
    EXPECT_FALSE(ui().inventPopup->isHidden());
}

TEST_F(InventoryPanel, SlotThreeWithoutShiftOnQ) {
    click(slotButton(3));
    choose(*ui().inventPopup, "Q");
    EXPECT_EQ(app().inventoryBindings().of(3), (SlotBinding{3, 0, 12}));
    EXPECT_EQ(storedInventoryModel(3), (SlotBinding{3, 0, 12}));
    for (int other : {1, 2, 4, 5, 6}) {
        EXPECT_FALSE(app().inventoryBindings().of(other).has_value());
        EXPECT_FALSE(storeHasKey(QStringLiteral("inventoryModel%1").arg(other)));
    }
}

TEST_F(InventoryPanel, SlotOneWithShiftOnOne) {
    click(slotButton(1));
    click(*ui().isShiftBox);
    ASSERT_TRUE(shownShift());
    choose(*ui().inventPopup, "1");
    EXPECT_EQ(app().inventoryBindings().of(1), (SlotBinding{1, 56, 18}));
    EXPECT_EQ(storedInventoryModel(1), (SlotBinding{1, 56, 18}));
}

TEST_F(InventoryPanel, SelectIsStoredAsNoKeyAndShowsAsStored) {
    click(slotButton(5));
    choose(*ui().inventPopup, "W");
    choose(*ui().inventPopup, "Select");
    EXPECT_EQ(app().inventoryBindings().of(5), (SlotBinding{5, 0, -1}));
    EXPECT_EQ(storedInventoryModel(5), (SlotBinding{5, 0, -1}));

    click(slotButton(6));
    click(*ui().isShiftBox);
    choose(*ui().inventPopup, "Select");
    EXPECT_EQ(storedInventoryModel(6), (SlotBinding{6, 56, -1}));

    click(slotButton(5));
    EXPECT_EQ(shownTitle(), "Select");
    EXPECT_FALSE(shownShift());
    click(slotButton(6));
    EXPECT_EQ(shownTitle(), "Select");
    EXPECT_TRUE(shownShift());
}

TEST_F(InventoryPanel, TickingTheBoxAloneStoresNothingAndShowsSelect) {
    click(slotButton(2));
    choose(*ui().inventPopup, "E");
    ASSERT_EQ(storedInventoryModel(2), (SlotBinding{2, 0, 14}));
    const QByteArray before = [&] {
        QFile f(storePath());
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }();
    click(*ui().isShiftBox);
    EXPECT_TRUE(shownShift());
    EXPECT_EQ(shownTitle(), "Select");
    EXPECT_EQ(app().inventoryBindings().of(2), (SlotBinding{2, 0, 14}));
    EXPECT_EQ(storedInventoryModel(2), (SlotBinding{2, 0, 14}));
    QFile after(storePath());
    ASSERT_TRUE(after.open(QIODevice::ReadOnly));
    EXPECT_EQ(after.readAll(), before);
    // Picking the key again stores it with the new modifier.
    choose(*ui().inventPopup, "E");
    EXPECT_EQ(storedInventoryModel(2), (SlotBinding{2, 56, 14}));
}

TEST_F(InventoryPanel, UnknownStoredCodeShowsSelectWithTheBoxTicked) {
    shutDown();
    storeInventoryModel(5, {5, 56, 999});
    launch();
    EXPECT_EQ(app().inventoryBindings().of(5), (SlotBinding{5, 56, 999}));
    click(slotButton(5));
    EXPECT_EQ(shownTitle(), "Select");
    EXPECT_TRUE(shownShift());
}

TEST_F(InventoryPanel, DeleteRemovesOnlyTheEditedSlot) {
    click(slotButton(4));
    choose(*ui().inventPopup, "R");
    click(slotButton(2));
    click(*ui().isShiftBox);
    choose(*ui().inventPopup, "7");
    ASSERT_TRUE(storeHasKey("inventoryModel2"));
    click(*ui().delBTN);
    EXPECT_FALSE(app().inventoryBindings().of(2).has_value());
    EXPECT_FALSE(storeHasKey("inventoryModel2"));
    EXPECT_EQ(app().inventoryBindings().of(4), (SlotBinding{4, 0, 15}));
    EXPECT_EQ(storedInventoryModel(4), (SlotBinding{4, 0, 15}));
    // The panel keeps editing slot 2, showing it unbound.
    EXPECT_EQ(panel().inventoryEditNow(), 2);
    EXPECT_EQ(shownTitle(), "Select");
    EXPECT_FALSE(shownShift());
    EXPECT_FALSE(ui().delBTN->isHidden());
}

TEST_F(InventoryPanel, TwoSlotsMayShareAKey) {
    click(slotButton(1));
    choose(*ui().inventPopup, "F");
    click(slotButton(6));
    choose(*ui().inventPopup, "F");
    EXPECT_EQ(storedInventoryModel(1), (SlotBinding{1, 0, 3}));
    EXPECT_EQ(storedInventoryModel(6), (SlotBinding{6, 0, 3}));
}

TEST_F(InventoryPanel, UnboundSlotShowsSelectAndAnUntickedBoxWhateverWasShown) {
    click(slotButton(1));
    click(*ui().isShiftBox);
    choose(*ui().inventPopup, "Z");
    ASSERT_TRUE(shownShift());
    click(slotButton(3));
    EXPECT_EQ(shownTitle(), "Select");
    EXPECT_FALSE(shownShift());
    click(slotButton(1));
    EXPECT_EQ(shownTitle(), "Z");
    EXPECT_TRUE(shownShift());
}

TEST_F(InventoryPanel, DeleteOrKeyPickWithoutASlotChangesOnlyTheControls) {
    // The controls are hidden until a slot is chosen; their actions still run safely.
    panel().setInventory();
    panel().eraseKey();
    for (int n = 1; n <= 6; ++n) {
        EXPECT_FALSE(app().inventoryBindings().of(n).has_value());
        EXPECT_FALSE(storeHasKey(QStringLiteral("inventoryModel%1").arg(n)));
    }
    EXPECT_EQ(shownTitle(), "Select");
}

TEST_F(InventoryPanel, BindingsSurviveTheNextStart) {
    click(slotButton(3));
    choose(*ui().inventPopup, "~");
    launch();
    EXPECT_EQ(app().inventoryBindings().of(3), storedInventoryModel(3).value());
    click(slotButton(3));
    EXPECT_EQ(shownTitle(), "~");
}

TEST_F(InventoryPanel, EverySymbolAndLetterCanBeBound) {
    click(slotButton(6));
    QComboBox& popup = *ui().inventPopup;
    for (int i = 1; i < popup.count(); ++i) {
        const QString title = popup.itemText(i);
        choose(popup, title);
        const SlotBinding binding = storedInventoryModel(6).value();
        ASSERT_FALSE(binding.isCutShort());
        EXPECT_EQ(binding.slot, 6);
        EXPECT_GE(binding.key, 0) << title.toStdString();
        click(slotButton(6));
        EXPECT_EQ(shownTitle(), title);
    }
}

TEST_F(InventoryPanel, AStoredBindingThatCanNeverTapShowsAsDamaged) {
    shutDown();
    // The game has no seventh slot: Z would tap nothing.
    storeRaw("inventoryModel1", QVariantList{7, 0, 6});
    storeRaw("inventoryModel4", QVariantList{4, 0, 999});
    launch();
    EXPECT_EQ(slotButton(1).text(), "Slot 1  (damaged)");
    EXPECT_EQ(slotButton(4).text(), "Slot 4  (damaged)");
    // Such a binding has all three elements: showing it in the panel does not end the program,
    // and picking a key mends it.
    click(slotButton(1));
    EXPECT_EQ(shownTitle(), "Z");
    choose(*ui().inventPopup, "Q");
    EXPECT_EQ(slotButton(1).text(), "Slot 1  Q");
}

using InventoryPanelDeathTest = InventoryPanel;

TEST_F(InventoryPanelDeathTest, ShortStoredBindingEndsTheProgramWhenShown) {
    shutDown();
    storeRaw("inventoryModel2", QVariantList{2, 0});
    launch();
    // The program starts; its button says the binding is damaged.
    EXPECT_EQ(slotButton(2).text(), "Slot 2  (damaged)");
    EXPECT_DEATH(click(slotButton(2)), "Index out of range");
}

} // namespace
} // namespace tarnic::testing
