#include "platform/x11/X11KeypadKeycodes.h"

#include "platform/x11/X11Connection.h"
#include "platform/x11/X11EventPump.h"
#include "platform/x11/X11KeyCodes.h"

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/keysym.h>

#include <algorithm>
#include <cstdio>
#include <utility>
#include <vector>

namespace tarnic::x11 {

namespace {

struct Digit {
    int macKeyCode;
    KeySym keysym;
};

// In slot order, as the property lists them.
constexpr std::array<Digit, 6> kDigits = {
    {{89, XK_KP_7}, {91, XK_KP_8}, {86, XK_KP_4}, {87, XK_KP_5}, {83, XK_KP_1}, {84, XK_KP_2}}};

constexpr char kPropertyName[] = "_TARNIC_PRO_KEYPAD_KEYCODES";

// The server's core keyboard mapping, read in one request.
class Keymap {
public:
    explicit Keymap(Display* display) {
        XDisplayKeycodes(display, &min_, &max_);
        KeySym* syms =
            XGetKeyboardMapping(display, static_cast<KeyCode>(min_), max_ - min_ + 1, &perKeycode_);
        if (syms != nullptr) {
            syms_.assign(syms, syms + static_cast<std::size_t>(max_ - min_ + 1) *
                                          static_cast<std::size_t>(perKeycode_));
            XFree(syms);
        } else {
            perKeycode_ = 0;
        }
    }

    int min() const { return min_; }
    int max() const { return max_; }

    // No keysym at any level of any group.
    bool unused(unsigned keycode) const {
        const auto row = rowOf(keycode);
        return row.first != nullptr &&
               std::all_of(row.first, row.second, [](KeySym sym) { return sym == NoSymbol; });
    }

    // This keysym and no other (the core mapping repeats a one-group key's keysym in the second
    // group's columns).
    bool holdsOnly(unsigned keycode, KeySym keysym) const {
        const auto row = rowOf(keycode);
        return row.first != nullptr &&
               std::any_of(row.first, row.second, [&](KeySym sym) { return sym == keysym; }) &&
               std::all_of(row.first, row.second,
                           [&](KeySym sym) { return sym == NoSymbol || sym == keysym; });
    }

private:
    std::pair<const KeySym*, const KeySym*> rowOf(unsigned keycode) const {
        if (perKeycode_ <= 0 || static_cast<int>(keycode) < min_ ||
            static_cast<int>(keycode) > max_) {
            return {nullptr, nullptr};
        }
        const KeySym* first =
            syms_.data() + static_cast<std::size_t>(static_cast<int>(keycode) - min_) *
                               static_cast<std::size_t>(perKeycode_);
        return {first, first + perKeycode_};
    }

