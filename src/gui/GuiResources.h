#pragma once

namespace tarnic {

// Registers the window's compiled-in resources (the export template and the pictures). The
// library is static, so nothing else would pull them in. Safe to call more than once.
void initGuiResources();

} // namespace tarnic
