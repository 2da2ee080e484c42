#include "shell/RecordExtensionTrust.h"

#include "shell/XvfbServer.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

TEST(RecordExtensionTrust, ServerWithRecordIsTrusted) {
    test::XvfbServer xvfb;
    ASSERT_TRUE(xvfb.isRunning()) << xvfb.errorOutput().toStdString();
    EXPECT_TRUE(RecordExtensionTrust(xvfb.displayName().toStdString()).isProcessTrusted());
}

TEST(RecordExtensionTrust, ServerWithoutRecordIsNotTrusted) {
    test::XvfbServer xvfb({"-extension", "RECORD"});
    ASSERT_TRUE(xvfb.isRunning()) << xvfb.errorOutput().toStdString();
    EXPECT_FALSE(RecordExtensionTrust(xvfb.displayName().toStdString()).isProcessTrusted());
}

TEST(RecordExtensionTrust, NoDisplayIsNotTrusted) {
    // A display number no server uses: the connection fails.
    EXPECT_FALSE(RecordExtensionTrust(":4093").isProcessTrusted());
}

} // namespace
} // namespace tarnic
