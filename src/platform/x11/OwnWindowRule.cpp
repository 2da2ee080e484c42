#include "platform/x11/OwnWindowRule.h"

#include <algorithm>
#include <cctype>

namespace tarnic::x11 {

namespace {

bool sameHostName(std::string_view a, std::string_view b) {
    return std::ranges::equal(
        a, b, [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

} // namespace

bool isOwnWindow(const WindowOwner& owner, long ownProcessId, std::string_view ownHostName) {
    if (!owner.processId || !owner.clientMachine || ownHostName.empty()) {
        return false;
    }
    return *owner.processId == ownProcessId && sameHostName(*owner.clientMachine, ownHostName);
}

} // namespace tarnic::x11
