#include "core/editor/InventoryStatus.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

TEST(InventoryStatus, TrustedTheKeysAreActive) {
    EXPECT_EQ(inventoryStatusText(true, UntrustedReason::Trusted), "Inventory keys active");
}

TEST(InventoryStatus, EachReasonIsSaidInItsOwnWords) {
    const std::string noServer = inventoryStatusText(false, UntrustedReason::NoDisplayServer);
    const std::string noRecord = inventoryStatusText(false, UntrustedReason::NoKeyRecording);
    const std::string refused = inventoryStatusText(false, UntrustedReason::RecordingRefused);
    for (const std::string& text : {noServer, noRecord, refused}) {
        EXPECT_EQ(text.rfind("Inventory keys off: ", 0), 0U) << text;
    }
    EXPECT_NE(noServer.find("no X server"), std::string::npos) << noServer;
    EXPECT_NE(noRecord.find("no RECORD extension"), std::string::npos) << noRecord;
    EXPECT_NE(refused.find("would not let"), std::string::npos) << refused;
    EXPECT_NE(noServer, noRecord);
    EXPECT_NE(noRecord, refused);
}

TEST(InventoryStatus, UntrustedWithoutAReasonSaysTheServerRefused) {
    EXPECT_EQ(inventoryStatusText(false, UntrustedReason::Trusted),
              inventoryStatusText(false, UntrustedReason::RecordingRefused));
}

} // namespace
} // namespace tarnic
