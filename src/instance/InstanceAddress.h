#pragma once

#include <QByteArray>
#include <QString>

namespace tarnic {

// Where the copy of the program for one user and one display keeps its lock file and listens for
// later starts. Two X displays (or a Wayland display and an X display) each get their own copy;
// ":0", ":0.0" and "unix:0" are one display.
class InstanceAddress {
public:
    // `folder` is the user's runtime folder; `platformName` is Qt's ("xcb", "wayland", ...);
    // `x11Display` and `waylandDisplay` are DISPLAY and WAYLAND_DISPLAY.
    static InstanceAddress make(const QString& folder, unsigned uid, const QString& platformName,
                                const QByteArray& x11Display, const QByteArray& waylandDisplay);
    // For this process: $XDG_RUNTIME_DIR, or the per-user runtime folder Qt makes when it is
    // unset; this user; the display this process shows its windows on.
    static InstanceAddress current(const QString& platformName);

    // Empty when there is no runtime folder to use.
    const QString& folder() const { return folder_; }
    // "tarnic-pro-<uid>-<display>", safe as a file name.
    const QString& name() const { return name_; }
    QString lockPath() const;
    QString serverPath() const;

private:
    QString folder_;
    QString name_;
};

} // namespace tarnic
