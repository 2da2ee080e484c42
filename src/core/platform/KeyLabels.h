#pragma once

#include <cstdint>
#include <functional>
#include <optional>

namespace tarnic {

// What the player's keyboard layout prints on each key: the symbol (an X keysym number) that the
// active layout gives a key position at its first level, with no modifier held, in the group now
// in use. Key positions are macOS virtual key codes, as everywhere in the program. Asked on the
// main thread only; never on the key path.
class KeyLabels {
public:
    using Handler = std::function<void()>;

    virtual ~KeyLabels() = default;

    // None when the platform cannot say (no layout known, or the position has no symbol).
    virtual std::optional<std::uint32_t> keysymAt(int macKeyCode) const = 0;
    // Called on the main thread after the layout has changed (another keymap, or another group
    // of the same keymap); keysymAt() then answers for the new one. Handlers stay installed for
    // the life of the process.
    virtual void addChangeMonitor(Handler handler) = 0;
};

} // namespace tarnic
