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

TEST_F(RemapperWiring, GameDetectionTicksEveryTwoSecondsAndFindsTheGame) {
    launch();
    const QList<GameDetectionTimer*> timers = vc().findChildren<GameDetectionTimer*>();
    ASSERT_EQ(timers.size(), 1);
    EXPECT_EQ(timers.front()->timer().interval(), 2000);
    EXPECT_FALSE(timers.front()->timer().isSingleShot());
    EXPECT_FALSE(vc().remapper().isWarRun);

    fakes().frontmostApplication->setBundleIdentifier(std::string(war3ID));
    QSignalSpy ticks(timers.front(), &GameDetectionTimer::ticked);
    ASSERT_TRUE(ticks.wait(5000));
    EXPECT_TRUE(vc().remapper().isWarRun);
}

} // namespace
} // namespace tarnic::testing
