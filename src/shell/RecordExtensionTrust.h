#pragma once

#include "core/platform/AccessibilityTrust.h"

#include <string>

namespace tarnic {

// Trusted when the X server offers the RECORD extension, through which the key observer sees
// other applications' keys. No display means no trust.
class RecordExtensionTrust : public AccessibilityTrust {
public:
    // An empty name means the display named by $DISPLAY.
    explicit RecordExtensionTrust(std::string displayName = {});

    bool isProcessTrusted() const override;

private:
    std::string displayName_;
};

} // namespace tarnic
