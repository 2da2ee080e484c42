#pragma once

#include <QMessageBox>
#include <QString>
#include <QStringList>

namespace tarnic {

// What a modal alert shows: the texts, the button titles in order and the icon.
struct Alert {
    QString text;
    QString informativeText;
    QStringList buttons;
    QMessageBox::Icon icon = QMessageBox::Warning;
};

} // namespace tarnic
