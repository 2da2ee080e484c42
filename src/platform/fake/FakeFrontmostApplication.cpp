#include "platform/fake/FakeFrontmostApplication.h"

#include <utility>

namespace tarnic {

std::optional<std::string> FakeFrontmostApplication::bundleIdentifier() const {
    ++queryCount_;
    return identifier_;
}

void FakeFrontmostApplication::setBundleIdentifier(std::optional<std::string> identifier) {
    identifier_ = std::move(identifier);
}

} // namespace tarnic
