#include "ScenarioRunner.h"

#include "core/bindings/BindingArray.h"
#include "core/remapper/RemapperSession.h"
#include "platform/fake/FakePlatform.h"

namespace tarnic::test {

namespace {

std::string stateLine(const InventoryRemapper& remapper) {
    return "state flagHold=" + std::to_string(remapper.flagHold) +
           " isFlag=" + (remapper.isFlag ? "true" : "false") +
           " isWarRun=" + (remapper.isWarRun ? "true" : "false");
}

std::string focusStateLine(const InventoryRemapper& remapper) {
    return std::string("focus-state gameInFront=") + (remapper.gameInFront ? "true" : "false") +
           " chatOpen=" + (remapper.chatOpen ? "true" : "false");
}

std::optional<std::string> identifierOf(const ScenarioStep& step) {
    return step.hasIdentifier ? std::optional<std::string>(step.identifier) : std::nullopt;
}

} // namespace

std::vector<std::string> runScenario(const Scenario& scenario) {
    using Kind = ScenarioStep::Kind;
    Platform platform = makeFakePlatform();
    const FakeParts fakes = fakeParts(platform);
    InventoryBindings bindings;
    RemapperSession session(platform);
    session.installObservers();

    std::vector<std::string> transcript;
    std::size_t postsSeen = 0;
    for (const ScenarioStep& step : scenario.steps) {
        switch (step.kind) {
        case Kind::Model:
            // A model line is the stored array form, read as the store reads it.
            bindings.of(static_cast<int>(step.number)) = bindingFromArray(step.values);
            session.setBindings(bindings);
            break;
        case Kind::Down:
            fakes.keyObserver->pressKey(static_cast<int>(step.number));
            break;
        case Kind::Flags:
            fakes.keyObserver->changeModifier(static_cast<int>(step.number));
            break;
        case Kind::Front:
            // One window manager property answers both: the timer's question and the watcher.
            fakes.frontmostApplication->setBundleIdentifier(identifierOf(step));
            fakes.frontmostWatcher->announce(identifierOf(step));
            break;
        case Kind::FrontUnread:
            fakes.frontmostApplication->setBundleIdentifier(identifierOf(step));
            fakes.frontmostWatcher->announceUnread(identifierOf(step));
            break;
        case Kind::Option:
            (step.identifier == "game-in-front" ? bindings.options.onlyWhileGameInFront
                                                : bindings.options.pauseWhileTypingInChat) =
                step.on;
            session.setBindings(bindings);
            break;
        case Kind::Tick:
            session.eventWithTimer();
            break;
        case Kind::OwnWindow:
            fakes.keyObserver->setOwnApplicationFrontmost(step.on);
            break;
        case Kind::Trust:
            fakes.accessibilityTrust->setTrusted(step.on);
            break;
        case Kind::FailNextDown:
            fakes.keyPoster->failNextKeyDown();
            break;
        case Kind::Slot:
            session.remapper().inventoryPress(step.number);
            break;
        case Kind::State:
        case Kind::FocusState:
            break;
        }
        // The posts this step caused, then (for "state") the state after it.
        const std::vector<std::string>& posts = fakes.keyPoster->posts();
        transcript.insert(transcript.end(), posts.begin() + static_cast<std::ptrdiff_t>(postsSeen),
                          posts.end());
        postsSeen = posts.size();
        if (step.kind == Kind::State) {
            transcript.push_back(stateLine(session.remapper()));
        }
        if (step.kind == Kind::FocusState) {
            transcript.push_back(focusStateLine(session.remapper()));
        }
    }
    return transcript;
}

} // namespace tarnic::test
