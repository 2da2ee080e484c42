#include "support/KeyLogWaits.h"

#include "support/KeyLogLine.h"
#include "support/XTestDriver.h"
#include "support/XvfbSession.h"

#include <gtest/gtest.h>

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

unsigned long startKeyLog(LineProcess& log, const QString& program, const QStringList& arguments,
                          const XvfbSession& server, XTestDriver& driver) {
    using namespace std::chrono_literals;
    EXPECT_TRUE(log.start(program, arguments, server.environment()));
    const unsigned long window = waitForReadyWindow(log, 10s);
    EXPECT_NE(window, 0u) << "key log did not map its window";
    if (window != 0) {
        EXPECT_TRUE(driver.focus(window, 5s));
    }
    return window;
}

} // namespace tarnic::test
