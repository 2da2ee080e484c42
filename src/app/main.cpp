#include "BenchmarkExit.h"
#include "contact/ContactPanel.h"
#include "gui/MainWindow.h"
#include "gui/ViewController.h"
#include "platform/select/MakePlatform.h"
#include "process/QuitOnSignals.h"
#include "shell/AppDelegate.h"
#include "store/UserDefaults.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QIcon>
#include <QTimer>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Tarnic"));
    QApplication::setApplicationName(QStringLiteral("Tarnic Pro"));
    // Ties the window to its launcher and icon on the desktop.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tarnic.TarnicPro"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("org.tarnic.TarnicPro")));

    // SIGTERM, SIGINT and SIGHUP leave the event loop like closing the window, so that the
    // objects below are destroyed in order (the platform gives back the keycodes it claimed).
    tarnic::QuitOnSignals quitOnSignals;

    // How keys of other applications are watched and keypad keys typed: X11 normally, the
    // recording fakes when TARNIC_PLATFORM=fake. Lives until exec() has returned.
    tarnic::Platform platform = tarnic::makePlatform();
    tarnic::AppDelegate delegate(*platform.accessibilityTrust);
    QObject::connect(&app, &QCoreApplication::aboutToQuit, &delegate,
                     &tarnic::AppDelegate::applicationWillTerminate);

    // The controller is created and its view loads before launching finishes.
    const std::unique_ptr<QSettings> store = tarnic::openUserDefaults();
    tarnic::ViewController controller(*store, platform);
    tarnic::MainWindow window;
    window.connectController(controller);
    QObject::connect(window.ui().actionContact, &QAction::triggered, &window,
                     [&window] { tarnic::showContactPanel(&window); });
    controller.viewDidLoad();
    window.show();
    controller.viewDidAppear();
    tarnic::exitWhenShownForBenchmark(window);

    // Launching finishes once the event loop runs: the trust line, then the version gate.
    QTimer::singleShot(0, &delegate, &tarnic::AppDelegate::applicationDidFinishLaunching);
    return QApplication::exec();
}
