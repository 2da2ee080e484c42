#include "shell/StoreNotices.h"

#include <QDir>
#include <QFileInfo>

namespace tarnic {

Alert storeSetAsideAlert(const QString& store, const QString& aside) {
    Alert alert;
    alert.text = QStringLiteral("Tarnic Pro could not read its settings file, so the list and the "
                                "inventory keys start afresh.");
    alert.informativeText =
        QStringLiteral("The file was kept unchanged as \u201C%1\u201D, in \u201C%2\u201D. "
                       "\u201C%3\u201D now holds the new settings.")
            .arg(QFileInfo(aside).fileName(),
                 QDir::toNativeSeparators(QFileInfo(aside).absolutePath()),
                 QFileInfo(store).fileName());
    alert.buttons = {QStringLiteral("OK")};
    alert.icon = QMessageBox::Warning;
    return alert;
}

} // namespace tarnic
