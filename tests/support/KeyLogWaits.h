#pragma once

#include "support/LineProcess.h"

#include <QStringList>

#include <chrono>

namespace tarnic::test {

class XTestDriver;
class XvfbSession;

// The window a key-log client or the remapper's stand-in announced on its "ready <window id>"
// line, waiting up to `timeout` for it; 0 if the line did not come.
unsigned long waitForReadyWindow(LineProcess& process, std::chrono::milliseconds timeout);

// The index of the first key line at or after `from` that is this press (or release) of the
// keycode, waiting up to `timeout`; -1 if none comes.
int waitForKey(LineProcess& log, bool press, unsigned keycode, int from,
               std::chrono::milliseconds timeout = std::chrono::seconds(5));

// Starts the key-log client (`program`, with `arguments`) on `server`, waits for its window and
// gives it the focus through `driver`; its window id, or 0 after a failed expectation.
unsigned long startKeyLog(LineProcess& log, const QString& program, const QStringList& arguments,
                          const XvfbSession& server, XTestDriver& driver);

} // namespace tarnic::test
