#include "instance/InstanceAddress.h"

#include <QCryptographicHash>
#include <QDir>
#include <QStandardPaths>

#include <cstdio>
#include <unistd.h>

namespace tarnic {

namespace {

// A socket's path must fit in 108 bytes, runtime folder included: a display name longer than
// this (WAYLAND_DISPLAY may be a whole path) is replaced by its hash.
constexpr qsizetype kLongestDisplayPart = 40;

QString fileNameSafe(const QString& text) {
    QString safe;
    safe.reserve(text.size());
    for (const QChar c : text) {
        const bool plain = (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
                           (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) ||
                           (c >= QLatin1Char('0') && c <= QLatin1Char('9')) ||
                           c == QLatin1Char('-') || c == QLatin1Char('.');
        safe.append(plain ? c : QLatin1Char('_'));
    }
    return safe;
}

// "host:number.screen": the screen does not make another display, and an empty host and "unix"
// both mean the local one.
QString x11DisplayPart(const QByteArray& display) {
    QString value = QString::fromLocal8Bit(display).trimmed();
    const qsizetype colon = value.lastIndexOf(QLatin1Char(':'));
    if (colon < 0) {
        return QStringLiteral("x11-") + value;
    }
    QString host = value.left(colon);
    QString number = value.mid(colon + 1);
    const qsizetype dot = number.indexOf(QLatin1Char('.'));
    if (dot >= 0) {
        number.truncate(dot);
    }
    if (host == QLatin1String("unix")) {
        host.clear();
    }
    return QStringLiteral("x11-") + host + QLatin1Char('-') + number;
}

QString displayPart(const QString& platformName, const QByteArray& x11Display,
                    const QByteArray& waylandDisplay) {
    QString part;
    if (platformName.startsWith(QLatin1String("wayland"))) {
        const QByteArray socket =
            waylandDisplay.isEmpty() ? QByteArray("wayland-0") : waylandDisplay;
        part = QStringLiteral("wl-") + QString::fromLocal8Bit(socket);
    } else if (platformName == QLatin1String("xcb") || platformName.isEmpty()) {
        part = x11DisplayPart(x11Display);
    } else {
        // A platform without a display (offscreen, minimal): one copy per user on it.
        part = platformName;
    }
    part = fileNameSafe(part);
    if (part.size() > kLongestDisplayPart) {
        part = QString::fromLatin1(
            QCryptographicHash::hash(part.toUtf8(), QCryptographicHash::Sha256).toHex().left(32));
    }
    return part;
}

QtMessageHandler handlerBefore = nullptr;

// When XDG_RUNTIME_DIR is unset, Qt makes a runtime folder of its own and says so on standard
// error every time the folder is looked up; the application's start has already looked it up
// once. The same notice again would be no news, and a second start has only one line of its own
// to say. Every other message goes on as before.
void dropRuntimeFolderNotice(QtMsgType type, const QMessageLogContext& context,
                             const QString& message) {
    if (message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set"))) {
        return;
    }
    if (handlerBefore != nullptr) {
        handlerBefore(type, context, message);
    } else {
        std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
    }
}

} // namespace

InstanceAddress InstanceAddress::make(const QString& folder, unsigned uid,
                                      const QString& platformName, const QByteArray& x11Display,
                                      const QByteArray& waylandDisplay) {
    InstanceAddress address;
    address.folder_ = folder;
    address.name_ = QStringLiteral("tarnic-pro-") + QString::number(uid) + QLatin1Char('-') +
                    displayPart(platformName, x11Display, waylandDisplay);
    return address;
}

InstanceAddress InstanceAddress::current(const QString& platformName) {
    // Qt checks that the folder belongs to this user and that nobody else may enter it, and makes
    // one of its own when XDG_RUNTIME_DIR is unset.
    handlerBefore = qInstallMessageHandler(dropRuntimeFolderNotice);
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    qInstallMessageHandler(handlerBefore);
    handlerBefore = nullptr;
    return make(folder, static_cast<unsigned>(getuid()), platformName, qgetenv("DISPLAY"),
                qgetenv("WAYLAND_DISPLAY"));
}

QString InstanceAddress::lockPath() const {
    return QDir(folder_).filePath(name_ + QStringLiteral(".lock"));
}

QString InstanceAddress::serverPath() const {
    return QDir(folder_).filePath(name_ + QStringLiteral(".socket"));
}

} // namespace tarnic
