#include "support/PlainUserThread.h"

#include <sys/syscall.h>
#include <unistd.h>

namespace {

// "nobody" on Debian.
constexpr long kNobody = 65534;

} // namespace

PlainUserThread::PlainUserThread() : wasRoot_(::geteuid() == 0) {
    if (!wasRoot_) {
        return;
    }
    // The saved IDs stay root, so that the thread may take root back.
    valid_ = ::syscall(SYS_setresgid, kNobody, kNobody, 0L) == 0 &&
             ::syscall(SYS_setresuid, kNobody, kNobody, 0L) == 0;
}

PlainUserThread::~PlainUserThread() {
    if (wasRoot_) {
        ::syscall(SYS_setresuid, 0L, 0L, 0L);
        ::syscall(SYS_setresgid, 0L, 0L, 0L);
    }
}
