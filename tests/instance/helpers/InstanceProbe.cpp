// A program that keeps one copy per folder and display the way the application does, for the
// tests of the lock and the hand-over. It prints on standard output what its start found:
//   first | handed-over | unanswered | unguarded
// and, while it is the first copy, "activation" for every later start that asked it to come to
// the front. What the start reports goes to standard error.
//   instance_probe FOLDER DISPLAY [--serve-ms N] [--linger-ms N]
// --serve-ms: how long the first copy stays (default 10000); --linger-ms: how long it holds the
// lock after its event loop has ended, as the application does while it gives back its keycodes.
#include "instance/SingleInstance.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <cstdio>
#include <unistd.h>

namespace {

void say(const char* line) {
    std::printf("%s\n", line);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        std::fprintf(stderr,
                     "usage: instance_probe FOLDER DISPLAY [--serve-ms N] [--linger-ms N]\n");
        return 2;
    }
    int serveMs = 10000;
    int lingerMs = 0;
    for (int i = 3; i + 1 < arguments.size(); i += 2) {
        if (arguments[i] == QLatin1String("--serve-ms")) {
            serveMs = arguments[i + 1].toInt();
        } else if (arguments[i] == QLatin1String("--linger-ms")) {
            lingerMs = arguments[i + 1].toInt();
        }
    }
    tarnic::SingleInstance instance(tarnic::InstanceAddress::make(
        arguments[1], static_cast<unsigned>(getuid()), QStringLiteral("xcb"),
        arguments[2].toLocal8Bit(), QByteArray()));
    QObject::connect(&instance, &tarnic::SingleInstance::activationRequested,
                     [] { say("activation"); });
    const tarnic::SingleInstance::Outcome outcome = instance.start();
    if (!instance.report().isEmpty()) {
        std::fprintf(stderr, "%s\n", instance.report().toLocal8Bit().constData());
        std::fflush(stderr);
    }
    switch (outcome) {
    case tarnic::SingleInstance::Outcome::HandedOver:
        say("handed-over");
        return 0;
    case tarnic::SingleInstance::Outcome::Unanswered:
        say("unanswered");
        return 1;
    case tarnic::SingleInstance::Outcome::Unguarded:
        say("unguarded");
        return 3;
    case tarnic::SingleInstance::Outcome::First:
        say("first");
        break;
    }
    QTimer::singleShot(serveMs, &application, &QCoreApplication::quit);
    const int status = QCoreApplication::exec();
    QThread::msleep(static_cast<unsigned long>(lingerMs));
    return status;
}
