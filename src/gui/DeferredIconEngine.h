#pragma once

#include <QIconEngine>
#include <QPointer>
#include <QStyle>
#include <QWidget>

#include <optional>

namespace tarnic {

// A standard icon of a style that the style makes only when the icon is first painted, sized or
// asked for its pixels. A style builds some of its icons from image files, and reading the first
// of them loads the list of every image-format plugin installed; an icon that may never be shown,
// such as a menu bar's overflow button, should not cost that before the window's first frame.
class DeferredIconEngine : public QIconEngine {
public:
    // The icon `style` gives for `which`, in the layout direction `direction` (that of the style
    // option it was asked with), for `widget`. A style that is gone by then is replaced by the
    // application's.
    DeferredIconEngine(QStyle* style, QStyle::StandardPixmap which, Qt::LayoutDirection direction,
                       const QWidget* widget);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
    QString iconName() override;
    bool isNull() override;
    QString key() const override;
    QIconEngine* clone() const override;

    // Whether the style has made the icon yet.
    bool isMade() const { return icon_.has_value(); }

private:
    const QIcon& icon();

    QPointer<QStyle> style_;
    QStyle::StandardPixmap which_;
    Qt::LayoutDirection direction_;
    QPointer<QWidget> widget_;
    std::optional<QIcon> icon_;
};

} // namespace tarnic
