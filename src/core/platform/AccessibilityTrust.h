#pragma once

namespace tarnic {

// Whether the key observer can see the keys of other applications.
class AccessibilityTrust {
public:
    virtual ~AccessibilityTrust() = default;

    virtual bool isProcessTrusted() const = 0;
};

} // namespace tarnic
