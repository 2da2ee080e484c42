#pragma once

#include "app/Application.h"

#include <functional>

namespace tarnic {

// What a caller may add to a start of the program; the program itself adds nothing.
struct LaunchHooks {
    // Changes the application's options before it is built.
    std::function<void(Application::Options&)> adjustOptions;
    // Runs once the application is built, right before it starts.
    std::function<void(Application&)> beforeStart;
};

// The program's start, exactly as `main` runs it: the QApplication and the process's identity,
// the one-copy-per-display check (a second copy hands over and ends here), the quit on signals,
// the application on the platform of this display, then the event loop. Returns the exit status.
int launch(int& argc, char* argv[], const LaunchHooks& hooks = {});

} // namespace tarnic
