#include "gui/FileExchangeController.h"

#include "core/editor/ExportText.h"
#include "core/fatal/Fatal.h"
#include "core/import/ImportReport.h"
#include "core/record/AbilityRecord.h"
#include "files/RegularFileReader.h"
#include "gui/EditorController.h"
#include "gui/ExportFile.h"
#include "gui/PopUpTitles.h"

#include <QFile>
#include <QFileInfo>

namespace tarnic {

namespace {

// The game's own file is about 60 kB; anything past this is not a hotkey file, and reading stops
// there.
constexpr qint64 kLargestHotkeyFile = 4 * 1024 * 1024;

Alert importAlert(const QString& text, const QString& details, QMessageBox::Icon icon) {
    return {text, details, {QStringLiteral("OK")}, icon};
}

} // namespace

FileExchangeController::FileExchangeController(EditorController& editor, AlertPresenter& alerts,
                                               QObject* parent)
    : QObject(parent), editor_(editor), alerts_(alerts) {}

FileExchangeController::~FileExchangeController() = default;

void FileExchangeController::viewDidLoad() {
    QFile templateFile(QStringLiteral(":/defaultkeys"));
    if (templateFile.open(QIODevice::ReadOnly)) {
        def_keys_bundle_ = templateFile.readAll().toStdString();
    }
}

// ---- Export ----

void FileExchangeController::saveCKeys() {
    result_ = exportText(editor_.mainDic(), def_keys_bundle_);
    fileDialog_.saveTextFile(window_, qs(custKs), this,
                             [this](std::optional<QString> path) { writeResult(path); });
}

void FileExchangeController::writeResult(const std::optional<QString>& path) {
    if (path) {
        if (path->isEmpty()) {
            fatalError(kNilUnwrap, "the save dialog was accepted without a file");
        }
        // A failed write leaves the old file as it was, and says why.
        if (const std::optional<QString> reason = writeExportFile(*path, result_)) {
            alerts_.run(exportFailedAlert(*path, *reason));
        }
    }
    emit exportFinished();
}

// ---- Import ----

void FileExchangeController::importCKeys() {
    fileDialog_.openTextFile(window_, this,
                             [this](std::optional<QString> path) { readCustomKeys(path); });
}

void FileExchangeController::readCustomKeys(const std::optional<QString>& path) {
    if (path && !path->isEmpty()) {
        alerts_.run(importFrom(*path));
    }
    emit importFinished();
}

Alert FileExchangeController::importFrom(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    const QString unchanged = QStringLiteral("Nothing was changed.");
    const FileContents file = RegularFileReader(kLargestHotkeyFile).read(path);
    if (file.status == FileContents::Status::TooLarge) {
        return importAlert(
            QStringLiteral("\u201C%1\u201D is too large for a hotkey file.").arg(name), unchanged,
            QMessageBox::Warning);
    }
    if (!file.isRead()) {
        QString reason = file.reason;
        if (!reason.isEmpty()) {
            reason[0] = reason[0].toUpper();
        }
        return importAlert(QStringLiteral("\u201C%1\u201D could not be read.").arg(name),
                           reason + QStringLiteral(". ") + unchanged, QMessageBox::Warning);
    }
    const QByteArray& bytes = file.bytes;
    const ImportReport report = editor_.importKeys(
        std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    if (!report.holdsCatalogue()) {
        return importAlert(
            QStringLiteral("\u201C%1\u201D holds no hotkeys of the abilities in the list.")
                .arg(name),
            unchanged, QMessageBox::Warning);
    }
    return importAlert(qs(importSummary(report)), qs(importDetails(report)),
                       QMessageBox::Information);
}

} // namespace tarnic
