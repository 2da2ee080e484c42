#pragma once

#include "core/remapper/TapListener.h"
#include "core/vocabulary/KeyNames.h"

#include <QLabel>
#include <QObject>
#include <QPointer>
#include <QPropertyAnimation>
#include <QTimer>

#include <chrono>
#include <optional>

namespace tarnic {

// The two lines under the inventory slots that show the inventory keys at work: whether the game
// was found at the last look, and what the last tap did ("Shift+Z → Slot 1 (keypad 7)"), which
// stays a few seconds and then fades out. Runs on the main thread; the taps reach it through a
// TapRelay.
class TapStatusPresenter : public QObject {
    Q_OBJECT
public:
    static constexpr std::chrono::milliseconds kShownFor{3000};
    static constexpr std::chrono::milliseconds kFadingFor{800};

    explicit TapStatusPresenter(QObject* parent = nullptr);

    // The labels to write to; until then nothing is shown. Says the game has not been looked for
    // yet.
    void attach(QLabel* gameLabel, QLabel* tapLabel);
    // How long a tap is shown before it fades, and how long the fading takes (tests shorten them).
    void setTimes(std::chrono::milliseconds shownFor, std::chrono::milliseconds fadingFor);

    void showGameRunning(bool running);
    void showTap(const SlotTap& tap);
    // A tap on show is named again in the new names.
    void setKeyNames(const KeyNames& names);

    // The tap on show, until it has faded out.
    const std::optional<SlotTap>& shownTap() const { return shownTap_; }

private:
    void startFading();
    void faded();

    QPointer<QLabel> game_;
    QPointer<QLabel> tap_;
    QTimer shown_;
    QPointer<QPropertyAnimation> fading_;
    std::chrono::milliseconds fadingFor_ = kFadingFor;
    std::optional<SlotTap> shownTap_;
    KeyNames names_;
};

} // namespace tarnic
