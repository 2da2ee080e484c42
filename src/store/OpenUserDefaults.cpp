#include "store/UserDefaults.h"

#include "files/RegularFileReader.h"

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

const QString kNotADictionary = QStringLiteral("it is not a property list holding a dictionary");

// A store file that is not a property list with a dictionary at the top would read as an empty
// store, and QSettings would replace it at the next write. Moving it aside first keeps the
// player's file byte for byte; an earlier copy is never overwritten. `reason` says what is wrong
// with it. Returns the name it was kept under, or an empty string when it could not be moved.
QString setAside(const QString& path, const QString& reason) {
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const QString stem = path + QStringLiteral(".unreadable-") + stamp;
    for (int attempt = 1; attempt <= 1000; ++attempt) {
        const QString aside =
            attempt == 1 ? stem : stem + QLatin1Char('-') + QString::number(attempt);
        if (QFile::exists(aside)) {
            continue;
        }
        if (QFile::rename(path, aside)) {
            tell(QStringLiteral("Tarnic Pro could not read its settings file \"%1\": %2. The file "
                                "was kept unchanged as \"%3\", and the settings start empty.")
                     .arg(path, reason, aside));
            return aside;
        }
        break;
    }
    tell(QStringLiteral("Tarnic Pro could not read its settings file \"%1\": %2, and it could not "
                        "be set aside. The settings start empty.")
             .arg(path, reason));
    return {};
}

const char* const kSetAsideAs = "tarnicSetAsideAs";

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
    // QSettings opens the file with a plain open(), which waits for ever on a named pipe, and
    // reads a device as if it were a file. So what the path names is looked at first, without
    // opening it for more than a look, and anything but a regular file is moved aside unread:
    // renaming moves only the name (of a link, not what it points to), so it is safe for a pipe,
    // a socket, a device node and a folder alike. What cannot be moved is never opened: the
    // settings then live in memory only, and nothing is kept.
    const FileContents found = RegularFileReader().check(path);
    QString setAsideAs;
    if (found.status == FileContents::Status::NotRegular) {
        setAsideAs = setAside(path, found.reason);
        if (setAsideAs.isEmpty()) {
            tell(QStringLiteral("Nothing Tarnic Pro changes is kept until \"%1\" is removed.")
                     .arg(path));
            return std::make_unique<QSettings>(QString(), plistSettingsFormat());
        }
    }
    // QSettings reads the file once, here; a file it cannot parse (an empty or unreadable one is
    // no such file: QSettings reads neither) leaves it with a format error, and nothing written.
    auto settings = std::make_unique<QSettings>(path, plistSettingsFormat());
    if (settings->status() == QSettings::FormatError) {
        settings.reset();
        setAsideAs = setAside(path, kNotADictionary);
        settings = std::make_unique<QSettings>(path, plistSettingsFormat());
    }
    if (!setAsideAs.isEmpty()) {
        settings->setProperty(kSetAsideAs, setAsideAs);
    }
    // Every write goes to a temporary file that replaces the store only when complete.
    settings->setAtomicSyncRequired(true);
    return settings;
}

QString storeSetAsideAs(const QSettings& settings) {
    return settings.property(kSetAsideAs).toString();
}

} // namespace tarnic
