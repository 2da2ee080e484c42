#pragma once

#include "core/platform/KeyGate.h"
#include "core/platform/KeyObserver.h"

namespace tarnic {

class AccessibilityTrust;

// A key observer fed by test code. pressKey() and changeModifier() stand for a key typed into
// another application. It decides nothing itself: like every observer of the program it hands
// each key to a KeyGate, whose rules (nothing while this program's own window is active, nothing
// while untrusted) decide whether the installed handlers see it.
class FakeKeyObserver : public KeyObserver {
public:
    // With a trust object, the gate asks it at each key whether the program is trusted.
    explicit FakeKeyObserver(const AccessibilityTrust* trust = nullptr);

    void addKeyDownMonitor(Handler handler) override;
    void addFlagsChangedMonitor(Handler handler) override;

    // A non-modifier key goes down (each auto-repeat is another call). Returns whether the gate
    // let it through to the handlers.
    bool pressKey(int keyCode);
    // A modifier key goes down or up. Returns whether the gate let it through to the handlers.
    bool changeModifier(int keyCode);

    // The desktop's state that the gate asks about: whether a window of this program is the
    // active one, as the real platform's own-window watcher would tell it.
    void setOwnApplicationFrontmost(bool frontmost) { ownApplicationFrontmost_ = frontmost; }
    bool ownApplicationFrontmost() const { return ownApplicationFrontmost_; }

    std::size_t keyDownMonitorCount() const { return gate_.keyDownHandlerCount(); }
    std::size_t flagsChangedMonitorCount() const { return gate_.flagsChangedHandlerCount(); }

private:
    bool ownApplicationFrontmost_ = false;
    KeyGate gate_;
};

} // namespace tarnic
