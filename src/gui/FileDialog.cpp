#include "gui/FileDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>
#include <QTimer>

namespace tarnic {

namespace {

// Start where a player keeps his files, not in whatever folder the program was started from.
QString startFolder() {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (folder.isEmpty() || !QDir(folder).exists()) {
        folder = QDir::homePath();
    }
    return folder;
}

void reportWhenFinished(QFileDialog* dialog, QObject* context, FileDialog::Done done) {
    QObject::connect(dialog, &QFileDialog::finished, context,
                     [dialog, done = std::move(done)](int response) {
                         if (response != QDialog::Accepted) {
                             done(std::nullopt);
                             return;
                         }
                         const QStringList files = dialog->selectedFiles();
                         done(files.isEmpty() ? QString() : files.first());
                     });
}

} // namespace

void FileDialog::setNextAnswer(std::optional<QString> path) {
    answerQueued_ = true;
    nextAnswer_ = std::move(path);
}

bool FileDialog::answerQueued(QObject* context, Done& done) {
    if (!answerQueued_) {
        return false;
    }
    answerQueued_ = false;
    QTimer::singleShot(0, context,
                       [done = std::move(done), answer = nextAnswer_] { done(answer); });
    return true;
}

void FileDialog::saveTextFile(QWidget* parent, const QString& proposedName, QObject* context,
                              Done done) {
    if (answerQueued(context, done)) {
        return;
    }
    auto* dialog = new QFileDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilter(QFileDialog::tr("Text files (*.txt)"));
    dialog->setDefaultSuffix(QStringLiteral("txt"));
    dialog->setDirectory(startFolder());
    dialog->selectFile(proposedName);
    reportWhenFinished(dialog, context, std::move(done));
    dialog->open();
}

void FileDialog::openTextFile(QWidget* parent, QObject* context, Done done) {
    if (answerQueued(context, done)) {
        return;
    }
    auto* dialog = new QFileDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFile);
    // The game's file is a .txt, but a copy kept under another name must be reachable too.
    dialog->setNameFilters(
        {QFileDialog::tr("Text files (*.txt)"), QFileDialog::tr("All files (*)")});
    dialog->setDirectory(startFolder());
    reportWhenFinished(dialog, context, std::move(done));
    dialog->open();
}

} // namespace tarnic
