#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace tarnic {

// The keys of a list of dictionaries repeat from one dictionary to the next: each distinct key is
// converted once, and the result shared by every dictionary that has it. The first few distinct
// keys are kept; a list with more converts the rest every time.
template <class Kept, class Converted> class RepeatedKeys {
public:
    template <class Key, class Convert> Converted of(const Key& key, Convert convert) {
        for (const auto& [kept, converted] : seen_) {
            if (kept == key) {
                return converted;
            }
        }
        Converted converted = convert(key);
        if (seen_.size() < kKept) {
            seen_.emplace_back(Kept(key), converted);
        }
        return converted;
    }

private:
    static constexpr std::size_t kKept = 16;
    std::vector<std::pair<Kept, Converted>> seen_;
};

} // namespace tarnic
