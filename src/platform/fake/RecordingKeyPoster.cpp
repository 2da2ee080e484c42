#include "platform/fake/RecordingKeyPoster.h"

namespace tarnic {

void RecordingKeyPoster::postKeyDown(std::uint16_t keyCode) {
    ++requestCount_;
    if (failNextKeyDown_) {
        failNextKeyDown_ = false;
        return;
    }
    posts_.push_back(std::to_string(keyCode) + " down");
}

void RecordingKeyPoster::postKeyUp(std::uint16_t keyCode) {
    ++requestCount_;
    posts_.push_back(std::to_string(keyCode) + " up");
}

void RecordingKeyPoster::clear() {
    posts_.clear();
    requestCount_ = 0;
    failNextKeyDown_ = false;
}

} // namespace tarnic
