#pragma once

#include "shell/AlertPresenter.h"

namespace tarnic {

// Shows the alert as an application-modal QMessageBox over the active window; show() opens a
// window-modal one that closes itself.
class MessageBoxAlertPresenter : public AlertPresenter {
public:
    void run(const Alert& alert) override;
    void show(const Alert& alert, QWidget* window) override;
};

} // namespace tarnic
