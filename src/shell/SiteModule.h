#pragma once

#include "site/SiteGetAbi.h"

#include <QString>
#include <QStringList>

namespace tarnic {

// Finds and loads the site module, which holds the version check's HTTP GET (and Qt Network with
// it), when the check runs. Once loaded it stays for the life of the process.
class SiteModule {
public:
    // Where the module is: beside the program (the build tree), then in the program's folder
    // under the library folder, found from the program's own folder so that any install prefix
    // works (/usr/bin/../lib/tarnic-pro/modules/tarnic-pro-site.so for the Debian package).
    static QStringList defaultPaths();

    // The module's get function from the first of `paths` that loads and has it. Nothing when
    // none does; `failure` then says, on one line, which paths were tried and what each lacked.
    static site::GetFunction load(const QStringList& paths, QString& failure);
};

} // namespace tarnic
