#pragma once

#include "shell/Alert.h"

class QWidget;

namespace tarnic {

// Shows an alert modally and returns once the user has dismissed it. The program's own
// presenter builds a QMessageBox; tests answer through a presenter of their own.
class AlertPresenter {
public:
    virtual ~AlertPresenter() = default;

    virtual void run(const Alert& alert) = 0;
    // Shows an alert over `window` and returns at once, for news that need not stop the player.
    // Presenters that answer at once take it as they take run.
    virtual void show(const Alert& alert, QWidget* /*window*/) { run(alert); }
};

} // namespace tarnic
