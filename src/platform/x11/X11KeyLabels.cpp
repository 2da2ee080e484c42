#include "platform/x11/X11KeyLabels.h"

#include "platform/x11/X11Connection.h"
#include "platform/x11/X11EventPump.h"
#include "platform/x11/X11KeyCodes.h"
#include "platform/x11/XkbExtension.h"

#include <QThread>

#include <X11/XKBlib.h>
#include <X11/Xlib.h>

#include <mutex>
#include <utility>

namespace tarnic::x11 {

namespace {

// The group a key answers for when the keyboard is in `group`: keys with fewer groups than the
// keymap bring the group into range by their own rule.
int effectiveGroup(XkbDescPtr xkb, unsigned keycode, int group) {
    const int groups = XkbKeyNumGroups(xkb, keycode);
    if (groups <= 0) {
        return -1;
    }
    if (group < groups) {
        return group;
    }
    const unsigned info = XkbKeyGroupInfo(xkb, keycode);
    switch (XkbOutOfRangeGroupAction(info)) {
    case XkbRedirectIntoRange: {
        const int redirected = XkbOutOfRangeGroupNumber(info);
        return redirected < groups ? redirected : 0;
    }
    case XkbClampIntoRange:
        return groups - 1;
    default:
        return group % groups;
    }
}

} // namespace

X11KeyLabels::X11KeyLabels(std::shared_ptr<X11Connection> connection)
    : connection_(std::move(connection)) {
    // The key thread may already read this connection's events in the middle of a key: every
    // request here is made under the connection's lock.
    const std::lock_guard lock(*connection_->lock());
    Display* display = connection_->display();
    if (const std::optional<XkbExtension> xkb = queryXkb(display)) {
        xkbEventBase_ = xkb->eventBase;
        // The keypad keycodes select the same two events; the selections add up.
        selectKeymapNotifications(display);
        XkbSelectEventDetails(display, XkbUseCoreKbd, XkbStateNotify, XkbGroupStateMask,
                              XkbGroupStateMask);
        reread();
    }
    // Under XWayland every tap after a key of the physical keyboard makes the server announce a
    // keymap change (the master keyboard switches devices) while nothing changed: the layout is
    // read again a moment after a burst of notifications, once for all of them, and never right
    // after a tap, when the next key press may be on its way.
    settle_.setSingleShot(true);
    settle_.setInterval(kSettleTime);
    QObject::connect(&settle_, &QTimer::timeout, [this] { rereadAndTell(); });
    X11EventPump& pump = connection_->eventPump();
    listener_ = pump.addListener([this](XEvent& event) { takeIn(event); },
                                 [this] {
                                     if (std::exchange(changed_, false)) {
                                         settleSoon();
                                     }
                                 });
}

void X11KeyLabels::settleSoon() {
    const auto start = [this] {
        if (!settle_.isActive()) {
            settle_.start();
        }
    };
    // The key thread reads this connection's events too, in the middle of a key; the timer
    // belongs to the main thread, so from there the start is posted to it.
    if (QThread::currentThread() == settle_.thread()) {
        start();
    } else {
        QMetaObject::invokeMethod(&settle_, start, Qt::QueuedConnection);
    }
}

X11KeyLabels::~X11KeyLabels() {
    connection_->eventPump().removeListener(listener_);
}

std::optional<std::uint32_t> X11KeyLabels::keysymAt(int macKeyCode) const {
    const auto it = keysyms_.find(macKeyCode);
    if (it == keysyms_.end()) {
        return std::nullopt;
    }
    return it->second;
}

void X11KeyLabels::addChangeMonitor(Handler handler) {
    handlers_.push_back(std::move(handler));
}

void X11KeyLabels::takeInChanges() {
    connection_->eventPump().readPending();
    if (settle_.isActive()) {
        settle_.stop();
        rereadAndTell();
    }
}

void X11KeyLabels::rereadAndTell() {
    {
        // A key holds the lock for microseconds; much longer, and the key thread waits for the
        // main thread itself. The layout is then read at the next settle instead.
        const std::unique_lock lock(*connection_->lock(), kLockPatience);
        if (!lock.owns_lock()) {
            settle_.start();
            return;
        }
        if (!reread()) {
            return;
        }
    }
    // The handlers name keys in widgets: outside the lock, which the key thread waits on.
    // By index and by copy: a handler may add another.
    for (std::size_t i = 0; i < handlers_.size(); ++i) {
        const Handler handler = handlers_[i];
        handler();
    }
}

void X11KeyLabels::takeIn(XEvent& event) {
    if (event.type == MappingNotify) {
        changed_ = changed_ || event.xmapping.request == MappingKeyboard;
    } else if (xkbEventBase_ >= 0 && event.type == xkbEventBase_) {
        const auto* xkb = reinterpret_cast<const XkbEvent*>(&event);
        switch (xkb->any.xkb_type) {
        case XkbNewKeyboardNotify:
        case XkbMapNotify:
            changed_ = true;
            break;
        case XkbStateNotify:
            changed_ = changed_ || (xkb->state.changed & XkbGroupStateMask) != 0;
            break;
        default:
            break;
        }
    }
}

bool X11KeyLabels::reread() {
    Display* display = connection_->display();
    std::map<int, std::uint32_t> keysyms;
    XkbStateRec state{};
    XkbDescPtr xkb = XkbGetMap(display, XkbKeyTypesMask | XkbKeySymsMask, XkbUseCoreKbd);
    if (xkb != nullptr && XkbGetState(display, XkbUseCoreKbd, &state) == Success) {
        for (const KeyCodePair& pair : keyCodePairs()) {
            const unsigned keycode = pair.xKeycode;
            if (keycode < xkb->min_key_code || keycode > xkb->max_key_code) {
                continue;
            }
            const int group = effectiveGroup(xkb, keycode, state.group);
            if (group < 0) {
                continue;
            }
            const KeySym keysym = XkbKeySymEntry(xkb, keycode, 0, group);
            if (keysym != NoSymbol) {
                keysyms[pair.macKeyCode] = static_cast<std::uint32_t>(keysym);
            }
        }
    }
    if (xkb != nullptr) {
        XkbFreeKeyboard(xkb, 0, True);
    }
    if (keysyms == keysyms_) {
        return false;
    }
    keysyms_ = std::move(keysyms);
    return true;
}

} // namespace tarnic::x11
