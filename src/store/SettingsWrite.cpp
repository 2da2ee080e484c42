#include "store/SettingsWrite.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace tarnic {

namespace {

// Set on the settings object while it holds something its file lacks. QSettings::status() cannot
// tell: it stays AccessError after a failed write, even once a later write succeeds.
const char* const kUnwritten = "tarnicUnwrittenChanges";

struct FileIdentity {
    dev_t device = 0;
    ino_t inode = 0;
    bool exists = false;
    bool operator==(const FileIdentity&) const = default;
};

FileIdentity identityOf(const QString& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) {
        return {};
    }
    return {status.st_dev, status.st_ino, true};
}

} // namespace

bool writeSettings(QSettings& settings) {
    const FileIdentity before = identityOf(settings.fileName());
    settings.sync();
    // Until a write fails, the status tells. After that, an atomic write that works replaces the
    // file by a new one holding everything: a file of another identity is the proof.
    const FileIdentity after = identityOf(settings.fileName());
    const bool written = settings.status() == QSettings::NoError ||
                         (settings.isAtomicSyncRequired() && after.exists && !(after == before));
    settings.setProperty(kUnwritten, !written);
    return written;
}

bool settingsWritten(const QSettings& settings) {
    return !settings.property(kUnwritten).toBool();
}

QString folderWriteProblem(const QString& filePath) {
    const QByteArray folder = QFile::encodeName(QFileInfo(filePath).absolutePath());
    struct stat status {};
    int problem = 0;
    if (::stat(folder.constData(), &status) != 0) {
        problem = errno;
    } else if (!S_ISDIR(status.st_mode)) {
        problem = ENOTDIR;
    } else if (::access(folder.constData(), W_OK | X_OK) != 0) {
        problem = errno;
    }
    return problem == 0 ? QString() : QString::fromLocal8Bit(std::strerror(problem));
}

} // namespace tarnic
