#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tarnic {

// The names the window gives the keys of key_codes: as the player's layout prints each key
// position (upper case, see keysymLabel), or, for a position whose symbol prints nothing the
// rule knows, or without any layout at all, the key's US name from key_codes. Stored bindings
// keep their key codes: only the names change with the layout.
//
// No two keys share a name, so a name picked in a pop-up stands for exactly one key: when a
// layout prints the same symbol on two positions, or prints on one position what is the US name
// kept by another, those positions keep their US names (which are all distinct).
class KeyNames {
public:
    // The layout's symbol at a key position (a macOS virtual key code), if any.
    using KeysymLookup = std::function<std::optional<std::uint32_t>(int macKeyCode)>;

    // The US names: key_codes as it stands.
    KeyNames();
    static KeyNames fromLayout(const KeysymLookup& keysymAt);

    // The name of the key with this code; none for a code key_codes does not have.
    std::optional<std::string> nameOf(std::int64_t code) const;
    // The code of the key with exactly this name, if any.
    std::optional<int> codeOf(std::string_view name) const;
    // The layout's own name for this position, only where the layout's symbol is the name shown.
    bool isLayoutName(int code) const;

    bool operator==(const KeyNames& other) const = default;

private:
    std::map<int, std::string> names_;
    std::map<int, bool> fromLayout_;
};

} // namespace tarnic
