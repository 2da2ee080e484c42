#include "store/PlistFormat.h"
#include "store/UserDefaults.h"

#include <QDateTime>
#include <QFile>
#include <QStandardPaths>

#include <cstdio>

namespace tarnic {

namespace {

const QString kOrganization = QStringLiteral("Tarnic");
const QString kApplication = QStringLiteral("Tarnic Pro");

void tell(const QString& text) {
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
    std::fflush(stderr);
}

// A store file that is not a property list with a dictionary at the top would read as an empty
// store, and QSettings would replace it at the next write. Moving it aside first keeps the
// player's file byte for byte; an earlier copy is never overwritten.
void setAsideIfUnreadable(const QString& path) {
    QFile file(path);
    if (!file.exists() || !file.open(QIODevice::ReadOnly)) {
        // Missing: a first start. Unreadable for the system: QSettings cannot read or replace
        // it either, so it is safe where it is.
        return;
    }
    const QByteArray bytes = file.readAll();
    file.close();
    if (bytes.isEmpty() || settingsFromPlist(bytes)) {
        return;
    }
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const QString stem = path + QStringLiteral(".unreadable-") + stamp;
    for (int attempt = 1; attempt <= 1000; ++attempt) {
        const QString aside =
            attempt == 1 ? stem : stem + QLatin1Char('-') + QString::number(attempt);
        if (QFile::exists(aside)) {
            continue;
        }
        if (QFile::rename(path, aside)) {
            tell(QStringLiteral("Tarnic Pro could not read its settings file \"%1\": it is not a "
                                "property list holding a dictionary. The file was kept "
                                "unchanged as \"%2\", and the settings start empty.")
                     .arg(path, aside));
            return;
        }
        break;
    }
    tell(QStringLiteral("Tarnic Pro could not read its settings file \"%1\": it is not a property "
                        "list holding a dictionary, and it could not be set aside. The settings "
                        "start empty.")
             .arg(path));
}

} // namespace

QString userDefaultsPath() {
    // What QSettings builds for a user-scope file of a registered format: the INI user path
    // (the XDG config folder), the organization as a folder, the application name as the file.
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1Char('/') + kOrganization + QLatin1Char('/') + kApplication +
           QStringLiteral(".plist");
}

std::unique_ptr<QSettings> openUserDefaults() {
    const QString path = userDefaultsPath();
    setAsideIfUnreadable(path);
    auto settings = std::make_unique<QSettings>(path, plistSettingsFormat());
    // Every write goes to a temporary file that replaces the store only when complete.
    settings->setAtomicSyncRequired(true);
    return settings;
}

} // namespace tarnic
