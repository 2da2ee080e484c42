#include "contact/ContactPanel.h"

#include "contact/Pref.h"

namespace tarnic {

Pref* showContactPanel(QWidget* parent) {
    Pref* panel = parent != nullptr
                      ? parent->findChild<Pref*>(QString(), Qt::FindDirectChildrenOnly)
                      : nullptr;
    if (panel == nullptr) {
        panel = new Pref(parent);
        panel->setAttribute(Qt::WA_DeleteOnClose);
    }
    panel->show();
    panel->raise();
    panel->activateWindow();
    return panel;
}

} // namespace tarnic
