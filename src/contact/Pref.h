#pragma once

#include <QDialog>
#include <QPointer>
#include <QUrl>

class QPushButton;

namespace tarnic {

// The contact panel: one button opens a new e-mail to the support address in the player's mail
// program, the other opens the maker's home page in his browser. It keeps no state.
class Pref : public QDialog {
    Q_OBJECT

public:
    explicit Pref(QWidget* parent = nullptr);

    // mailto:<support address>?subject=Tarnic&body= : one recipient, an empty body.
    static QUrl mailUrl();
    // The site's root page.
    static QUrl webpageUrl();

    QPointer<QPushButton> mailBTN;
    QPointer<QPushButton> webBTN;

public slots:
    // The panel assumes the desktop can compose mail: if it cannot open a mail link at all, the
    // program stops with a fatal error.
    void mail();
    // Whether the browser opened is not checked.
    void webpage();
};

} // namespace tarnic
