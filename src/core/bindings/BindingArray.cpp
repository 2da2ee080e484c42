#include "core/bindings/BindingArray.h"

namespace tarnic {

std::optional<SlotBinding> bindingFromArray(std::span<const std::int64_t> values) {
    if (values.empty()) {
        return std::nullopt;
    }
    SlotBinding binding;
    binding.held = values.size() < 3 ? values.size() : 3;
    binding.slot = values[0];
    if (values.size() > 1) {
        binding.modifier = values[1];
    }
    if (values.size() > 2) {
        binding.key = values[2];
    }
    return binding;
}

std::vector<std::int64_t> arrayOf(const SlotBinding& binding) {
    std::vector<std::int64_t> values{binding.slot, binding.modifier, binding.key};
    values.resize(binding.held < 3 ? binding.held : 3);
    return values;
}

} // namespace tarnic
