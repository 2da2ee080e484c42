#include "core/editor/SelectionDetail.h"

#include "core/editor/RecordFactory.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

using test::makeRecord;

TEST(SelectionDetail, WithoutChoiceThePopupShowsTheDefaultKey) {
    EXPECT_EQ(popupTitle(makeRecord("Heal", "Priest", "E")), "E");
}

TEST(SelectionDetail, WithChoiceThePopupShowsTheChosenKey) {
    auto record = makeRecord("Heal", "Priest", "E");
    fillTemplate(record, "Q");
    EXPECT_EQ(popupTitle(record), "Q");
}

TEST(SelectionDetail, DefaultHotkeyLineIsExactlyTheThreePiecesJoined) {
    EXPECT_EQ(defaultHotkeyLine("T"), "Default hotkey < T >");
    EXPECT_EQ(selectionDetail(makeRecord("Heal", "Priest", "T")).defHotkey,
              std::string("Default hotkey < ") + "T" + " >");
}

TEST(SelectionDetail, AbilityWithoutOwnerShowsTheEmptyPictureAndNoOwner) {
    const auto detail = selectionDetail(makeRecord("Move", std::nullopt, "M"));
    EXPECT_EQ(detail.spellImage, "Move");
    EXPECT_EQ(detail.spellLbl, "Move");
    EXPECT_EQ(detail.parentImage, "empty");
    EXPECT_EQ(detail.parentLbl, "");
    EXPECT_EQ(detail.popupTitle, "M");
}

TEST(SelectionDetail, AbilityWithOwnerShowsTheOwner) {
    const auto detail = selectionDetail(makeRecord("Call to Arms", "Peasant", "C"));
    EXPECT_EQ(detail.parentImage, "Peasant");
    EXPECT_EQ(detail.parentLbl, "Peasant");
    EXPECT_EQ(detail.spellImage, "Call to Arms");
}

TEST(SelectionDetail, PresentButEmptyOwnerLooksUpThePictureByEmptyName) {
    const auto detail = selectionDetail(makeRecord("Odd", std::string(), "O"));
    EXPECT_EQ(detail.parentImage, "");
    EXPECT_EQ(detail.parentLbl, "");
}

TEST(SelectionDetailDeathTest, RecordWithoutNameEndsTheProgram) {
    auto record = makeRecord("Move", std::nullopt, "M");
    record.erase(name_spell);
    EXPECT_DEATH(selectionDetail(record), "Unexpectedly found nil while unwrapping");
}

TEST(SelectionDetailDeathTest, RecordWithoutDefaultHotkeyEndsTheProgram) {
    auto record = makeRecord("Move", std::nullopt, "M");
    record.erase(def_hotkey);
    EXPECT_DEATH(selectionDetail(record), "Unexpectedly found nil while unwrapping");
}

} // namespace
} // namespace tarnic
