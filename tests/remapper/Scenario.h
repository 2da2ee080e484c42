#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarnic::test {

// One line of a scenario's event list.
struct ScenarioStep {
    enum class Kind {
        Model,        // model N = [a, b, c]: set inventoryModelN (any length, [] for unbound)
        Down,         // down C: key C goes down in another application
        Flags,        // flags C: modifier key C goes down or up in another application
        Front,        // front ID | front none: the frontmost application, announced and read
        FrontUnread,  // front-unread ID | none: announced, not yet read when the next key comes
        Tick,         // tick: the game-detection timer fires
        OwnWindow,    // own-window on|off: this program's own window is active
        Trust,        // trust on|off: whether the program may watch other applications
        FailNextDown, // fail-next-down: the next key-down cannot be posted
        Slot,         // slot N: inventoryPress(N) directly
        State,        // state: write the remapper's state into the transcript
        Option,       // option game-in-front|pause-in-chat on|off: the player's options
        FocusState,   // focus-state: write what the options read into the transcript
    };

    Kind kind = Kind::State;
    int line = 0;                     // in the scenario file, for messages
    std::int64_t number = 0;          // model number, key code or slot
    std::vector<std::int64_t> values; // the model's elements
    std::string identifier;           // front, front-unread; option: its name
    bool hasIdentifier = false;       // front, front-unread: false for "none"
    bool on = false;                  // own-window, trust, option
};

// A scenario: what happens, then the transcript expected from it (the posted keys, as
// "89 down" and "89 up", and the lines written by "state").
struct Scenario {
    std::string name;
    std::vector<ScenarioStep> steps;
    std::vector<std::string> expected;
};

// Reads a scenario. The event list comes first; the first blank line after it starts the
// expected transcript. "#" starts a comment anywhere; blank lines and comments before the first
// event are skipped, and so are blank lines in the transcript. Returns false and says why in
// `error` ("line N: ...") on a line it cannot read.
bool parseScenario(const std::string& text, Scenario& scenario, std::string& error);

} // namespace tarnic::test
