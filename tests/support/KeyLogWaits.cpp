#include "support/KeyLogWaits.h"

#include "support/KeyLogLine.h"

namespace tarnic::test {

unsigned long waitForReadyWindow(LineProcess& process, std::chrono::milliseconds timeout) {
    const int ready = process.waitForPrefix("ready ", 0, timeout);
    return ready < 0 ? 0 : process.lines()[ready].section(' ', 1).toULong();
}

int waitForKey(LineProcess& log, bool press, unsigned keycode, int from,
               std::chrono::milliseconds timeout) {
    return log.waitFor(
        [&](const QString& line) {
            const auto key = KeyLogLine::parse(line);
            return key && key->is(press, keycode);
        },
        from, timeout);
}

} // namespace tarnic::test
