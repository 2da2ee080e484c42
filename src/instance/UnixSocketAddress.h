#pragma once

#include <QString>

#include <sys/un.h>

#include <optional>

namespace tarnic {

// The address of a Unix-domain socket file, or nothing when the path does not fit in one (a
// socket's path, terminating zero included, has room for 108 bytes).
std::optional<sockaddr_un> unixSocketAddress(const QString& path);

// The system's text for an errno value, as a line for the player.
QString systemErrorText(int error);

} // namespace tarnic
