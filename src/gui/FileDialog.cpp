#include "gui/FileDialog.h"

#include <QFileDialog>
#include <QTimer>

namespace tarnic {

void FileDialog::setNextAnswer(std::optional<QString> path) {
    answerQueued_ = true;
    nextAnswer_ = std::move(path);
}

void FileDialog::saveTextFile(QWidget* parent, const QString& proposedName, QObject* context,
                              Done done) {
    if (answerQueued_) {
        answerQueued_ = false;
        QTimer::singleShot(0, context,
                           [done = std::move(done), answer = nextAnswer_] { done(answer); });
        return;
    }
    auto* dialog = new QFileDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilter(QFileDialog::tr("Text files (*.txt)"));
    dialog->setDefaultSuffix(QStringLiteral("txt"));
    dialog->selectFile(proposedName);
    QObject::connect(dialog, &QFileDialog::finished, context,
                     [dialog, done = std::move(done)](int response) {
                         if (response != QDialog::Accepted) {
                             done(std::nullopt);
                             return;
                         }
                         const QStringList files = dialog->selectedFiles();
                         done(files.isEmpty() ? QString() : files.first());
                     });
    dialog->open();
}

} // namespace tarnic
