#include "platform/null/NullPlatform.h"

namespace tarnic {

namespace {

class NullKeyObserver : public KeyObserver {
public:
    // Nothing is ever observed, so a handler would never be called: it is not even kept.
    void addKeyDownMonitor(Handler) override {}
    void addFlagsChangedMonitor(Handler) override {}
};

class NullKeyPoster : public KeyPoster {
public:
    void postKeyDown(std::uint16_t) override {}
    void postKeyUp(std::uint16_t) override {}
};

class NullFrontmostApplication : public FrontmostApplication {
public:
    std::optional<std::string> bundleIdentifier() const override { return std::nullopt; }
};

class NullFrontmostWatcher : public FrontmostWatcher {
public:
    std::optional<std::string> frontmostIdentifier() const override { return std::nullopt; }
    // Nothing is ever announced: the handler is not even kept.
    void addChangeMonitor(Handler) override {}
    void takeInChanges() override {}
};

class NullKeyLabels : public KeyLabels {
public:
    std::optional<std::uint32_t> keysymAt(int) const override { return std::nullopt; }
    // No layout is ever known, so none ever changes: the handler is not even kept.
    void addChangeMonitor(Handler) override {}
};

class Untrusted : public AccessibilityTrust {
public:
    bool isProcessTrusted() const override { return false; }
    UntrustedReason untrustedReason() const override { return UntrustedReason::NoDisplayServer; }
};

} // namespace

Platform makeNullPlatform() {
    Platform platform;
    platform.keyObserver = std::make_unique<NullKeyObserver>();
    platform.keyPoster = std::make_unique<NullKeyPoster>();
    platform.frontmostApplication = std::make_unique<NullFrontmostApplication>();
    platform.accessibilityTrust = std::make_unique<Untrusted>();
    platform.frontmostWatcher = std::make_unique<NullFrontmostWatcher>();
    platform.keyLabels = std::make_unique<NullKeyLabels>();
    return platform;
}

} // namespace tarnic
