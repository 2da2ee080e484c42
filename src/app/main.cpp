#include "BenchmarkExit.h"
#include "gui/MainWindow.h"
#include "gui/ViewController.h"
#include "store/UserDefaults.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Tarnic"));
    QApplication::setApplicationName(QStringLiteral("Tarnic Pro"));

    // The store, the controller that owns all state, and the window whose controls it drives.
    const std::unique_ptr<QSettings> store = tarnic::openUserDefaults();
    tarnic::ViewController controller(*store);
    tarnic::MainWindow window;
    window.connectController(controller);
    controller.viewDidLoad();
    window.show();
    controller.viewDidAppear();
    tarnic::exitWhenShownForBenchmark(window);

    return QApplication::exec();
}
