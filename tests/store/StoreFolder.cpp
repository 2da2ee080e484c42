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
