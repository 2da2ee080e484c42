#include "shell/MessageBoxAlertPresenter.h"

#include <QApplication>
#include <QPushButton>

namespace tarnic {

namespace {

void fill(QMessageBox& box, const Alert& alert) {
    box.setIcon(alert.icon);
    box.setText(alert.text);
    box.setInformativeText(alert.informativeText);
    for (const QString& title : alert.buttons) {
        box.addButton(title, QMessageBox::AcceptRole);
    }
}

} // namespace

void MessageBoxAlertPresenter::run(const Alert& alert) {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowModality(Qt::ApplicationModal);
    fill(box, alert);
    box.exec();
}

void MessageBoxAlertPresenter::show(const Alert& alert, QWidget* window) {
    auto* box = new QMessageBox(window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    fill(*box, alert);
    box->open();
}

} // namespace tarnic
