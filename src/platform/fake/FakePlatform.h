#pragma once

#include "core/platform/Platform.h"
#include "platform/fake/FakeAccessibilityTrust.h"
#include "platform/fake/FakeFrontmostApplication.h"
#include "platform/fake/FakeFrontmostWatcher.h"
#include "platform/fake/FakeKeyLabels.h"
#include "platform/fake/FakeKeyObserver.h"
#include "platform/fake/RecordingKeyPoster.h"

namespace tarnic {

// The fakes behind a Platform, for test code to drive and inspect. Each is null when the
// platform holds something else in that place.
struct FakeParts {
    FakeKeyObserver* keyObserver = nullptr;
    RecordingKeyPoster* keyPoster = nullptr;
    FakeFrontmostApplication* frontmostApplication = nullptr;
    FakeAccessibilityTrust* accessibilityTrust = nullptr;
    FakeFrontmostWatcher* frontmostWatcher = nullptr;
    FakeKeyLabels* keyLabels = nullptr;
};

// A platform made of the recording fakes: trusted, no application frontmost (nor announced),
// nothing posted, no keyboard layout known (US key names) until a test sets one.
// Its key observer reports through the program's KeyGate, which asks this trust object.
Platform makeFakePlatform();

// The fakes inside `platform`, which makeFakePlatform() made.
FakeParts fakeParts(const Platform& platform);

} // namespace tarnic
