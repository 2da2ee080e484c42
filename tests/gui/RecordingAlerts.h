#pragma once

#include "shell/AlertPresenter.h"

#include <vector>

namespace tarnic::test {

// Takes the window's alerts instead of a person: each is kept, in order, and dismissed at once.
class RecordingAlerts : public AlertPresenter {
public:
    void run(const Alert& alert) override { shown.push_back(alert); }

    std::vector<Alert> shown;
};

} // namespace tarnic::test
