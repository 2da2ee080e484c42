#pragma once

namespace tarnic {

// The player's two options for the inventory keys. Both start off, and with both off a bound key
// taps whatever application is in front.
struct InventoryOptions {
    // A bound key taps only while a window of the game is the frontmost one at the moment of
    // the key press.
    bool onlyWhileGameInFront = false;
    // No bound key taps while the game's chat line is open (see InventoryRemapper::chatOpen).
    bool pauseWhileTypingInChat = false;

    bool operator==(const InventoryOptions&) const = default;
};

// Both options off: what a remapper without options of its own reads.
inline constexpr InventoryOptions kInventoryOptionsOff{};

} // namespace tarnic
