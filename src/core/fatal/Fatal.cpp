#include "core/fatal/Fatal.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace tarnic {

namespace {

std::atomic<FatalNotice> currentNotice{nullptr};
std::atomic_flag noticeGiven = ATOMIC_FLAG_INIT;

} // namespace

void fatalError(std::string_view message, std::string_view detail) {
    std::string line = "Fatal error: ";
    line.append(message);
    if (!detail.empty()) {
        line.append(": ").append(detail);
    }
    // Standard error first: whatever becomes of the notice, the reason is on record.
    std::fprintf(stderr, "%s\n", line.c_str());
    std::fflush(stderr);
    const FatalNotice notice = currentNotice.load();
    if (notice != nullptr && !noticeGiven.test_and_set()) {
        notice(line);
    }
    std::abort();
}

void setFatalNotice(FatalNotice notice) {
    currentNotice.store(notice);
}

} // namespace tarnic
