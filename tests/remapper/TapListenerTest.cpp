// The remapper tells a listener of each tap it made, after the tap, and of nothing else.
#include "core/remapper/InventoryRemapper.h"
#include "platform/fake/RecordingKeyPoster.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnic {
namespace {

// Records each tap together with what the poster had posted by then.
class TapLog : public TapListener {
public:
    explicit TapLog(const RecordingKeyPoster& poster) : poster_(poster) {}
    void slotTapped(const SlotTap& tap) noexcept override {
        taps.push_back(tap);
        postsByThen.push_back(poster_.posts().size());
    }
    std::vector<SlotTap> taps;
    std::vector<std::size_t> postsByThen;

private:
    const RecordingKeyPoster& poster_;
};

TEST(TapListener, ToldOfATapAfterItsKeypadKeyWentOut) {
    RecordingKeyPoster poster;
    InventoryBindings models;
    models.slotBindings[2] = SlotBinding{3, 0, 12};
    InventoryRemapper remapper(poster);
    remapper.setBindings(models);
    TapLog log(poster);
    remapper.setTapListener(&log);
    remapper.keyDown(12);
    ASSERT_EQ(log.taps, (std::vector<SlotTap>{{3, 0, 12}}));
    EXPECT_EQ(log.postsByThen, (std::vector<std::size_t>{2}));
}

TEST(TapListener, ShiftBindingIsReportedWithItsModifier) {
    RecordingKeyPoster poster;
    InventoryBindings models;
    models.slotBindings[0] = SlotBinding{1, 56, 6};
    InventoryRemapper remapper(poster);
    remapper.setBindings(models);
    TapLog log(poster);
    remapper.setTapListener(&log);
    remapper.keyDown(6); // Shift not down: no tap
    EXPECT_TRUE(log.taps.empty());
    remapper.flagsChanged(56);
    remapper.keyDown(6);
    EXPECT_EQ(log.taps, (std::vector<SlotTap>{{1, 56, 6}}));
}

TEST(TapListener, OnePressTappingTwoSlotsIsTwoReportsInSlotOrder) {
    RecordingKeyPoster poster;
    InventoryBindings models;
    models.slotBindings[1] = SlotBinding{2, 0, 0};
    models.slotBindings[4] = SlotBinding{5, 0, 0};
    InventoryRemapper remapper(poster);
    remapper.setBindings(models);
    TapLog log(poster);
    remapper.setTapListener(&log);
    remapper.keyDown(0);
    EXPECT_EQ(log.taps, (std::vector<SlotTap>{{2, 0, 0}, {5, 0, 0}}));
    EXPECT_EQ(log.postsByThen, (std::vector<std::size_t>{2, 4}));
}

TEST(TapListener, NothingIsReportedWithoutATap) {
    RecordingKeyPoster poster;
    InventoryBindings models;
    models.slotBindings[0] = SlotBinding{1, 0, 12};
    models.slotBindings[1] =
        SlotBinding{9, 0, 13}; // a slot the game does not have: nothing is posted
    InventoryRemapper remapper(poster);
    remapper.setBindings(models);
    TapLog log(poster);
    remapper.setTapListener(&log);
    remapper.keyDown(14);
    remapper.keyDown(13);
    EXPECT_TRUE(log.taps.empty());
    EXPECT_TRUE(poster.posts().empty());
}

TEST(TapListener, UnsetListenerHearsNoMore) {
    RecordingKeyPoster poster;
    InventoryBindings models;
    models.slotBindings[0] = SlotBinding{1, 0, 12};
    InventoryRemapper remapper(poster);
    remapper.setBindings(models);
    TapLog log(poster);
    remapper.setTapListener(&log);
    remapper.keyDown(12);
    remapper.setTapListener(nullptr);
    remapper.keyDown(12);
    EXPECT_EQ(log.taps.size(), 1u);
    EXPECT_EQ(poster.posts().size(), 4u);
}

} // namespace
} // namespace tarnic
