#include "app/Application.h"
#include "platform/select/MakePlatform.h"
#include "process/QuitOnSignals.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication qapp(argc, argv);
    tarnic::setApplicationIdentity();

    // SIGTERM, SIGINT and SIGHUP leave the event loop like closing the window, so that the
    // application below is destroyed in order (its platform gives back the keycodes it claimed).
    tarnic::QuitOnSignals quitOnSignals;

    tarnic::Application app(tarnic::makePlatform());
    app.start();
    return QApplication::exec();
}
