#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnic::x11 {

// Who made a window, as the window says of itself: the process id in _NET_WM_PID and the host
// name in WM_CLIENT_MACHINE. Either may be missing.
struct WindowOwner {
    std::optional<long> processId;
    std::optional<std::string> clientMachine;
};

// Whether a window with this owner belongs to the process `ownProcessId` on the host
// `ownHostName`. A process id means something only on the machine that gave it, so both must be
// there and both must match (host names without regard to case); a window that names no machine
// could come from any machine and is not ours. Windows made by any toolkit in this process
// (Qt's own, and the GTK dialogs a platform theme draws) carry both.
bool isOwnWindow(const WindowOwner& owner, long ownProcessId, std::string_view ownHostName);

} // namespace tarnic::x11
