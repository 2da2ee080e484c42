#pragma once

#include <QVariant>

#include <cstdint>
#include <optional>

namespace tarnic {

// The value as a signed 64-bit integer when it is a Qt integer of any width that fits; none for
// every other type, and for an unsigned value above the signed range (property-list integers
// are signed).
std::optional<std::int64_t> integerValue(const QVariant& value);

} // namespace tarnic
