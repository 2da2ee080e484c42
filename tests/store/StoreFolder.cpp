#include "store/StoreFolder.h"

#include <QDir>
#include <QFile>

#include <stdexcept>

StoreFolder::StoreFolder() {
    if (!sandbox_.isValid()) {
        throw std::runtime_error("no temporary folder");
    }
}

QString StoreFolder::storePath() const {
    return configHome() + QStringLiteral("/Tarnic/Tarnic Pro.plist");
}

void StoreFolder::writeStore(const QByteArray& bytes) const {
    QDir().mkpath(configHome() + QStringLiteral("/Tarnic"));
    QFile file(storePath());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
        file.write(bytes) != bytes.size()) {
        throw std::runtime_error("cannot write the store file");
    }
}

QByteArray StoreFolder::readStore() const {
    QFile file(storePath());
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return file.readAll();
}

QStringList StoreFolder::setAsideFiles() const {
    return QDir(configHome() + QStringLiteral("/Tarnic"))
        .entryList({QStringLiteral("Tarnic Pro.plist.unreadable-*")}, QDir::Files, QDir::Name);
}

QStringList StoreFolder::setAsideEntries() const {
    return QDir(configHome() + QStringLiteral("/Tarnic"))
        .entryList({QStringLiteral("Tarnic Pro.plist.unreadable-*")},
                   QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot,
                   QDir::Name);
}

QString StoreFolder::inStoreFolder(const QString& name) const {
    return configHome() + QStringLiteral("/Tarnic/") + name;
}

QByteArray StoreFolder::readInStoreFolder(const QString& name) const {
    QFile file(configHome() + QStringLiteral("/Tarnic/") + name);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return file.readAll();
}

QByteArray plistXml(const QByteArray& body) {
    return QByteArrayLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                             "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                             "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                             "<plist version=\"1.0\">\n") +
           body + QByteArrayLiteral("\n</plist>\n");
}

QByteArray binaryPlistWithKey(const QString& key) {
    Q_ASSERT(key.size() < 15);
    QByteArray bytes("bplist00");
    const auto keyAt = static_cast<char>(bytes.size() + 3);
    bytes += QByteArray("\xD1\x01\x02", 3); // object 0: dictionary, key object 1, value object 2
    bytes += static_cast<char>(0x60 | key.size()); // object 1: UTF-16 string, big-endian
    for (const QChar unit : key) {
        bytes += static_cast<char>(unit.unicode() >> 8);
        bytes += static_cast<char>(unit.unicode() & 0xFF);
    }
    const auto valueAt = static_cast<char>(bytes.size());
    bytes += QByteArray("\x51x", 2); // object 2: ASCII string "x"
    const auto tableAt = static_cast<char>(bytes.size());
    bytes += QByteArray("\x08", 1) + keyAt + valueAt; // offset table
    // Trailer: 6 unused bytes, offset size 1, reference size 1, 3 objects, top object 0, and
    // where the offset table starts, each count in 8 bytes big-endian.
    bytes += QByteArray(6, '\0') + QByteArray("\x01\x01", 2) + QByteArray(7, '\0') + '\x03' +
             QByteArray(8, '\0') + QByteArray(7, '\0') + tableAt;
    return bytes;
}
