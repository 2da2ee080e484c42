#include "shell/VersionSupport.h"

#include <plist/plist.h>

#include <limits>
#include <memory>

namespace tarnic {

bool isVersionSupportDictionary(const QByteArray& data) {
    if (data.isEmpty() || data.size() > std::numeric_limits<uint32_t>::max()) {
        return false;
    }
    plist_t root = nullptr;
    // libplist has no error codes here: a text it cannot read leaves the root null.
    plist_from_memory(data.constData(), static_cast<uint32_t>(data.size()), &root);
    const std::unique_ptr<void, decltype(&plist_free)> owner(root, &plist_free);
    return root != nullptr && plist_get_node_type(root) == PLIST_DICT;
}

} // namespace tarnic
