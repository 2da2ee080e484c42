#pragma once

#include "shell/Alert.h"

#include <QString>

namespace tarnic {

// The notice of a store file that could not be read at start and was kept as `aside`.
Alert storeSetAsideAlert(const QString& store, const QString& aside);

} // namespace tarnic
