#include "core/vocabulary/KeyLabels.h"

namespace tarnic {

const std::map<std::string, int>& ESC() {
    static const std::map<std::string, int> entry = {{"ESC", 53}};
    return entry;
}

const std::map<std::string, int>& F1() {
    static const std::map<std::string, int> entry = {{"F1", 122}};
    return entry;
}

const std::vector<std::map<std::string, int>>& keys_dict() {
    static const std::vector<std::map<std::string, int>> list = {ESC(), F1()};
    return list;
}

} // namespace tarnic
