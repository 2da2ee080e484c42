#include "app/Application.h"
#include "platform/select/MakePlatform.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication qapp(argc, argv);
    tarnic::setApplicationIdentity();

    tarnic::Application app(tarnic::makePlatform());
    app.start();
    return QApplication::exec();
}
