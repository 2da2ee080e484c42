#include "WheelInput.h"

#include <QApplication>
#include <QEvent>
#include <QObject>
#include <QSpontaneKeyEvent>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

namespace tarnic::test {
namespace {

class WheelCounter : public QObject {
public:
    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Wheel) {
            ++count;
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

int turnWheelOver(QWidget& widget, int notches) {
    QWidget* top = widget.window();
    QWindow* handle = top->windowHandle();
    if (handle == nullptr) {
        return 0;
    }
    WheelCounter counter;
    widget.installEventFilter(&counter);
    const QPoint local = widget.rect().center();
    const QPointF inWindow = widget.mapTo(top, local);
    const QPointF global = widget.mapToGlobal(local);
    // One notch is 15 degrees, reported in eighths of a degree.
    const int step = notches > 0 ? 120 : -120;
    for (int i = 0; i < (notches > 0 ? notches : -notches); ++i) {
        QWheelEvent notch(inWindow, global, QPoint(), QPoint(0, step), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        // Marked as coming from the window system, so that Qt treats it as it treats a real
        // wheel: an ignored event goes on to the parent widgets, and a widget that takes the
        // focus on the wheel gets it.
        // (sendEvent would clear the mark; QTest delivers its own input this way too.)
        QSpontaneKeyEvent::setSpontaneous(&notch);
        QApplication::instance()->notify(handle, &notch);
    }
    widget.removeEventFilter(&counter);
    return counter.count;
}

} // namespace tarnic::test
