#pragma once

#include "core/platform/KeyPoster.h"

#include <string>
#include <vector>

namespace tarnic {

// Records every key it is asked to post, as "89 down" and "89 up", in order. It can be told
// to fail the next key-down, which is then not posted (and not recorded), as when the system
// cannot create the event.
class RecordingKeyPoster : public KeyPoster {
public:
    void postKeyDown(std::uint16_t keyCode) override;
    void postKeyUp(std::uint16_t keyCode) override;

    void failNextKeyDown() { failNextKeyDown_ = true; }

    const std::vector<std::string>& posts() const { return posts_; }
    // Every request, posted or not: the number of postKeyDown and postKeyUp calls.
    std::size_t requestCount() const { return requestCount_; }
    void clear();

private:
    std::vector<std::string> posts_;
    std::size_t requestCount_ = 0;
    bool failNextKeyDown_ = false;
};

} // namespace tarnic
