#pragma once

#include "core/bindings/InventoryOptions.h"

#include <QSettings>
#include <QString>

#include <memory>

namespace tarnic {

// The program's own options, in a small file of their own beside the user defaults store:
// "$XDG_CONFIG_HOME/Tarnic/Tarnic Pro Options.conf" ("~/.config/Tarnic/Tarnic Pro Options.conf"
// when XDG_CONFIG_HOME is unset), an INI file. The user defaults store keeps exactly the working
// list and the six slot bindings, the same keys in the same form at every version, so that a
// store written by one version reads the same in any other; options added later live here
// instead. Read afresh from the environment at every call.
QString programOptionsPath();

// The options file on programOptionsPath(). A missing file, a missing key or a value that is not
// a truth value reads as off: these are preferences, and a damaged file costs only them. A path
// that names a named pipe, a socket, a device or a folder is never opened: the options are off,
// kept in memory only, and standard error says why.
std::unique_ptr<QSettings> openProgramOptions();

// Typed access to the options. Every change is written to the file at once.
class ProgramOptions {
public:
    explicit ProgramOptions(QSettings& settings);

    InventoryOptions inventoryOptions() const;
    void setOnlyWhileGameInFront(bool on);
    void setPauseWhileTypingInChat(bool on);
    // "Grid follows my keyboard": the grid layout hands out the letters the player's layout
    // prints where Q, W, E and R sit. Off unless stored on.
    bool gridFollowsKeyboard() const;
    void setGridFollowsKeyboard(bool on);

private:
    void set(const QString& key, bool on);

    QSettings& settings_;
};

} // namespace tarnic
