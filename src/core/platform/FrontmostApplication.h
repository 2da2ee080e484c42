#pragma once

#include <optional>
#include <string>

namespace tarnic {

// Names the application whose window is active, by its bundle identifier (the game's is war3ID).
class FrontmostApplication {
public:
    virtual ~FrontmostApplication() = default;

    // None when no application is frontmost or it has no identifier.
    virtual std::optional<std::string> bundleIdentifier() const = 0;
};

} // namespace tarnic
