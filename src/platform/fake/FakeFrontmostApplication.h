#pragma once

#include "core/platform/FrontmostApplication.h"

#include <cstddef>

namespace tarnic {

// The frontmost application as test code sets it: an identifier, or none (no application
// frontmost, or one without an identifier). None at first.
class FakeFrontmostApplication : public FrontmostApplication {
public:
    std::optional<std::string> bundleIdentifier() const override;

    void setBundleIdentifier(std::optional<std::string> identifier);
    // How often the identifier was asked for.
    std::size_t queryCount() const { return queryCount_; }

private:
    std::optional<std::string> identifier_;
    mutable std::size_t queryCount_ = 0;
};

} // namespace tarnic
