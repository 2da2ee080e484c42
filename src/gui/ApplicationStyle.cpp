#include "gui/ApplicationStyle.h"

#include "gui/DeferredIconEngine.h"
#include "gui/StyleImages.h"

#include <QApplication>
#include <QGuiApplication>
#include <QStyleOption>

namespace tarnic {

ApplicationStyle::ApplicationStyle(QStyle* base) : QProxyStyle(base) {}

void ApplicationStyle::install() {
    QStyle* const picked = QApplication::style();
    if (picked == nullptr || qobject_cast<ApplicationStyle*>(picked) != nullptr) {
        return;
    }
    // The picked style now belongs to this one, so QApplication keeps it when it lets go of it.
    QApplication::setStyle(new ApplicationStyle(picked));
    prepareStyleImages(*picked);
}

QIcon ApplicationStyle::standardIcon(StandardPixmap standardIcon, const QStyleOption* option,
                                     const QWidget* widget) const {
    switch (standardIcon) {
    case SP_ToolBarHorizontalExtensionButton:
    case SP_ToolBarVerticalExtensionButton:
        return QIcon(new DeferredIconEngine(
            baseStyle(), standardIcon,
            option != nullptr ? option->direction : QGuiApplication::layoutDirection(), widget));
    default:
        return QProxyStyle::standardIcon(standardIcon, option, widget);
    }
}

} // namespace tarnic
