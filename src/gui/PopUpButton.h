#pragma once

#include <QComboBox>
#include <QPointer>

namespace tarnic {

// A pop-up button: its value changes only when the user picks an item from its open list. A
// plain QComboBox also steps through its items on a mouse wheel turned over it and on arrow
// keys or letters typed while it has the focus, and reports each step as a user choice; here a
// wheel passes on to whatever is under the button, and the keyboard can only open the list
// (Space, Return, Enter, Alt+Down or F4). Inside the open list the keys move as usual, and
// Return or a click picks.
//
// Selecting an item from code (setCurrentIndex) never counts as a choice.
class PopUpButton : public QComboBox {
    Q_OBJECT
public:
    explicit PopUpButton(QWidget* parent = nullptr);

    void showPopup() override;

signals:
    // The user picked the item at `index` from the open list (also when it was already the
    // selected one).
    void chosen(int index);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Ends listActive_ once the event that closed the list has been handled.
    void listClosed();

    // Whether a list this button opened is open, or was closed by the event being handled now.
    // QComboBox closes the list before it reports the pick, and the key that picked may still
    // be on its way; so this is cleared only once control is back in the event loop, and only
    // if no new list was opened meanwhile.
    bool listActive_ = false;
    unsigned listsOpened_ = 0;
    QPointer<QWidget> watchedList_;
};

} // namespace tarnic
