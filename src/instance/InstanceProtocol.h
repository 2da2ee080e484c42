#pragma once

#include <QByteArray>

#include <chrono>

namespace tarnic::instance {

// What a later start says to the first copy over its socket, and the first copy's answer: one
// line each.
inline const QByteArray kActivate = QByteArrayLiteral("activate\n");
inline const QByteArray kActivated = QByteArrayLiteral("activated\n");
// A request or an answer is one short line; anything longer is not from this program.
inline constexpr qsizetype kLongestLine = 64;
// A client that connects and says nothing does not keep its socket for ever.
inline constexpr std::chrono::milliseconds kQuietClientWait{5000};

} // namespace tarnic::instance
