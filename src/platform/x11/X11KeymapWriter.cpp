#include "platform/x11/X11KeymapWriter.h"

#include "platform/x11/KeysymSpan.h"
#include "platform/x11/X11Connection.h"

#include <algorithm>
#include <cstring>
#include <optional>

// Xlibint.h: an extension request of our own making (Xlib's XkbChangeMap always asks the server
// to recompute the actions of every key it sends).
#include <X11/XKBlib.h>
#include <X11/Xlibint.h>
#include <X11/extensions/XKBproto.h>

namespace tarnic::x11 {

namespace {

struct ServerSpan {
    int minKeycode = 0;
    int maxKeycode = 0;
    KeySymSpan span;
};

// The server's key sym entries from `first` to `last`; none when XKB gives no map or the keycodes
// lie outside its range. Key types are not read: XKB keeps its canonical one-level type first
// (index 0), and a server that did not would refuse the request, leaving the core requests to do
// it.
std::optional<ServerSpan> readSpan(Display* display, unsigned first, unsigned last) {
    XkbDescPtr xkb = XkbGetMap(display, XkbKeySymsMask, XkbUseCoreKbd);
    if (xkb == nullptr) {
        return std::nullopt;
    }
    std::optional<ServerSpan> result;
    if (xkb->map != nullptr && xkb->map->key_sym_map != nullptr && first <= last &&
        first >= xkb->min_key_code && last <= xkb->max_key_code) {
        result.emplace();
        result->minKeycode = xkb->min_key_code;
        result->maxKeycode = xkb->max_key_code;
        result->span.first = first;
        for (unsigned keycode = first; keycode <= last; ++keycode) {
            const XkbSymMapRec& map = xkb->map->key_sym_map[keycode];
            KeySymEntry entry;
            std::copy(std::begin(map.kt_index), std::end(map.kt_index), entry.types.begin());
            entry.groupInfo = map.group_info;
            entry.width = map.width;
            const int count = XkbKeyNumSyms(xkb, keycode);
            const KeySym* syms = XkbKeySymsPtr(xkb, keycode);
            entry.syms.assign(syms, syms + count);
            result->span.entries.push_back(std::move(entry));
        }
    }
    XkbFreeKeyboard(xkb, 0, True);
    return result;
}

// The key syms component of a SetMap request: each key's description, then its keysyms.
std::vector<CARD32> keySymsComponent(const KeySymSpan& span, unsigned& totalSyms) {
    std::vector<CARD32> words;
    totalSyms = 0;
    for (const KeySymEntry& entry : span.entries) {
        xkbSymMapWireDesc description{};
        std::copy(entry.types.begin(), entry.types.end(), description.ktIndex);
        description.groupInfo = entry.groupInfo;
        description.width = entry.width;
        description.nSyms = static_cast<CARD16>(entry.syms.size());
        static_assert(sizeof(description) == 2 * sizeof(CARD32));
        CARD32 head[2];
        std::memcpy(head, &description, sizeof(description));
        words.insert(words.end(), std::begin(head), std::end(head));
        for (const Keysym sym : entry.syms) {
            words.push_back(static_cast<CARD32>(sym));
        }
        totalSyms += static_cast<unsigned>(entry.syms.size());
    }
    return words;
}

// False, and nothing sent, when the request would be longer than the protocol allows.
bool sendKeySyms(Display* display, int xkbOpcode, const ServerSpan& server) {
    unsigned totalSyms = 0;
    const std::vector<CARD32> words = keySymsComponent(server.span, totalSyms);
    const std::size_t length = sz_xkbSetMapReq / 4 + words.size();
    if (length > 0xffff || totalSyms > 0xffff || server.span.entries.size() > 0xff) {
        return false;
    }
    LockDisplay(display);
    auto* request =
        reinterpret_cast<xkbSetMapReq*>(_XGetRequest(display, X_kbSetMap, sz_xkbSetMapReq));
    *request = xkbSetMapReq{};
    request->reqType = static_cast<CARD8>(xkbOpcode);
    request->xkbReqType = X_kbSetMap;
    request->length = static_cast<CARD16>(length);
    request->deviceSpec = XkbUseCoreKbd;
    request->present = XkbKeySymsMask;
    request->flags = 0; // neither resize types nor recompute actions
    request->minKeyCode = static_cast<KeyCode>(server.minKeycode);
    request->maxKeyCode = static_cast<KeyCode>(server.maxKeycode);
    request->firstKeySym = static_cast<KeyCode>(server.span.first);
    request->nKeySyms = static_cast<CARD8>(server.span.entries.size());
    request->totalSyms = static_cast<CARD16>(totalSyms);
    _XSend(display, reinterpret_cast<const char*>(words.data()),
           static_cast<long>(words.size() * 4));
    UnlockDisplay(display);
    // Xlib's SyncHandle(), which names its display `dpy`.
    if (display->synchandler != nullptr) {
        (*display->synchandler)(display);
    }
    return true;
}

bool writeWithXkb(X11Connection& connection, int xkbOpcode,
                  const std::vector<KeycodeMapping>& mappings) {
    Display* display = connection.display();
    const auto [first, last] = spanOf(mappings);
    std::optional<ServerSpan> server = readSpan(display, first, last);
    if (!server || !applyMappings(server->span, mappings)) {
        return false;
    }
    if (!sendKeySyms(display, xkbOpcode, *server)) {
        return false;
    }
    return connection.syncSucceeded();
}

// One core request per run of consecutive keycodes.
void writeWithCore(Display* display, std::vector<KeycodeMapping> mappings) {
    std::sort(
        mappings.begin(), mappings.end(),
        [](const KeycodeMapping& a, const KeycodeMapping& b) { return a.keycode < b.keycode; });
    std::size_t start = 0;
    while (start < mappings.size()) {
        std::size_t end = start + 1;
        while (end < mappings.size() && mappings[end].keycode == mappings[end - 1].keycode + 1) {
            ++end;
        }
        std::vector<KeySym> syms;
        for (std::size_t i = start; i < end; ++i) {
            syms.push_back(mappings[i].keysym);
        }
        XChangeKeyboardMapping(display, static_cast<int>(mappings[start].keycode), 1, syms.data(),
                               static_cast<int>(syms.size()));
        start = end;
    }
}

} // namespace

void writeKeycodeMappings(X11Connection& connection, int xkbOpcode,
                          const std::vector<KeycodeMapping>& mappings) {
    if (mappings.empty()) {
        return;
    }
    if (xkbOpcode >= 0 && writeWithXkb(connection, xkbOpcode, mappings)) {
        return;
    }
    writeWithCore(connection.display(), mappings);
}

} // namespace tarnic::x11
