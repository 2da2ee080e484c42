#include "gui/PopUpButton.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QMetaObject>
#include <QWheelEvent>

namespace tarnic {
namespace {

bool opensList(const QKeyEvent& event) {
    // The keypad flag comes with Enter and, on some keyboards, with the arrows.
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    switch (event.key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F4:
        return modifiers == Qt::NoModifier;
    case Qt::Key_Down:
        return modifiers == Qt::AltModifier;
    default:
        return false;
    }
}

} // namespace

PopUpButton::PopUpButton(QWidget* parent) : QComboBox(parent) {
    // Taking the focus on a wheel would pull it away from the ability table while the player
    // only scrolls past.
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::activated, this, [this](int index) {
        if (listActive_) {
            emit chosen(index);
        }
    });
}

void PopUpButton::showPopup() {
    listActive_ = true;
    ++listsOpened_;
    QComboBox::showPopup();
    // The list's window is made on the first opening. It closes through hidePopup() or, when
    // the application closes its pop-ups (another window activated), by itself: watch it.
    QWidget* list = view()->window();
    if (list != window() && list != watchedList_) {
        list->installEventFilter(this);
        watchedList_ = list;
    }
    if (!view()->isVisible()) {
        // Nothing to show (no items): no list came up.
        listClosed();
    }
}

bool PopUpButton::eventFilter(QObject* watched, QEvent* event) {
    if (watched == watchedList_ && event->type() == QEvent::Hide) {
        listClosed();
    }
    return QComboBox::eventFilter(watched, event);
}

void PopUpButton::listClosed() {
    QMetaObject::invokeMethod(
        this,
        [this, list = listsOpened_] {
            if (list == listsOpened_) {
                listActive_ = false;
            }
        },
        Qt::QueuedConnection);
}

void PopUpButton::wheelEvent(QWheelEvent* event) {
    // Left to the widgets underneath: a scroll area scrolls, anything else does nothing.
    event->ignore();
}

void PopUpButton::keyPressEvent(QKeyEvent* event) {
    // The list closes on the shortcut check that comes before its key press (Return picks,
    // Alt+Down and F4 close), so the press itself can arrive here once the list is gone: it
    // belongs to the list and must not open it again.
    if (!listActive_ && opensList(*event)) {
        showPopup();
        event->accept();
        return;
    }
    // Arrows, letters and the rest go on to the parent, as they would past a plain button.
    event->ignore();
}

void PopUpButton::inputMethodEvent(QInputMethodEvent* event) {
    // Text committed by an input method would otherwise search the items and pick one.
    event->ignore();
}

} // namespace tarnic
