#include "gui/StatusBarTexts.h"

#include "store/SettingsWrite.h"

namespace tarnic {

QString clashCountText(std::size_t count) {
    if (count == 0) {
        return QStringLiteral("No clashes");
    }
    return count == 1 ? QStringLiteral("1 clash") : QStringLiteral("%1 clashes").arg(count);
}

void showStoreWarning(QLabel& warning, bool written, const QString& store) {
    if (written) {
        warning.clear();
        warning.setToolTip(QString());
        warning.hide();
        return;
    }
    QString reason = folderWriteProblem(store);
    if (reason.isEmpty()) {
        reason = QStringLiteral("the disk may be full");
    }
    warning.setText(QStringLiteral("\u26A0 Not saved: %1").arg(reason));
    warning.setToolTip(QStringLiteral("\u201C%1\u201D could not be written (%2). What you changed "
                                      "lasts only until Tarnic Pro closes.")
                           .arg(store, reason));
    warning.show();
}

} // namespace tarnic
