#include "gui/DeferredIconEngine.h"

#include <QApplication>
#include <QStyleOption>

namespace tarnic {

DeferredIconEngine::DeferredIconEngine(QStyle* style, QStyle::StandardPixmap which,
                                       Qt::LayoutDirection direction, const QWidget* widget)
    : style_(style), which_(which), direction_(direction),
      // Only kept to be handed back to the style, which takes it as const.
      widget_(const_cast<QWidget*>(widget)) {}

const QIcon& DeferredIconEngine::icon() {
    if (!icon_) {
        QStyle* const style = style_ != nullptr ? style_.data() : QApplication::style();
        QStyleOption option;
        option.direction = direction_;
        icon_ = style->standardIcon(which_, &option, widget_.data());
    }
    return *icon_;
}

void DeferredIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                               QIcon::State state) {
    icon().paint(painter, rect, Qt::AlignCenter, mode, state);
}

QSize DeferredIconEngine::actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    return icon().actualSize(size, mode, state);
}

QPixmap DeferredIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    return icon().pixmap(size, mode, state);
}

QPixmap DeferredIconEngine::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                                         qreal scale) {
    // `size` is in device pixels; QIcon takes the size in device-independent ones.
    if (scale <= 0) {
        scale = 1;
    }
    const QSize logical(qRound(size.width() / scale), qRound(size.height() / scale));
    return icon().pixmap(logical, scale, mode, state);
}

QList<QSize> DeferredIconEngine::availableSizes(QIcon::Mode mode, QIcon::State state) {
    return icon().availableSizes(mode, state);
}

QString DeferredIconEngine::iconName() {
    return icon().name();
}

bool DeferredIconEngine::isNull() {
    return icon().isNull();
}

QString DeferredIconEngine::key() const {
    return QStringLiteral("tarnic-deferred-standard-icon");
}

QIconEngine* DeferredIconEngine::clone() const {
    return new DeferredIconEngine(*this);
}

} // namespace tarnic
