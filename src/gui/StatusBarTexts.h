#pragma once

#include <QLabel>
#include <QString>

#include <cstddef>

namespace tarnic {

// The status bar's count of clashes: "No clashes", "1 clash", "3 clashes".
QString clashCountText(std::size_t count);

// The status bar's warning: shown, with the reason and (in its tooltip) the file, while the store
// file at `store` lacks a change it was handed; hidden once `written`.
void showStoreWarning(QLabel& warning, bool written, const QString& store);

} // namespace tarnic
