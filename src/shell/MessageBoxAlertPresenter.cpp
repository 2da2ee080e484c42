#include "shell/MessageBoxAlertPresenter.h"

#include <QApplication>
#include <QPushButton>

namespace tarnic {

void MessageBoxAlertPresenter::run(const Alert& alert) {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowModality(Qt::ApplicationModal);
    box.setIcon(alert.icon);
    box.setText(alert.text);
    box.setInformativeText(alert.informativeText);
    for (const QString& title : alert.buttons) {
        box.addButton(title, QMessageBox::AcceptRole);
    }
    box.exec();
}

} // namespace tarnic
