#pragma once

#include "shell/Alert.h"

#include <QString>

#include <optional>
#include <string>

namespace tarnic {

// Writes `text` to `path` through a temporary file that replaces it only when complete, so that a
// write that fails leaves the file that was there as it was. Returns why it failed, in the
// system's words, or nothing when the file was written.
std::optional<QString> writeExportFile(const QString& path, const std::string& text);

// The alert of an export that could not be written: the file's name, where it is, and why.
Alert exportFailedAlert(const QString& path, const QString& reason);

} // namespace tarnic