    int min_ = 0;
    int max_ = -1;
    int perKeycode_ = 0;
    std::vector<KeySym> syms_;
};

std::vector<unsigned> modifierKeycodes(Display* display) {
    std::vector<unsigned> keycodes;
    XModifierKeymap* map = XGetModifierMapping(display);
    if (map != nullptr) {
        for (int i = 0; i < 8 * map->max_keypermod; ++i) {
            if (map->modifiermap[i] != 0) {
                keycodes.push_back(map->modifiermap[i]);
            }
        }
        XFreeModifiermap(map);
    }
    return keycodes;
}

std::array<unsigned, 6> readRecord(Display* display, Atom property) {
    std::array<unsigned, 6> recorded{};
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long remaining = 0;
    unsigned char* data = nullptr;
    if (XGetWindowProperty(display, DefaultRootWindow(display), property, 0, recorded.size(), False,
                           XA_CARDINAL, &type, &format, &count, &remaining, &data) == Success &&
        type == XA_CARDINAL && format == 32 && data != nullptr) {
        // Format 32 comes back as an array of long, whatever the platform.
        const auto* values = reinterpret_cast<const unsigned long*>(data);
        for (std::size_t i = 0; i < std::min<std::size_t>(count, recorded.size()); ++i) {
            recorded[i] = values[i] <= 255 ? static_cast<unsigned>(values[i]) : 0;
        }
    }
    if (data != nullptr) {
        XFree(data);
    }
    return recorded;
}

void writeRecord(Display* display, Atom property, const std::array<unsigned, 6>& keycodes) {
    const Window root = DefaultRootWindow(display);
    if (std::all_of(keycodes.begin(), keycodes.end(), [](unsigned k) { return k == 0; })) {
        XDeleteProperty(display, root, property);
        return;
    }
    std::array<long, 6> values{};
    std::copy(keycodes.begin(), keycodes.end(), values.begin());
    XChangeProperty(display, root, property, XA_CARDINAL, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(values.data()),
                    static_cast<int>(values.size()));
}

// Gives each keycode its keysym, one request per run of consecutive keycodes: every request
// makes every client of the display reread its keymap.
void mapKeycodes(Display* display, std::vector<std::pair<unsigned, KeySym>> mappings) {
    std::sort(mappings.begin(), mappings.end());
    std::size_t start = 0;
    while (start < mappings.size()) {
        std::size_t end = start + 1;
        while (end < mappings.size() && mappings[end].first == mappings[end - 1].first + 1) {
            ++end;
        }
        std::vector<KeySym> syms;
        for (std::size_t i = start; i < end; ++i) {
            syms.push_back(mappings[i].second);
        }
        XChangeKeyboardMapping(display, static_cast<int>(mappings[start].first), 1, syms.data(),
                               static_cast<int>(syms.size()));
        start = end;
    }
}

bool isInKeyTable(unsigned keycode) {
    return macKeyCodeOfXKeycode(keycode).has_value();
}

// Keycodes free to take, best first: from the top of the range down, since physical keys
// cluster at the bottom; keycodes that the key table names for a physical key last, so that a
// binding on such a key keeps working as long as possible.
std::vector<unsigned> freeKeycodes(const Keymap& map, const std::vector<unsigned>& modifiers) {
    std::vector<unsigned> first;
    std::vector<unsigned> last;
    for (int keycode = map.max(); keycode >= map.min(); --keycode) {
        const auto k = static_cast<unsigned>(keycode);
        if (!map.unused(k) || std::find(modifiers.begin(), modifiers.end(), k) != modifiers.end()) {
            continue;
        }
        (isInKeyTable(k) ? last : first).push_back(k);
    }
    first.insert(first.end(), last.begin(), last.end());
    return first;
}

} // namespace

X11KeypadKeycodes::X11KeypadKeycodes(std::shared_ptr<X11Connection> connection)
    : connection_(std::move(connection)) {
    Display* display = connection_->display();
    propertyAtom_ = XInternAtom(display, kPropertyName, False);
    int opcode = 0;
    int eventBase = 0;
    int errorBase = 0;
    int major = XkbMajorVersion;
    int minor = XkbMinorVersion;
    if (XkbQueryExtension(display, &opcode, &eventBase, &errorBase, &major, &minor)) {
        xkbEventBase_ = eventBase;
        const unsigned long events = XkbNewKeyboardNotifyMask | XkbMapNotifyMask;
        XkbSelectEvents(display, XkbUseCoreKbd, events, events);
    }
    claim();

    X11EventPump& pump = connection_->eventPump();
    listener_ = pump.addListener([this](XEvent& event) { takeIn(event); },
                                 [this] {
                                     if (std::exchange(keymapChanged_, false)) {
                                         verify();
                                     }
                                 });
}

X11KeypadKeycodes::~X11KeypadKeycodes() {
    connection_->eventPump().removeListener(listener_);
    release();
}

std::optional<unsigned> X11KeypadKeycodes::keycodeFor(int macKeyCode) {
    const auto it = std::find_if(kDigits.begin(), kDigits.end(), [&](const Digit& digit) {
        return digit.macKeyCode == macKeyCode;
    });
    if (it == kDigits.end()) {
        return std::nullopt;
    }
    takeInKeymapChanges();
    const unsigned keycode = keycodes_[static_cast<std::size_t>(it - kDigits.begin())];
    if (keycode == 0) {
        return std::nullopt;
    }
    return keycode;
}

bool X11KeypadKeycodes::isOwn(unsigned xKeycode) const {
    return xKeycode != 0 &&
           std::find(keycodes_.begin(), keycodes_.end(), xKeycode) != keycodes_.end();
}

void X11KeypadKeycodes::takeInKeymapChanges() {
    // The pump's settled step verifies the keycodes when a notification was among the events.
    connection_->eventPump().readPending();
}

void X11KeypadKeycodes::takeIn(XEvent& event) {
    if (event.type == MappingNotify) {
        if (event.xmapping.request != MappingPointer) {
            XRefreshKeyboardMapping(&event.xmapping);
            keymapChanged_ = true;
        }
    } else if (xkbEventBase_ >= 0 && event.type == xkbEventBase_) {
        auto* xkb = reinterpret_cast<XkbEvent*>(&event);
        if (xkb->any.xkb_type == XkbMapNotify || xkb->any.xkb_type == XkbNewKeyboardNotify) {
            // Also takes in a new keycode range, which the keymap is read over.
            XkbRefreshKeyboardMapping(&xkb->map);
            keymapChanged_ = true;
        }
    }
}

void X11KeypadKeycodes::verify() {
    const Keymap map(connection_->display());
    bool missing = false;
    for (std::size_t i = 0; i < kDigits.size(); ++i) {
        if (keycodes_[i] != 0 && !map.holdsOnly(keycodes_[i], kDigits[i].keysym)) {
            // Taken or cleared by the new keymap: no tap goes out on it any more.
            keycodes_[i] = 0;
        }
        missing = missing || keycodes_[i] == 0;
    }
    if (missing) {
        claim();
    }
}

void X11KeypadKeycodes::claim() {
    Display* display = connection_->display();
    XGrabServer(display);
    const Keymap map(display);
    const std::array<unsigned, 6> recorded = readRecord(display, propertyAtom_);

    std::array<unsigned, 6> next{};
    const auto taken = [&](unsigned keycode) {
        return std::find(next.begin(), next.end(), keycode) != next.end();
    };
    // Ours already, or a leftover of an earlier run that still holds its digit.
    for (std::size_t i = 0; i < kDigits.size(); ++i) {
        for (const unsigned candidate : {keycodes_[i], recorded[i]}) {
            if (candidate != 0 && !taken(candidate) &&
                map.holdsOnly(candidate, kDigits[i].keysym)) {
                next[i] = candidate;
                break;
            }
        }
    }
    // A recorded leftover not reused (a digit this process already has elsewhere) is cleared,
    // so that no digit ends up on two keycodes.
    std::vector<std::pair<unsigned, KeySym>> changes;
    for (std::size_t i = 0; i < kDigits.size(); ++i) {
        if (recorded[i] != 0 && !taken(recorded[i]) &&
            map.holdsOnly(recorded[i], kDigits[i].keysym)) {
            changes.emplace_back(recorded[i], NoSymbol);
        }
    }
    const std::vector<unsigned> free = freeKeycodes(map, modifierKeycodes(display));
    auto candidate = free.begin();
    for (std::size_t i = 0; i < kDigits.size(); ++i) {
        if (next[i] != 0) {
            continue;
        }
        while (candidate != free.end() && taken(*candidate)) {
            ++candidate;
        }
        if (candidate == free.end()) {
            break;
        }
        next[i] = *candidate++;
        changes.emplace_back(next[i], kDigits[i].keysym);
    }
    // The record first: a process killed in between leaves at most a record of keycodes that
    // do not hold their digit, which the next start ignores.
    if (next != recorded) {
        writeRecord(display, propertyAtom_, next);
    }
    mapKeycodes(display, changes);
    XUngrabServer(display);
    keycodes_ = next;

    if (!changes.empty() && !connection_->syncSucceeded()) {
        // A mapping the server refused: keep only what it holds.
        const Keymap now(display);
        for (std::size_t i = 0; i < kDigits.size(); ++i) {
            if (keycodes_[i] != 0 && !now.holdsOnly(keycodes_[i], kDigits[i].keysym)) {
                keycodes_[i] = 0;
            }
        }
    }
    XFlush(display);

    if (!fallbackReported_ &&
        std::any_of(keycodes_.begin(), keycodes_.end(), [](unsigned k) { return k == 0; })) {
        fallbackReported_ = true;
        std::fprintf(stderr, "Tarnic Pro: no unused keycode left for the keypad keys; inventory "
                             "taps use the keyboard's own keypad keys, with NumLock on for each "
                             "tap\n");
    }
}

void X11KeypadKeycodes::release() {
    if (std::all_of(keycodes_.begin(), keycodes_.end(), [](unsigned k) { return k == 0; })) {
        return;
    }
    Display* display = connection_->display();
    XGrabServer(display);
    const Keymap map(display);
    std::array<unsigned, 6> recorded = readRecord(display, propertyAtom_);
    std::vector<std::pair<unsigned, KeySym>> cleared;
    for (std::size_t i = 0; i < kDigits.size(); ++i) {
        const unsigned keycode = keycodes_[i];
        if (keycode != 0 && map.holdsOnly(keycode, kDigits[i].keysym)) {
            cleared.emplace_back(keycode, NoSymbol);
        }
        if (recorded[i] == keycode) {
            recorded[i] = 0;
        }
    }
    writeRecord(display, propertyAtom_, recorded);
    mapKeycodes(display, cleared);
    XUngrabServer(display);
    XSync(display, False);
    keycodes_ = {};
}

} // namespace tarnic::x11
