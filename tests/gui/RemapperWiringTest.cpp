#include "EditorFixture.h"

#include "core/vocabulary/KeyCodes.h"
#include "platform/timer/GameDetectionTimer.h"

#include <QSignalSpy>

#include <string>
#include <vector>

namespace tarnic::testing {
namespace {

using Posts = std::vector<std::string>;

// The inventory panel, the remapper and the platform together: a binding made with the real
// controls taps its keypad key when another application sees the key.
class RemapperWiring : public EditorFixture {
protected:
    QPushButton& slotButton(int n) {
        QPushButton* buttons[] = {ui().invent1, ui().invent2, ui().invent3,
                                  ui().invent4, ui().invent5, ui().invent6};
        return *buttons[n - 1];
    }
};

TEST_F(RemapperWiring, NothingIsWatchedBeforeTheStartAndTheRemapperStartsCleared) {
    Application::Options options;
    options.siteUrl.clear();
    Application built(makeFakePlatform(), options);
    const FakeParts parts = fakeParts(built.platform());
    EXPECT_EQ(parts.keyObserver->keyDownMonitorCount(), 0u);
    EXPECT_EQ(parts.keyObserver->flagsChangedMonitorCount(), 0u);
    EXPECT_EQ(built.gameDetectionTimer(), nullptr);
    const InventoryRemapper& remapper = built.remapperSession().remapper();
    EXPECT_EQ(remapper.flagHold, -1);
    EXPECT_FALSE(remapper.isFlag);
    EXPECT_FALSE(remapper.isWarRun);
    // The session keeps a copy of the bindings it was handed: a later change of the caller's
    // reaches it only through the next hand-over.
    InventoryBindings bindings;
    bindings.of(1) = SlotBinding{1, 0, 12};
    built.remapperSession().setBindings(bindings);
    bindings.of(1).reset();
    built.remapperSession().installObservers();
    ASSERT_TRUE(parts.keyObserver->pressKey(12));
    EXPECT_EQ(parts.keyPoster->posts(), (Posts{"89 down", "89 up"}));
}

TEST_F(RemapperWiring, ViewLoadingInstallsOneKeyDownAndOneModifierMonitor) {
    launch();
    EXPECT_EQ(fakes().keyObserver->keyDownMonitorCount(), 1u);
    EXPECT_EQ(fakes().keyObserver->flagsChangedMonitorCount(), 1u);
}

TEST_F(RemapperWiring, KeyBoundInThePanelTapsItsSlotsKeypadKey) {
    launch();
    click(slotButton(3));
    choose(*ui().inventPopup, "Q");
    ASSERT_TRUE(fakes().keyObserver->pressKey(12));
    EXPECT_EQ(fakes().keyPoster->posts(), (Posts{"86 down", "86 up"}));
}

TEST_F(RemapperWiring, ShiftBindingTapsOnlyAfterTheLeftShiftGoesDown) {
    launch();
    click(slotButton(1));
    click(*ui().isShiftBox);
    choose(*ui().inventPopup, "1");
    fakes().keyObserver->pressKey(18);
    EXPECT_TRUE(fakes().keyPoster->posts().empty());
    fakes().keyObserver->changeModifier(56);
    fakes().keyObserver->pressKey(18);
    EXPECT_EQ(fakes().keyPoster->posts(), (Posts{"89 down", "89 up"}));
}

TEST_F(RemapperWiring, StoredBindingIsLiveAfterTheNextStart) {
    storeInventoryModel(6, {6, 0, 0});
    launch();
    fakes().keyObserver->pressKey(0); // A
    EXPECT_EQ(fakes().keyPoster->posts(), (Posts{"84 down", "84 up"}));
}

TEST_F(RemapperWiring, DeletedBindingNoLongerTaps) {
    storeInventoryModel(2, {2, 0, 13});
    launch();
    click(slotButton(2));
    click(*ui().delBTN);
    fakes().keyObserver->pressKey(13);
    EXPECT_TRUE(fakes().keyPoster->posts().empty());
}

TEST_F(RemapperWiring, GameDetectionTicksAndFindsTheGame) {
    launch();
    GameDetectionTimer* timer = app().gameDetectionTimer();
    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->timer().interval(), kTestTickInterval.count());
    EXPECT_FALSE(timer->timer().isSingleShot());
    EXPECT_FALSE(app().remapperSession().remapper().isWarRun);

    fakes().frontmostApplication->setBundleIdentifier(std::string(war3ID));
    QSignalSpy ticks(timer, &GameDetectionTimer::ticked);
    ASSERT_TRUE(ticks.wait(5000));
    EXPECT_TRUE(app().remapperSession().remapper().isWarRun);
}

TEST_F(RemapperWiring, TheProgramTicksEveryTwoSeconds) {
    EXPECT_EQ(Application::Options().gameDetectionInterval, std::chrono::seconds(2));
}

} // namespace
} // namespace tarnic::testing
