#pragma once

#include "core/platform/AccessibilityTrust.h"

namespace tarnic::x11 {

// On X11 any client may observe the keyboard once the server offers RECORD; the answer is
// whether the key observer's recording could be set up and started.
class X11AccessibilityTrust : public AccessibilityTrust {
public:
    X11AccessibilityTrust(bool recording, bool serverHasRecord)
        : recording_(recording), serverHasRecord_(serverHasRecord) {}

    bool isProcessTrusted() const override { return recording_; }
    UntrustedReason untrustedReason() const override {
        if (recording_) {
            return UntrustedReason::Trusted;
        }
        return serverHasRecord_ ? UntrustedReason::RecordingRefused
                                : UntrustedReason::NoKeyRecording;
    }

private:
    bool recording_;
    bool serverHasRecord_;
};

} // namespace tarnic::x11
