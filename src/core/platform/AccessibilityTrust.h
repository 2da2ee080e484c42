#pragma once

namespace tarnic {

// Why the key observer cannot see the keys of other applications.
enum class UntrustedReason {
    Trusted,          // it can
    NoDisplayServer,  // no display server could be reached at all
    NoKeyRecording,   // the display server offers no way to watch keys
    RecordingRefused, // the display server has one but would not start it for us
};

// Whether the key observer can see the keys of other applications.
class AccessibilityTrust {
public:
    virtual ~AccessibilityTrust() = default;

    virtual bool isProcessTrusted() const = 0;
    // Trusted exactly when isProcessTrusted(); otherwise what stands in the way.
    virtual UntrustedReason untrustedReason() const = 0;
};

} // namespace tarnic
