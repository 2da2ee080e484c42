#include "gui/TapStatusPresenter.h"

#include "core/editor/TapText.h"
#include "gui/PopUpTitles.h"

#include <QGraphicsOpacityEffect>

namespace tarnic {

TapStatusPresenter::TapStatusPresenter(QObject* parent) : QObject(parent) {
    shown_.setSingleShot(true);
    shown_.setInterval(kShownFor);
    connect(&shown_, &QTimer::timeout, this, &TapStatusPresenter::startFading);
}

void TapStatusPresenter::attach(QLabel* gameLabel, QLabel* tapLabel) {
    game_ = gameLabel;
    tap_ = tapLabel;
    if (game_) {
        game_->setText(toQString(gameStatusUnknownText()));
    }
    if (tap_) {
        // The line keeps its room while empty, so that nothing below it moves at each tap.
        tap_->setMinimumHeight(tap_->fontMetrics().height());
        tap_->clear();
        auto* effect = new QGraphicsOpacityEffect(tap_);
        effect->setOpacity(1.0);
        tap_->setGraphicsEffect(effect);
        fading_ = new QPropertyAnimation(effect, "opacity", this);
        fading_->setStartValue(1.0);
        fading_->setEndValue(0.0);
        fading_->setDuration(static_cast<int>(fadingFor_.count()));
        connect(fading_, &QPropertyAnimation::finished, this, &TapStatusPresenter::faded);
    }
}

void TapStatusPresenter::setTimes(std::chrono::milliseconds shownFor,
                                  std::chrono::milliseconds fadingFor) {
    shown_.setInterval(shownFor);
    fadingFor_ = fadingFor;
    if (fading_) {
        fading_->setDuration(static_cast<int>(fadingFor_.count()));
    }
}

void TapStatusPresenter::showGameRunning(bool running) {
    if (game_) {
        game_->setText(toQString(gameStatusText(running)));
    }
}

void TapStatusPresenter::showTap(const SlotTap& tap) {
    shownTap_ = tap;
    if (!tap_) {
        return;
    }
    if (fading_) {
        fading_->stop();
    }
    if (auto* effect = qobject_cast<QGraphicsOpacityEffect*>(tap_->graphicsEffect())) {
        effect->setOpacity(1.0);
    }
    tap_->setText(toQString(tapText(tap, names_)));
    shown_.start();
}

void TapStatusPresenter::setKeyNames(const KeyNames& names) {
    names_ = names;
    if (shownTap_ && tap_) {
        tap_->setText(toQString(tapText(*shownTap_, names_)));
    }
}

void TapStatusPresenter::startFading() {
    if (fading_) {
        fading_->start();
    } else {
        faded();
    }
}

void TapStatusPresenter::faded() {
    shownTap_.reset();
    if (tap_) {
        tap_->clear();
    }
}

} // namespace tarnic
