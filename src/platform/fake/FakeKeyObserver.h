#pragma once

#include "core/platform/KeyObserver.h"

#include <vector>

namespace tarnic {

class FakeAccessibilityTrust;

// A key observer fed by test code. pressKey() and changeModifier() stand for a key typed into
// another application; the installed handlers see it exactly as they would see a real one.
// Like the real observer it reports nothing while this program's own window is active, nor
// while the program is not trusted to watch other applications.
class FakeKeyObserver : public KeyObserver {
public:
    // With a trust object, events are reported only while it says the program is trusted.
    explicit FakeKeyObserver(const FakeAccessibilityTrust* trust = nullptr);

    void addKeyDownMonitor(Handler handler) override;
    void addFlagsChangedMonitor(Handler handler) override;

    // A non-modifier key goes down in another application (each auto-repeat is another call).
    // Returns whether the handlers were told.
    bool pressKey(int keyCode);
    // A modifier key goes down or up in another application. Returns whether the handlers were
    // told.
    bool changeModifier(int keyCode);

    // While true, keys are typed into this program's own window and are not reported.
    void setOwnApplicationFrontmost(bool frontmost) { ownApplicationFrontmost_ = frontmost; }
    bool ownApplicationFrontmost() const { return ownApplicationFrontmost_; }

    std::size_t keyDownMonitorCount() const { return keyDownHandlers_.size(); }
    std::size_t flagsChangedMonitorCount() const { return flagsChangedHandlers_.size(); }

private:
    bool reporting() const;
    bool deliver(const std::vector<Handler>& handlers, int keyCode) const;

    const FakeAccessibilityTrust* trust_;
    bool ownApplicationFrontmost_ = false;
    std::vector<Handler> keyDownHandlers_;
    std::vector<Handler> flagsChangedHandlers_;
};

} // namespace tarnic
