#include "gui/ExportFile.h"

#include "store/SettingsWrite.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace tarnic {

namespace {

// QSaveFile names no reason when it cannot make its temporary file (a folder that is read-only or
// gone); the folder itself tells why then.
QString reasonOf(const QSaveFile& file, const QString& path) {
    const QString said = file.errorString();
    if (!said.isEmpty() && said != QLatin1String("Unknown error")) {
        return said;
    }
    const QString problem = folderWriteProblem(path);
    return problem.isEmpty() ? QStringLiteral("The file could not be written") : problem;
}

} // namespace

std::optional<QString> writeExportFile(const QString& path, const std::string& text) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return reasonOf(file, path);
    }
    const auto size = static_cast<qint64>(text.size());
    if (file.write(text.data(), size) != size || !file.commit()) {
        const QString reason = reasonOf(file, path);
        file.cancelWriting();
        return reason;
    }
    return std::nullopt;
}

Alert exportFailedAlert(const QString& path, const QString& reason) {
    const QFileInfo info(path);
    Alert alert;
    alert.text = QStringLiteral("\u201C%1\u201D could not be saved.").arg(info.fileName());
    alert.informativeText =
        QStringLiteral("%1 (in \u201C%2\u201D). Nothing was written: a file already there is "
                       "left as it was.")
            .arg(reason, QDir::toNativeSeparators(info.absolutePath()));
    alert.buttons = {QStringLiteral("OK")};
    alert.icon = QMessageBox::Warning;
    return alert;
}

} // namespace tarnic
