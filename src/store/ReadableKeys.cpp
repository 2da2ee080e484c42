#include "store/ReadableKeys.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

namespace tarnic {

namespace {

// The public API gives a key's text only through the asserting calls. The key node written as
// XML shows all of it, NUL bytes included. (Not a copy: plist_copy duplicates the text only up to
// its first NUL but keeps the full length, and writing that copy reads past its end.)
bool holdsNul(plist_t key) {
    char* xml = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(key, &xml, &length);
    if (xml == nullptr) {
        return true;
    }
    const bool nul = std::memchr(xml, '\0', length) != nullptr;
    plist_to_xml_free(xml);
    return nul;
}

} // namespace

bool keysAreReadable(plist_t root) {
    std::vector<plist_t> pending{root};
    while (!pending.empty()) {
        const plist_t node = pending.back();
        pending.pop_back();
        switch (plist_get_node_type(node)) {
        case PLIST_ARRAY:
            for (std::uint32_t i = 0, size = plist_array_get_size(node); i < size; ++i) {
                pending.push_back(plist_array_get_item(node, i));
            }
            break;
        case PLIST_DICT: {
            plist_dict_iter it = nullptr;
            plist_dict_new_iter(node, &it);
            const std::unique_ptr<void, decltype(&std::free)> iterator(it, &std::free);
            for (;;) {
                plist_t value = nullptr;
                // Without the key: only its value, which does not assert.
                plist_dict_next_item(node, it, nullptr, &value);
                if (value == nullptr) {
                    break;
                }
                const plist_t key = plist_dict_item_get_key(value);
                if (key == nullptr || plist_get_node_type(key) != PLIST_KEY || holdsNul(key)) {
                    return false;
                }
                pending.push_back(value);
            }
            break;
        }
        default:
            break;
        }
    }
    return true;
}

} // namespace tarnic
