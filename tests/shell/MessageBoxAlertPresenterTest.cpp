#include "shell/MessageBoxAlertPresenter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

struct SeenBox {
    bool found = false;
    bool modal = false;
    QString text;
    QString informativeText;
    QStringList buttons;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
};

// Looks for the modal message box from a timer inside its own event loop, records what it
// shows and clicks its first button. Bounded: after 100 looks it closes whatever is open.
void answerFirstButtonWhenShown(SeenBox& seen) {
    auto* timer = new QTimer;
    auto looks = std::make_shared<int>(0);
    timer->setInterval(20);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, looks, &seen] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr && ++*looks < 100) {
            return;
        }
        timer->stop();
        timer->deleteLater();
        if (box == nullptr) {
            QApplication::closeAllWindows();
            return;
        }
        seen.found = true;
        seen.modal = box->isModal();
        seen.text = box->text();
        seen.informativeText = box->informativeText();
        seen.icon = box->icon();
        for (QAbstractButton* button : box->buttons()) {
            seen.buttons.append(button->text());
        }
        if (!box->buttons().isEmpty()) {
            box->buttons().front()->click();
        }
    });
    timer->start();
}

TEST(MessageBoxAlertPresenter, ShowsTheAlertModallyUntilTheButtonIsPressed) {
    Alert alert;
    alert.text = "Main text";
    alert.informativeText = "Details .";
    alert.buttons = {"Ok"};
    alert.icon = QMessageBox::Warning;

    SeenBox seen;
    answerFirstButtonWhenShown(seen);
    MessageBoxAlertPresenter().run(alert);

    ASSERT_TRUE(seen.found);
    EXPECT_TRUE(seen.modal);
    EXPECT_EQ(seen.text, "Main text");
    EXPECT_EQ(seen.informativeText, "Details .");
    EXPECT_EQ(seen.buttons, QStringList{"Ok"});
    EXPECT_EQ(seen.icon, QMessageBox::Warning);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(MessageBoxAlertPresenter, EscapeDismissesTheOneButtonAlert) {
    Alert alert;
    alert.text = "Main text";
    alert.buttons = {"Ok"};

    bool sawBox = false;
    QTimer::singleShot(0, [&sawBox] {
        QWidget* box = QApplication::activeModalWidget();
        sawBox = qobject_cast<QMessageBox*>(box) != nullptr;
        if (!sawBox) {
            QApplication::closeAllWindows();
            return;
        }
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(box, &escape);
    });
    MessageBoxAlertPresenter().run(alert);
    EXPECT_TRUE(sawBox);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

} // namespace
} // namespace tarnic
