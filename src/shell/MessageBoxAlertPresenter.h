#pragma once

#include "shell/AlertPresenter.h"

namespace tarnic {

// Shows the alert as an application-modal QMessageBox over the active window.
class MessageBoxAlertPresenter : public AlertPresenter {
public:
    void run(const Alert& alert) override;
};

} // namespace tarnic
