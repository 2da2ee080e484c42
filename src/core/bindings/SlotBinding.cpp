#include "core/bindings/SlotBinding.h"

#include "core/fatal/Fatal.h"

#include <string>

namespace tarnic {

namespace {
// A stored binding is trusted; one that was cut short outside the program cannot be read.
std::int64_t element(const SlotBinding& binding, std::size_t index, std::int64_t value) {
    if (index >= binding.held) {
        fatalError(kIndexOutOfRange, "inventory binding has " + std::to_string(binding.held) +
                                         " elements, element " + std::to_string(index) +
                                         " was read");
    }
    return value;
}
} // namespace

std::int64_t modifierOf(const SlotBinding& binding) {
    return element(binding, 1, binding.modifier);
}

std::int64_t keyOf(const SlotBinding& binding) {
    return element(binding, 2, binding.key);
}

} // namespace tarnic
