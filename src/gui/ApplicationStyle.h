#pragma once

#include <QProxyStyle>

namespace tarnic {

// The application's style: the style Qt picked for it (the platform's, or the one "-style" or
// QT_STYLE_OVERRIDE names), unchanged but for icons it would build from image files for controls
// that may never show. Those it hands out as icons that the picked style makes when they are
// first painted (DeferredIconEngine): every menu bar asks for its overflow button's icon when it
// is built, and the button only shows once the menus no longer fit, which at the window's size
// does not happen. Reading that icon's files at start-up would load the list of every image
// format plugin installed before the first frame.
class ApplicationStyle : public QProxyStyle {
    Q_OBJECT
public:
    // Over `base`, which it takes over.
    explicit ApplicationStyle(QStyle* base);

    // Puts the application's style, as QApplication picked it, under an ApplicationStyle that
    // becomes the application's style, and hands the picked style the images it draws from that
    // the program keeps ready (prepareStyleImages). Needs the QApplication; does nothing the
    // second time.
    static void install();

    QIcon standardIcon(StandardPixmap standardIcon, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
};

} // namespace tarnic
