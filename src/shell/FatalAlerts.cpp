#include "shell/FatalAlerts.h"

#include "core/fatal/Fatal.h"

#include <QApplication>
#include <QEvent>
#include <QMetaObject>
#include <QThread>
#include <QWidget>
#include <QWindow>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>

namespace tarnic {

namespace {

std::atomic<AlertPresenter*> presenter{nullptr};

// An alert handed over from another thread, and how far the GUI thread is with it.
struct HandOver {
    std::mutex mutex;
    std::condition_variable changed;
    std::optional<std::string> line;
    bool started = false;
    bool done = false;
};

HandOver& handOver() {
    static HandOver instance;
    return instance;
}

// How long a thread waits for the GUI thread to take up its alert: a GUI thread that is busy for
// good (or waiting for that very thread in some other way) must not keep the program from ending.
constexpr std::chrono::seconds kTakeUpAtTheLatest{5};

// Keeps the rest of the program still while the alert is up: timers, queued calls and watched
// sockets of anything but widgets and windows are dropped. The alert itself needs only widget
// and window events.
class StandStill : public QObject {
public:
    StandStill() { QCoreApplication::instance()->installEventFilter(this); }
    ~StandStill() override { QCoreApplication::instance()->removeEventFilter(this); }
    StandStill(const StandStill&) = delete;
    StandStill& operator=(const StandStill&) = delete;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
        case QEvent::Timer:
        case QEvent::MetaCall:
        case QEvent::SockAct:
        case QEvent::SockClose:
        case QEvent::Quit:
            return !watched->isWidgetType() && !watched->isWindowType();
        default:
            return false;
        }
    }
};

Alert fatalAlert(const std::string& line) {
    Alert alert;
    alert.text = QStringLiteral("Tarnic Pro has to close.");
    alert.informativeText = QString::fromStdString(line);
    alert.buttons = {QStringLiteral("OK")};
    alert.icon = QMessageBox::Critical;
    return alert;
}

void show(const std::string& line) {
    if (AlertPresenter* alerts = presenter.load()) {
        const StandStill still;
        alerts->run(fatalAlert(line));
    }
}

bool onGuiThread() {
    QCoreApplication* app = QCoreApplication::instance();
    return app != nullptr && QThread::currentThread() == app->thread();
}

void notice(const std::string& line) {
    if (presenter.load() == nullptr ||
        qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
        return;
    }
    if (onGuiThread()) {
        show(line);
        return;
    }
    HandOver& over = handOver();
    std::unique_lock lock(over.mutex);
    over.line = line;
    // The GUI thread takes it up from its event loop, or from FatalAlerts::take while it waits
    // for this thread.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [] { FatalAlerts::showHandedOver(); }, Qt::QueuedConnection);
    if (over.changed.wait_for(lock, kTakeUpAtTheLatest, [&] { return over.started; })) {
        over.changed.wait(lock, [&] { return over.done; });
    }
}

} // namespace

FatalAlerts::FatalAlerts(AlertPresenter* alerts) {
    if (alerts == nullptr && displayShowsWindows()) {
        alerts = &messageBox_;
    }
    presenter.store(alerts);
    setFatalNotice(alerts != nullptr ? &notice : nullptr);
}

FatalAlerts::~FatalAlerts() {
    setFatalNotice(nullptr);
    presenter.store(nullptr);
}

bool FatalAlerts::displayShowsWindows() {
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
        return false;
    }
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

void FatalAlerts::showHandedOver() {
    HandOver& over = handOver();
    std::string line;
    {
        const std::lock_guard lock(over.mutex);
        if (!over.line || over.started) {
            return;
        }
        over.started = true;
        line = *over.line;
    }
    over.changed.notify_all();
    show(line);
    {
        const std::lock_guard lock(over.mutex);
        over.done = true;
    }
    over.changed.notify_all();
}

} // namespace tarnic
