// Stands in for the application in the end-to-end tests and the benchmark: a Qt xcb program with
// a window of its own that runs the X11 backend and the remapper session, with the bindings and
// options given on the command line. It reports on standard output, one line each:
//   trusted true|false            the accessibility answer
//   ready <window id>             the backend is recording and the window is shown
//   observed down|flags <code>    what the observer reported (not with --quiet)
//   posted down|up <code>         what the remapper asked the poster for (not with --quiet)
//   own key <X keycode>           a key typed into the harness's own window
//   isWarRun true|false           each change of the game flag
//   front <identifier>|none       each change of the frontmost application the watcher announces
// Options: --bind <slot>,<modifier>,<key> (repeatable; the n-th fills binding n),
//          --timer-ms <interval of the game-detection timer, default 2000>, --quiet,
//          --only-game-in-front, --pause-in-chat (the two inventory options, off without).
#include "core/bindings/BindingArray.h"
#include "core/remapper/RemapperSession.h"
#include "platform/x11/X11Platform.h"
#include "process/QuitOnSignals.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QRasterWindow>
#include <QStringList>
#include <QTimer>

#include <cstdio>

namespace {

void say(const QString& line) {
    std::fputs(line.toLocal8Bit().constData(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

// Shows what the remapper posts, then posts it.
class ReportingPoster : public tarnic::KeyPoster {
public:
    ReportingPoster(std::unique_ptr<tarnic::KeyPoster> poster, bool quiet)
        : poster_(std::move(poster)), quiet_(quiet) {}

    void postKeyDown(std::uint16_t keyCode) override {
        poster_->postKeyDown(keyCode);
        if (!quiet_) {
            say(QString("posted down %1").arg(keyCode));
        }
    }
    void postKeyUp(std::uint16_t keyCode) override {
        poster_->postKeyUp(keyCode);
        if (!quiet_) {
            say(QString("posted up %1").arg(keyCode));
        }
    }

private:
    std::unique_ptr<tarnic::KeyPoster> poster_;
    bool quiet_;
};

class HarnessWindow : public QRasterWindow {
protected:
    void paintEvent(QPaintEvent*) override {
        QPainter(this).fillRect(QRect(QPoint(), size()), Qt::darkGray);
    }
    void keyPressEvent(QKeyEvent* event) override {
        say(QString("own key %1").arg(event->nativeScanCode()));
    }
};

} // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    // Ends in order on SIGTERM, SIGINT and SIGHUP, as the application does.
    tarnic::QuitOnSignals quitOnSignals;

    tarnic::InventoryBindings bindings;
    std::size_t bound = 0;
    int timerMs = 2000;
    bool quiet = false;
    const QStringList arguments = application.arguments();
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == "--bind" && i + 1 < arguments.size() &&
            bound < bindings.slotBindings.size()) {
            std::vector<std::int64_t> values;
            for (const QString& part : arguments[++i].split(',')) {
                values.push_back(part.toLongLong());
            }
            bindings.slotBindings[bound] = tarnic::bindingFromArray(values);
            ++bound;
        } else if (arguments[i] == "--timer-ms" && i + 1 < arguments.size()) {
            timerMs = arguments[++i].toInt();
        } else if (arguments[i] == "--quiet") {
            quiet = true;
        } else if (arguments[i] == "--only-game-in-front") {
            bindings.options.onlyWhileGameInFront = true;
        } else if (arguments[i] == "--pause-in-chat") {
            bindings.options.pauseWhileTypingInChat = true;
        }
    }

    std::optional<tarnic::Platform> platform = tarnic::makeX11Platform();
    if (!platform) {
        std::fprintf(stderr, "harness: no X display\n");
        return 1;
    }
    say(QString("trusted %1")
            .arg(platform->accessibilityTrust->isProcessTrusted() ? "true" : "false"));

    platform->keyPoster = std::make_unique<ReportingPoster>(std::move(platform->keyPoster), quiet);
    // Installed before the session's monitors, so that each line comes before what it causes.
    platform->keyObserver->addKeyDownMonitor([&](int code) {
        if (!quiet) {
            say(QString("observed down %1").arg(code));
        }
    });
    platform->keyObserver->addFlagsChangedMonitor([&](int code) {
        if (!quiet) {
            say(QString("observed flags %1").arg(code));
        }
    });
    platform->frontmostWatcher->addChangeMonitor([](const std::optional<std::string>& identifier) {
        say(QString("front %1").arg(QString::fromStdString(identifier.value_or("none"))));
    });
    tarnic::RemapperSession session(*platform);
    session.setBindings(bindings);
    session.installObservers();

    QTimer timer;
    timer.setInterval(timerMs);
    QObject::connect(&timer, &QTimer::timeout, [&] {
        const bool before = session.remapper().isWarRun;
        session.eventWithTimer();
        if (session.remapper().isWarRun != before) {
            say(QString("isWarRun %1").arg(session.remapper().isWarRun ? "true" : "false"));
        }
    });
    timer.start();

    HarnessWindow window;
    window.setTitle("remapper harness");
    window.resize(320, 200);
    window.show();
    QTimer::singleShot(0, [&] { say(QString("ready %1").arg(window.winId())); });
    return application.exec();
}
