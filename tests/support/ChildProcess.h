#pragma once

#include <QProcess>

#include <csignal>
#include <sys/prctl.h>

namespace tarnic::test {

// A child started by a test ends with the test, even when the test crashes or is killed.
inline void endWithTest(QProcess& process) {
    process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
}

} // namespace tarnic::test
