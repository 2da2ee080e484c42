#pragma once

#include <cstdint>

namespace tarnic {

// Types a key into whatever application is frontmost, as if it came from the keyboard.
// A failure to post is silent; the other half of a tap is still attempted on its own.
class KeyPoster {
public:
    virtual ~KeyPoster() = default;

    virtual void postKeyDown(std::uint16_t keyCode) = 0;
    virtual void postKeyUp(std::uint16_t keyCode) = 0;
};

} // namespace tarnic
