// The application as main starts it, for the start-up benchmark: the same QApplication setup and
// the same Application on the platform of this display, with one addition, a quit once the
// ability table's first paint has been handled. The version gate is left out (no site address):
// it is a network check that runs after the window is up, and its answer is no part of start-up.
//
// Usage: bench_startup_app [--after-paint-work] [--slowed]
//   By default the run ends at the painted table, before what the program keeps for after its
//   first frame (launching, the icon-theme lookup). With --after-paint-work it ends once that is
//   done.
//   --slowed is for a run under valgrind, which slows the program some fifty times but not the
//   clock: the program's timers (the latest moment to finish launching for a window that gets no
//   paint, the game detection's tick) are stretched to match, so that the run does the same work
//   in the same order as a run at full speed.

#include "QuitAfterFirstPaint.h"

#include "app/Application.h"
#include "gui/ApplicationStyle.h"
#include "platform/select/MakePlatform.h"

#include <QApplication>
#include <QTableView>

#include <chrono>
#include <cstring>
#include <memory>

int main(int argc, char* argv[]) {
    QApplication qapp(argc, argv);
    tarnic::setApplicationIdentity();

    bool afterPaintWork = false;
    bool slowed = false;
    for (int i = 1; i < argc; ++i) {
        afterPaintWork = afterPaintWork || std::strcmp(argv[i], "--after-paint-work") == 0;
        slowed = slowed || std::strcmp(argv[i], "--slowed") == 0;
    }

    tarnic::Application::Options options;
    options.siteUrl.clear();
    if (slowed) {
        constexpr int kSlowdown = 100;
        options.launchAtTheLatest *= kSlowdown;
        options.gameDetectionInterval *= kSlowdown;
    }
    tarnic::ApplicationStyle::install();
    tarnic::Application app(tarnic::makePlatform(), options);
    std::unique_ptr<QObject> quit;
    if (afterPaintWork) {
        quit = std::make_unique<tarnic::bench::QuitAfterIcon>(app.window());
    } else {
        quit = std::make_unique<tarnic::bench::QuitAfterFirstPaint>(
            *app.editor().tableView().viewport());
    }
    app.start();
    return QApplication::exec();
}
