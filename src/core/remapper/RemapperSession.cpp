#include "core/remapper/RemapperSession.h"

#include "core/fatal/Fatal.h"

#include <chrono>
#include <mutex>

namespace tarnic {

namespace {
// A platform is built whole at start-up; a missing piece is a programming error.
template <typename Pointer> auto& required(const Pointer& part, const char* what) {
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
    required(platform.keyPath, "the platform has no key-path lock");
    required(platform.frontmostApplication, "the platform has no frontmost application");
    required(platform.frontmostWatcher, "the platform has no frontmost watcher");
}

RemapperSession::~RemapperSession() {
    const std::lock_guard lock(*platform_.keyPath);
    remapper_.reset();
}

void RemapperSession::installObservers() {
    const std::lock_guard lock(*platform_.keyPath);
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
    // The key thread reads them at every key.
    const std::lock_guard lock(*platform_.keyPath);
    remapper_->setBindings(bindings);
}

std::optional<bool> RemapperSession::eventWithTimer() {
    // A key holds the lock for microseconds. Much longer, and the key thread is waiting for the
    // main thread itself (to show a fatal error): this tick is skipped, the next comes soon.
    const std::unique_lock lock(*platform_.keyPath, std::chrono::milliseconds(200));
    if (!lock.owns_lock()) {
        return std::nullopt;
    }
    remapper_->eventWithTimer(*platform_.frontmostApplication);
    return remapper_->isWarRun;
}

} // namespace tarnic
