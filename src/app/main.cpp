#include "app/Application.h"
#include "platform/select/MakePlatform.h"
#include "process/QuitOnSignals.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char* argv[]) {
    QApplication qapp(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Tarnic"));
    QApplication::setApplicationName(QStringLiteral("Tarnic Pro"));
    // Ties the window to its launcher and icon on the desktop.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tarnic.TarnicPro"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("org.tarnic.TarnicPro")));

    // SIGTERM, SIGINT and SIGHUP leave the event loop like closing the window, so that the
    // application below is destroyed in order (its platform gives back the keycodes it claimed).
    tarnic::QuitOnSignals quitOnSignals;

    tarnic::Application app(tarnic::makePlatform());
    app.start();
    return QApplication::exec();
}
