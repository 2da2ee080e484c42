#pragma once

#include <QComboBox>
#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace tarnic {

// UTF-8 text as a QString.
QString toQString(std::string_view text);

// "Select the item with title T": the first item with exactly that title, or none.
void selectItemWithTitle(QComboBox& popup, std::string_view title);

// The title of the selected item, or nothing while none is selected.
std::optional<std::string> selectedTitle(const QComboBox& popup);

} // namespace tarnic
