#include "core/fatal/Fatal.h"

#include <cstdio>
#include <cstdlib>

namespace tarnic {

void fatalError(std::string_view message, std::string_view detail) {
    std::fprintf(stderr, "Fatal error: %.*s", static_cast<int>(message.size()), message.data());
    if (!detail.empty()) {
        std::fprintf(stderr, ": %.*s", static_cast<int>(detail.size()), detail.data());
    }
    std::fputc('\n', stderr);
    std::fflush(stderr);
    std::abort();
}

} // namespace tarnic
