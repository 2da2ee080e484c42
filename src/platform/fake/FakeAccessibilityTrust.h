#pragma once

#include "core/platform/AccessibilityTrust.h"

namespace tarnic {

// Trust that test code sets; trusted unless told otherwise. Untrusted without a reason of its
// own, it says the display server would not start the recording.
class FakeAccessibilityTrust : public AccessibilityTrust {
public:
    bool isProcessTrusted() const override { return reason_ == UntrustedReason::Trusted; }
    UntrustedReason untrustedReason() const override { return reason_; }

    void setTrusted(bool trusted) {
        reason_ = trusted ? UntrustedReason::Trusted : UntrustedReason::RecordingRefused;
    }
    void setUntrusted(UntrustedReason reason) { reason_ = reason; }

private:
    UntrustedReason reason_ = UntrustedReason::Trusted;
};

} // namespace tarnic
