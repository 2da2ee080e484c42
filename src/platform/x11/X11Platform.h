#pragma once

#include "core/platform/Platform.h"

#include <optional>

namespace tarnic {

// The X11 backend: the key observer (RECORD), the key poster (XTest), the frontmost application
// (_NET_ACTIVE_WINDOW and WM_CLASS, asked for, and followed through the root window's
// property-change events), the accessibility answer (whether recording started) and the keyboard
// layout's symbols, for naming keys (XKB, followed through its notifications).
//
// Call it once, on the main thread, after the QGuiApplication (or QApplication) exists and
// before its event loop runs. The backend opens two connections of its own to `displayName`
// (null: $DISPLAY): a main one for posting, for the frontmost window, for the keymap and root
// window events and for controlling the recording, and one that only carries the recording, read
// by the observer's key thread, which handles each key (and taps) without waiting for the event
// loop. The main connection's events are read by the event loop and, in the middle of a key, by
// the key thread, under the platform's key-path lock. Qt's own connection is left alone.
//
// The inventory slots' keypad taps go out on six keycodes the backend claims here, at once, and
// gives back when the last of the platform's parts is destroyed (see X11KeypadKeycodes): keep the
// Platform until the event loop has ended, and end the program by leaving the event loop so that
// the destructors run. When no unused keycode is left, the taps go to the keyboard's own keypad
// keys with Num Lock on for the tap, and a line on standard error says so.
//
// Keys typed while a window of this process is the active one (any toolkit's: Qt's, or a GTK
// dialog of a platform theme) are not observed; see X11OwnWindowWatcher.
//
// None when the display cannot be opened (no X server, or a Wayland session without XWayland).
std::optional<Platform> makeX11Platform(const char* displayName = nullptr);

} // namespace tarnic
