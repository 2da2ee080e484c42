#include "gui/PopUpTitles.h"

namespace tarnic {

QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

void selectItemWithTitle(QComboBox& popup, std::string_view title) {
    popup.setCurrentIndex(popup.findText(toQString(title)));
}

std::optional<std::string> selectedTitle(const QComboBox& popup) {
    if (popup.currentIndex() < 0) {
        return std::nullopt;
    }
    return popup.currentText().toStdString();
}

} // namespace tarnic
