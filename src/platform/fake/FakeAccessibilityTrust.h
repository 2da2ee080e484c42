#pragma once

#include "core/platform/AccessibilityTrust.h"

namespace tarnic {

// Trust that test code sets; trusted unless told otherwise.
class FakeAccessibilityTrust : public AccessibilityTrust {
public:
    bool isProcessTrusted() const override { return trusted_; }
    void setTrusted(bool trusted) { trusted_ = trusted; }

private:
    bool trusted_ = true;
};

} // namespace tarnic
