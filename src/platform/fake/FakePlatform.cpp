#include "platform/fake/FakePlatform.h"

#include <memory>

namespace tarnic {

Platform makeFakePlatform() {
    auto trust = std::make_unique<FakeAccessibilityTrust>();
    Platform platform;
    // The trust object lives as long as the observer: both belong to the same Platform.
    platform.keyObserver = std::make_unique<FakeKeyObserver>(trust.get());
    platform.keyPoster = std::make_unique<RecordingKeyPoster>();
    platform.frontmostApplication = std::make_unique<FakeFrontmostApplication>();
    platform.accessibilityTrust = std::move(trust);
    platform.frontmostWatcher = std::make_unique<FakeFrontmostWatcher>();
    platform.keyLabels = std::make_unique<FakeKeyLabels>();
    return platform;
}

FakeParts fakeParts(const Platform& platform) {
    FakeParts parts;
    parts.keyObserver = dynamic_cast<FakeKeyObserver*>(platform.keyObserver.get());
    parts.keyPoster = dynamic_cast<RecordingKeyPoster*>(platform.keyPoster.get());
    parts.frontmostApplication =
        dynamic_cast<FakeFrontmostApplication*>(platform.frontmostApplication.get());
    parts.accessibilityTrust =
        dynamic_cast<FakeAccessibilityTrust*>(platform.accessibilityTrust.get());
    parts.frontmostWatcher = dynamic_cast<FakeFrontmostWatcher*>(platform.frontmostWatcher.get());
    parts.keyLabels = dynamic_cast<FakeKeyLabels*>(platform.keyLabels.get());
    return parts;
}

} // namespace tarnic
