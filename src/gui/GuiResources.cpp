#include "gui/GuiResources.h"

#include <QtGlobal>

// Q_INIT_RESOURCE must be used outside any namespace.
static void initResourcesOnce() {
    Q_INIT_RESOURCE(defaultkeys);
    Q_INIT_RESOURCE(images);
}

namespace tarnic {

void initGuiResources() {
    static const bool done = (initResourcesOnce(), true);
    (void)done;
}

} // namespace tarnic
