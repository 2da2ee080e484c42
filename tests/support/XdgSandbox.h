#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

// A private XDG config folder for one test: while the object lives, XDG_CONFIG_HOME points at
// "config" inside a fresh temporary folder, so the store the program opens there is the test's
// own; the previous value comes back afterwards.
class XdgSandbox {
public:
    XdgSandbox();
    ~XdgSandbox();
    XdgSandbox(const XdgSandbox&) = delete;
    XdgSandbox& operator=(const XdgSandbox&) = delete;

    bool isValid() const { return dir_.isValid(); }
    // The temporary folder itself, for a test's other files.
    QString path() const { return dir_.path(); }
    QString filePath(const QString& name) const { return dir_.filePath(name); }
    QString configHome() const;

private:
    QTemporaryDir dir_;
    QByteArray previous_;
    bool hadPrevious_;
};
