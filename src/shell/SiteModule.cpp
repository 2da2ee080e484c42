#include "shell/SiteModule.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>

namespace tarnic {

QStringList SiteModule::defaultPaths() {
    const QDir programFolder(QCoreApplication::applicationDirPath());
    const QString fileName = QString::fromLatin1(site::kModuleFileName);
    return {
        programFolder.filePath(fileName),
        QDir::cleanPath(programFolder.filePath(QStringLiteral(TARNIC_SITE_MODULE_FROM_PROGRAM) +
                                               QLatin1Char('/') + fileName)),
    };
}

site::GetFunction SiteModule::load(const QStringList& paths, QString& failure) {
    QStringList tried;
    for (const QString& path : paths) {
        if (!QFileInfo(path).isFile()) {
            tried.append(QStringLiteral("\"%1\" (no such file)").arg(path));
            continue;
        }
        QLibrary module(path);
        // Qt Network keeps threads and caches of its own once used: it must never be unloaded
        // under them.
        module.setLoadHints(QLibrary::PreventUnloadHint);
        if (!module.load()) {
            tried.append(QStringLiteral("\"%1\" (%2)").arg(path, module.errorString()));
            continue;
        }
        if (auto* get =
                reinterpret_cast<site::GetFunction>(module.resolve(site::kGetFunctionName))) {
            failure.clear();
            return get;
        }
        tried.append(QStringLiteral("\"%1\" (%2)").arg(path, module.errorString()));
    }
    if (tried.isEmpty()) {
        tried.append(QStringLiteral("no path"));
    }
    failure = tried.join(QStringLiteral("; ")).simplified();
    return nullptr;
}

} // namespace tarnic
