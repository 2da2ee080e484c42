#include "support/XdgSandbox.h"

#include <QDir>
#include <QFile>

XdgSandbox::XdgSandbox()
    : previous_(qgetenv("XDG_CONFIG_HOME")),
      hadPrevious_(qEnvironmentVariableIsSet("XDG_CONFIG_HOME")) {
    if (dir_.isValid()) {
        QDir(dir_.path()).mkpath(QStringLiteral("config"));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(configHome()));
    }
}

XdgSandbox::~XdgSandbox() {
    if (hadPrevious_) {
        qputenv("XDG_CONFIG_HOME", previous_);
    } else {
        qunsetenv("XDG_CONFIG_HOME");
    }
}

QString XdgSandbox::configHome() const {
    return dir_.filePath(QStringLiteral("config"));
}
