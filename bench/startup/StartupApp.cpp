// The application as main starts it, for the start-up benchmark: the same QApplication setup and
// the same Application on the platform of this display, with one addition, a quit once the
// ability table's first paint has been handled. The version gate is left out (no site address):
// it is a network check that runs after the window is up, and its answer is no part of start-up.

#include "QuitAfterFirstPaint.h"

#include "app/Application.h"
#include "platform/select/MakePlatform.h"

#include <QApplication>
#include <QTableView>

int main(int argc, char* argv[]) {
    QApplication qapp(argc, argv);
    tarnic::setApplicationIdentity();

    tarnic::Application::Options options;
    options.siteUrl.clear();
    tarnic::Application app(tarnic::makePlatform(), options);
    tarnic::bench::QuitAfterFirstPaint quit(*app.controller().tableView->viewport());
    app.start();
    return QApplication::exec();
}
