#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "support/XdgSandbox.h"

// The store's folder in a test's own XDG sandbox, with ways to write and read the store file
// around the program's back.
class StoreFolder {
public:
    StoreFolder();

    QString configHome() const { return sandbox_.configHome(); }
    // Where the store file is expected: <config home>/Tarnic/Tarnic Pro.plist.
    QString storePath() const;
    // Writes the store file with exactly these bytes, creating the folder.
    void writeStore(const QByteArray& bytes) const;
    QByteArray readStore() const;
    // Names of the files in the store's folder that were set aside as unreadable.
    QStringList setAsideFiles() const;
    // Everything in the store's folder that was set aside, whatever it is (a named pipe, a
    // folder, a link too).
    QStringList setAsideEntries() const;
    QString inStoreFolder(const QString& name) const;
    QByteArray readInStoreFolder(const QString& name) const;

private:
    XdgSandbox sandbox_;
};

// The bytes of an XML property list with the given body inside <plist>.
QByteArray plistXml(const QByteArray& body);

// The bytes of a binary property list holding one dictionary {key: "x"}, written by hand so
// that the key can hold a NUL (libplist's own writer takes keys as C strings). The key (fewer
// than 15 UTF-16 units) is stored as UTF-16: libplist cuts an ASCII one at its first NUL, but
// keeps a UTF-16 one whole.
QByteArray binaryPlistWithKey(const QString& key);
