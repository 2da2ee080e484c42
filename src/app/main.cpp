#include "gui/MainWindow.h"
#include "gui/ViewController.h"
#include "store/UserDefaults.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Tarnic"));
    QApplication::setApplicationName(QStringLiteral("Tarnic Pro"));

    const std::unique_ptr<QSettings> store = tarnic::openUserDefaults();
    tarnic::ViewController controller(*store);
    tarnic::MainWindow window;
    window.connectController(controller);
    controller.viewDidLoad();
    window.show();
    controller.viewDidAppear();

    return QApplication::exec();
}
