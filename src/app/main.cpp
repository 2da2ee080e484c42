#include "app/Application.h"
#include "gui/ApplicationStyle.h"
#include "instance/SingleInstance.h"
#include "instance/WindowToFront.h"
#include "platform/select/MakePlatform.h"
#include "process/QuitOnSignals.h"

#include <QApplication>

#include <cstdio>

namespace {

void tell(const QString& line) {
    std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
    std::fflush(stderr);
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication qapp(argc, argv);
    tarnic::setApplicationIdentity();

    // One copy per user and display: a second start hands over to the first copy and ends here,
    // before the platform claims keycodes or observes a key and before the store is read, so two
    // copies never tap twice for one key.
    tarnic::SingleInstance instance(
        tarnic::InstanceAddress::current(QGuiApplication::platformName()));
    switch (instance.start()) {
    case tarnic::SingleInstance::Outcome::First:
        break;
    case tarnic::SingleInstance::Outcome::Unguarded:
        tell(instance.report());
        break;
    case tarnic::SingleInstance::Outcome::HandedOver:
        tell(instance.report());
        return 0;
    case tarnic::SingleInstance::Outcome::Unanswered:
        tell(instance.report());
        return 1;
    }

    // SIGTERM, SIGINT and SIGHUP leave the event loop like closing the window, so that the
    // application below is destroyed in order (its platform gives back the keycodes it claimed).
    tarnic::QuitOnSignals quitOnSignals;

    // Before the first widget: the window is built in the application's style.
    tarnic::ApplicationStyle::install();
    tarnic::Application app(tarnic::makePlatform());
    QObject::connect(&instance, &tarnic::SingleInstance::activationRequested, &app.window(),
                     [&app] { tarnic::bringWindowToFront(app.window()); });
    app.start();
    return QApplication::exec();
}
