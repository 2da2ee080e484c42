#include "gui/WrappingLabel.h"

namespace tarnic {

namespace {

// A few widths are asked for again and again; a label resized by hand asks for every width once.
constexpr qsizetype kKeptHeights = 16;

} // namespace

WrappingLabel::WrappingLabel(QWidget* parent) : QLabel(parent) {
    setWordWrap(true);
}

WrappingLabel::Inputs WrappingLabel::inputs() const {
    return {text(),
            textFormat(),
            font(),
            alignment(),
            wordWrap(),
            indent(),
            margin(),
            contentsMargins(),
            frameWidth(),
            style(),
            layoutDirection(),
            sizePolicy(),
            !pixmap().isNull() || movie() != nullptr};
}

void WrappingLabel::keepCurrent() const {
    // QLabel polishes itself before it measures; a style's polish may change what it measures.
    ensurePolished();
    Inputs now = inputs();
    if (measuredFor_ != now) {
        measuredFor_ = std::move(now);
        sizeHint_.reset();
        minimumSizeHint_.reset();
        heights_.clear();
    }
}

QSize WrappingLabel::sizeHint() const {
    keepCurrent();
    if (!sizeHint_) {
        sizeHint_ = QLabel::sizeHint();
    }
    return *sizeHint_;
}

QSize WrappingLabel::minimumSizeHint() const {
    keepCurrent();
    if (!minimumSizeHint_) {
        minimumSizeHint_ = QLabel::minimumSizeHint();
    }
    return *minimumSizeHint_;
}

int WrappingLabel::heightForWidth(int width) const {
    keepCurrent();
    const auto kept = heights_.constFind(width);
    if (kept != heights_.constEnd()) {
        return kept.value();
    }
    const int height = QLabel::heightForWidth(width);
    if (heights_.size() >= kKeptHeights) {
        heights_.clear();
    }
    heights_.insert(width, height);
    return height;
}

} // namespace tarnic
