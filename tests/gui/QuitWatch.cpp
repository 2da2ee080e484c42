#include "QuitWatch.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

namespace tarnic::test {

namespace {

class QuitFilter : public QObject {
public:
    bool quitAsked = false;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == QCoreApplication::instance() && event->type() == QEvent::Quit) {
            quitAsked = true;
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

bool quitsAfter(const std::function<void()>& action) {
    QuitFilter filter;
    QCoreApplication::instance()->installEventFilter(&filter);
    QTimer::singleShot(0, QCoreApplication::instance(), [&action] {
        action();
        // Queued after whatever the action queued, so that runs first.
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
    });
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, [] { QCoreApplication::exit(1); });
    guard.start(5000);
    QApplication::exec();
    QCoreApplication::instance()->removeEventFilter(&filter);
    return filter.quitAsked;
}

} // namespace tarnic::test
