#pragma once

#include <QSettings>
#include <QString>

namespace tarnic {

// Writes what was set in `settings` to its file now, and says whether the file holds it: false
// when the folder cannot be written or the disk is full. QSettings keeps what it could not write
// and writes it again at the next write, so one write that works makes the file whole again.
bool writeSettings(QSettings& settings);

// Whether the file holds everything set in `settings` so far, as far as writeSettings knows: false
// from a write that failed until one succeeds.
bool settingsWritten(const QSettings& settings);

// Why a file in the folder of `filePath` cannot be written, in the system's words ("Permission
// denied", "No such file or directory", "Read-only file system"), or an empty string when the
// folder itself lets it be written (a full disk, for one, shows only when writing).
QString folderWriteProblem(const QString& filePath);

} // namespace tarnic
