#pragma once

#include "shell/Alert.h"

namespace tarnic {

// Shows an alert modally and returns once the user has dismissed it. The program's own
// presenter builds a QMessageBox; tests answer through a presenter of their own.
class AlertPresenter {
public:
    virtual ~AlertPresenter() = default;

    virtual void run(const Alert& alert) = 0;
};

} // namespace tarnic
