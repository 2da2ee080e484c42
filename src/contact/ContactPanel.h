#pragma once

class QWidget;

namespace tarnic {

class Pref;

// Shows the contact panel beside the given window: one panel per window, raised when it is
// already open, deleted when closed.
Pref* showContactPanel(QWidget* parent);

} // namespace tarnic
