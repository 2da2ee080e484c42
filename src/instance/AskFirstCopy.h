#pragma once

#include <QString>

#include <chrono>

namespace tarnic {

// A later start's request to the first copy, listening on the Unix-domain socket at
// `serverPath`, to bring its window to the front. True once the first copy has answered that it
// did; false when nobody listens there, the connection broke, the answer was not the expected
// one or it did not come by `deadline`. Never waits past `deadline`, and gives up on the
// connection itself after `connectWait`.
bool askFirstCopy(const QString& serverPath, std::chrono::steady_clock::time_point deadline,
                  std::chrono::milliseconds connectWait);

} // namespace tarnic
