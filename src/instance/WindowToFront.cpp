#include "instance/WindowToFront.h"

#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>

namespace tarnic {

namespace {

xcb_atom_t internAtom(xcb_connection_t* connection, const char* name) {
    xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, static_cast<uint16_t>(std::strlen(name)), name),
        nullptr);
    if (reply == nullptr) {
        return XCB_ATOM_NONE;
    }
    const xcb_atom_t atom = reply->atom;
    std::free(reply);
    return atom;
}

// The EWMH request a pager sends to activate a window: source indication 2, the player.
void requestActivationAsPager(QWindow& window) {
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr || x11->connection() == nullptr) {
        return;
    }
    xcb_connection_t* connection = x11->connection();
    const xcb_atom_t activeWindow = internAtom(connection, "_NET_ACTIVE_WINDOW");
    if (activeWindow == XCB_ATOM_NONE) {
        return;
    }
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    if (screen == nullptr) {
        return;
    }
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = static_cast<xcb_window_t>(window.winId());
    event.type = activeWindow;
    event.data.data32[0] = 2;                // source: pager, on the player's behalf
    event.data.data32[1] = XCB_CURRENT_TIME; // the time of the player's start is not known
    event.data.data32[2] = XCB_WINDOW_NONE;  // our currently active window: none
    xcb_send_event(connection, 0, screen->root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(connection);
}

} // namespace

void bringWindowToFront(QWidget& window) {
    if (window.isMinimized()) {
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    }
    window.show();
    window.raise();
    window.activateWindow();
    if (QGuiApplication::platformName() == QLatin1String("xcb") &&
        window.windowHandle() != nullptr) {
        requestActivationAsPager(*window.windowHandle());
    }
}

} // namespace tarnic
