// The application as main starts it, for the start-up benchmark: the same QApplication setup and
// the same Application on the platform of this display, with one addition, a quit once the
// ability table's first paint has been handled. The version gate is left out (no site address):
// it is a network check that runs after the window is up, and its answer is no part of start-up.
//
// Usage: bench_startup_app [--after-paint-work]
//   By default the run ends at the painted table, before what the program keeps for after its
//   first frame (the icon-theme lookup). With --after-paint-work it ends once that is done.

#include "QuitAfterFirstPaint.h"

#include "app/Application.h"
#include "platform/select/MakePlatform.h"

#include <QApplication>
#include <QTableView>

#include <cstring>
#include <memory>

int main(int argc, char* argv[]) {
    QApplication qapp(argc, argv);
    tarnic::setApplicationIdentity();

    tarnic::Application::Options options;
    options.siteUrl.clear();
    tarnic::Application app(tarnic::makePlatform(), options);
    std::unique_ptr<QObject> quit;
    if (argc > 1 && std::strcmp(argv[1], "--after-paint-work") == 0) {
        quit = std::make_unique<tarnic::bench::QuitAfterIcon>(app.window());
    } else {
        quit = std::make_unique<tarnic::bench::QuitAfterFirstPaint>(
            *app.editor().tableView().viewport());
    }
    app.start();
    return QApplication::exec();
}
