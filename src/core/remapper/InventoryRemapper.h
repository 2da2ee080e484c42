#pragma once

#include "core/bindings/InventoryBindings.h"
#include "core/platform/FrontmostApplication.h"
#include "core/platform/KeyPoster.h"
#include "core/remapper/TapListener.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tarnic {

// The keys that open, send and close the game's chat line.
inline constexpr int kReturnKeyCode = 36;
inline constexpr int kKeypadEnterKeyCode = 76;
inline constexpr int kEscapeKeyCode = 53;

// Decides, for every key pressed in another application, which inventory slots it stands for,
// and taps each slot's keypad key through the poster. Plain logic: the observer feeds it, the
// poster types for it.
class InventoryRemapper {
public:
    // No slot is bound and both options are off until setBindings.
    explicit InventoryRemapper(KeyPoster& poster);

    // Takes a copy of the bindings and options, used from the next key press on.
    void setBindings(const InventoryBindings& bindings);

    // Key code of the most recent modifier change, and a parity bit flipped by every change.
    std::int64_t flagHold = -1;
    bool isFlag = false;
    // Whether the game is the frontmost application; refreshed by the timer, read by nobody.
    bool isWarRun = false;

    // Whether a window of the game is in front, as the desktop last announced (frontmostChanged),
    // so a key press asks nobody. The options read it; the 2-second timer has no part in it.
    bool gameInFront = false;
    // Whether the game's chat line is taken to be open. A guess from the keys: Return or keypad
    // Enter (Shift or not) opens the line and the next one sends it, Escape closes it; only keys
    // pressed while the game is in front count, and the line counts as closed again as soon as
    // the game is no longer in front. Kept whatever the options say; only
    // pauseWhileTypingInChat reads it.
    bool chatOpen = false;

    // The key-down handler. The decision for the key is made first, with the chat line as it was
    // before the key, and only then does the key move the chat line: the Enter that opens the
    // line is judged with the line closed, the one that sends it with the line open.
    void keyDown(int keyCode);
    void flagsChanged(int keyCode); // the modifier-change handler
    // The frontmost application changed (its identifier, or none).
    void frontmostChanged(const std::optional<std::string>& identifier);
    // Whether a key press needs the frontmost application as of that very moment: only while one
    // of the options is on.
    bool needsFrontmostAtKeyPress() const;
    // Whether, with the options as they are, a bound key may tap now.
    bool tapsAllowed() const;
    // Taps the binding's slot when the key press stands for it; an unbound slot never taps.
    void action(const std::optional<SlotBinding>& binding, int keyPrss);
    void eventWithTimer(const FrontmostApplication& frontmost);

    // Any slot other than 1 to 6 posts nothing. The slot is the stored value itself, never
    // narrowed: a value edited outside the program must not alias a real slot.
    void inventoryPress(std::int64_t slot);
    void keyboardKeyDown(std::uint16_t key);
    void keyboardKeyUp(std::uint16_t key);

    // Told of every tap from now on, after its keypad key went out; null: nobody. It must
    // outlive the remapper, or be unset first.
    void setTapListener(TapListener* listener) { tapListener_ = listener; }

private:
    void tapped(const SlotBinding& binding);

    void followChatLine(int keyCode);

    InventoryBindings bindings_;
    KeyPoster& poster_;
    TapListener* tapListener_ = nullptr;
};

} // namespace tarnic
