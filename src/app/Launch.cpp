#include "app/Launch.h"

#include "gui/ApplicationStyle.h"
#include "instance/SingleInstance.h"
#include "instance/WindowToFront.h"
#include "platform/select/MakePlatform.h"
#include "process/QuitOnSignals.h"

#include <QApplication>

#include <cstdio>

namespace tarnic {

namespace {

void tell(const QString& line) {
    std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
    std::fflush(stderr);
}

} // namespace

int launch(int& argc, char* argv[], const LaunchHooks& hooks) {
    QApplication qapp(argc, argv);
    setApplicationIdentity();

    // One copy per user and display: a second start hands over to the first copy and ends here,
    // before the platform claims keycodes or observes a key and before the store is read, so two
    // copies never tap twice for one key.
    SingleInstance instance(InstanceAddress::current(QGuiApplication::platformName()));
    switch (instance.start()) {
    case SingleInstance::Outcome::First:
        break;
    case SingleInstance::Outcome::Unguarded:
        tell(instance.report());
        break;
    case SingleInstance::Outcome::HandedOver:
        tell(instance.report());
        return 0;
    case SingleInstance::Outcome::Unanswered:
        tell(instance.report());
        return 1;
    }

    // SIGTERM, SIGINT and SIGHUP leave the event loop like closing the window, so that the
    // application below is destroyed in order (its platform gives back the keycodes it claimed).
    QuitOnSignals quitOnSignals;

    // Before the first widget: the window is built in the application's style.
    ApplicationStyle::install();
    Application::Options options;
    if (hooks.adjustOptions) {
        hooks.adjustOptions(options);
    }
    Application app(makePlatform(), options);
    QObject::connect(&instance, &SingleInstance::activationRequested, &app.window(),
                     [&app] { bringWindowToFront(app.window()); });
    if (hooks.beforeStart) {
        hooks.beforeStart(app);
    }
    app.start();
    return QApplication::exec();
}

} // namespace tarnic
