#include "core/remapper/RemapperSession.h"

#include "core/fatal/Fatal.h"

namespace tarnic {

namespace {
// A platform is built whole at start-up; a missing piece is a programming error.
template <typename T> T& required(const std::unique_ptr<T>& part, const char* what) {
    if (!part) {
        fatalError(kNilUnwrap, what);
    }
    return *part;
}
} // namespace

RemapperSession::RemapperSession(Platform& platform)
    : platform_(platform), remapper_(std::make_shared<InventoryRemapper>(
                               required(platform.keyPoster, "the platform has no key poster"))) {
    required(platform.keyObserver, "the platform has no key observer");
    required(platform.frontmostApplication, "the platform has no frontmost application");
    required(platform.frontmostWatcher, "the platform has no frontmost watcher");
}

void RemapperSession::installObservers() {
    const std::weak_ptr<InventoryRemapper> remapper = remapper_;
    FrontmostWatcher* watcher = platform_.frontmostWatcher.get();
    platform_.keyObserver->addKeyDownMonitor([remapper, watcher](int keyCode) {
        if (const auto alive = remapper.lock()) {
            if (alive->needsFrontmostAtKeyPress()) {
                watcher->takeInChanges();
            }
            alive->keyDown(keyCode);
        }
    });
    platform_.keyObserver->addFlagsChangedMonitor([remapper](int keyCode) {
        if (const auto alive = remapper.lock()) {
            alive->flagsChanged(keyCode);
        }
    });
    watcher->addChangeMonitor([remapper](const std::optional<std::string>& identifier) {
        if (const auto alive = remapper.lock()) {
            alive->frontmostChanged(identifier);
        }
    });
    remapper_->frontmostChanged(watcher->frontmostIdentifier());
}

void RemapperSession::setBindings(const InventoryBindings& bindings) {
    remapper_->setBindings(bindings);
}

void RemapperSession::eventWithTimer() {
    remapper_->eventWithTimer(*platform_.frontmostApplication);
}

} // namespace tarnic
