#pragma once

#include "core/bindings/SlotBinding.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace tarnic {

// The stored form of a slot binding, an array of integers: empty (unbound) or [slot, modifier
// code, key code]. The one translation between that array and SlotBinding; nothing else reads the
// array by position.

// An empty array is no binding. A longer array binds by its first three values; one cut short
// keeps what it has and says how many (SlotBinding::held).
std::optional<SlotBinding> bindingFromArray(std::span<const std::int64_t> values);
// [slot, modifier, key], or as many of them as the binding holds.
std::vector<std::int64_t> arrayOf(const SlotBinding& binding);

} // namespace tarnic
