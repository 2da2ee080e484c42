#include "platform/x11/WindowClassIdentifier.h"

#include "core/vocabulary/KeyCodes.h"

#include <gtest/gtest.h>

namespace tarnic::x11 {
namespace {

TEST(WindowClassIdentifier, GameExecutablesAreTheGameWhateverTheirCase) {
    for (const char* windowClass : {"war3.exe", "WAR3.EXE", "Warcraft III.exe", "warcraft iii.exe",
                                    "Frozen Throne.exe", "FROZEN THRONE.EXE"}) {
        EXPECT_EQ(identifierOfWindowClass(windowClass), war3ID) << windowClass;
    }
}

TEST(WindowClassIdentifier, OtherClassesAreReturnedAsTheyAre) {
    EXPECT_EQ(identifierOfWindowClass("notepad.exe"), "notepad.exe");
    EXPECT_EQ(identifierOfWindowClass("XTerm"), "XTerm");
    EXPECT_EQ(identifierOfWindowClass("war3"), "war3");
    EXPECT_EQ(identifierOfWindowClass("war3.exe "), "war3.exe ");
    EXPECT_EQ(identifierOfWindowClass("Warcraft III"), "Warcraft III");
}

} // namespace
} // namespace tarnic::x11
