#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// A private XDG config folder for one test: XDG_CONFIG_HOME points into a temporary folder while
// the object lives, and is restored afterwards.
class StoreFolder {
public:
    StoreFolder();
    ~StoreFolder();
    StoreFolder(const StoreFolder&) = delete;
    StoreFolder& operator=(const StoreFolder&) = delete;

    QString configHome() const;
    // Where the store file is expected: <config home>/Tarnic/Tarnic Pro.plist.
    QString storePath() const;
    // Writes the store file with exactly these bytes, creating the folder.
    void writeStore(const QByteArray& bytes) const;
    QByteArray readStore() const;
    // Names of the files in the store's folder that were set aside as unreadable.
    QStringList setAsideFiles() const;
    QByteArray readInStoreFolder(const QString& name) const;

private:
    QTemporaryDir dir_;
    QByteArray previous_;
    bool hadPrevious_;
};

// The bytes of an XML property list with the given body inside <plist>.
QByteArray plistXml(const QByteArray& body);
