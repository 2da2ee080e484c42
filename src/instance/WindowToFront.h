#pragma once

class QWidget;

namespace tarnic {

// Brings a top-level window to the front and gives it the focus, when the player asked for it by
// starting the program a second time: restored if minimized, shown, raised and activated. Window
// managers refuse an application that asks for the focus on its own behalf while another program
// has it (focus-stealing prevention), so on X11 the request names its source as the player's own
// action, as a taskbar or pager does when the player clicks a window's entry.
void bringWindowToFront(QWidget& window);

} // namespace tarnic
