#pragma once

#include "core/platform/AccessibilityTrust.h"

namespace tarnic::x11 {

// On X11 any client may observe the keyboard once the server offers RECORD; the answer is
// whether the key observer's recording could be set up and started.
class X11AccessibilityTrust : public AccessibilityTrust {
public:
    explicit X11AccessibilityTrust(bool recording) : recording_(recording) {}

    bool isProcessTrusted() const override { return recording_; }

private:
    bool recording_;
};

} // namespace tarnic::x11
