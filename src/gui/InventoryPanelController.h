#pragma once

#include "core/bindings/InventoryBindings.h"
#include "core/platform/AccessibilityTrust.h"
#include "core/remapper/TapListener.h"
#include "core/vocabulary/KeyNames.h"
#include "gui/TapStatusPresenter.h"
#include "store/ProgramOptions.h"
#include "store/UserDefaults.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QSettings>

#include <array>
#include <cstdint>
#include <optional>

namespace tarnic {

// The controls of the inventory keys; the window owns them.
struct InventoryPanelOutlets {
    // The slot buttons invent1 .. invent6, titled with their bindings.
    std::array<QPointer<QPushButton>, 6> inventButtons;
    QPointer<QComboBox> inventPopup;
    QPointer<QCheckBox> isShiftBox;
    QPointer<QPushButton> delBTN;
    QPointer<QCheckBox> onlyInGameBox;
    QPointer<QCheckBox> pauseInChatBox;
    // Whether the inventory keys can work, under the slots.
    QPointer<QLabel> inventStatusLbl;
    // Whether the game was found, and what the last tap did (it fades), under the slots.
    QPointer<QLabel> gameStatusLbl;
    QPointer<QLabel> lastTapLbl;
};

// The inventory keys' panel: the six slot buttons, the key pop-up with its Shift box, Delete,
// the two options and the status line. It edits the bindings it is given and keeps them in the
// store (the slots) and the options file (the options); whoever taps keys hears of every change
// through bindingsChanged.
class InventoryPanelController : public QObject {
    Q_OBJECT
public:
    // `settings` is the user defaults store, `options` the program's options file (see
    // ProgramOptions) and `bindings` the inventory keys the panel edits. All must outlive the
    // controller.
    InventoryPanelController(QSettings& settings, QSettings& options, InventoryBindings& bindings,
                             QObject* parent = nullptr);
    ~InventoryPanelController() override;

    // Points the controller at the window's controls. Call once, before viewDidLoad.
    void setOutlets(const InventoryPanelOutlets& outlets) { outlets_ = outlets; }

    // Restores the six bindings from the store: the first thing the view loads, before the list.
    // A binding of the wrong type ends the program.
    void loadBindings();
    // Runs once, after loadBindings and the outlets: fills the key pop-up, titles the slot
    // buttons, restores the options, and hands the bindings on.
    void viewDidLoad();
    // Says under the slots whether the inventory keys can work, from the platform's trust.
    void showInventoryStatus(const AccessibilityTrust& trust);
    // Names the keys as the player's layout prints them: the key pop-up, the slot buttons and the
    // last tap. Stored bindings do not change.
    void setKeyNames(const KeyNames& names);
    // What the last tap did, and whether the game was found at the last look.
    void showTap(const SlotTap& tap) { tapStatus_.showTap(tap); }
    void showGameRunning(bool running) { tapStatus_.showGameRunning(running); }
    TapStatusPresenter& tapStatus() { return tapStatus_; }

    // The slot (1 to 6) the inventory controls edit; 0 until a slot is chosen.
    std::int64_t inventoryEditNow() const { return inventoryEditNow_; }

    // Actions.
    void invent1() { invent(1); }
    void invent2() { invent(2); }
    void invent3() { invent(3); }
    void invent4() { invent(4); }
    void invent5() { invent(5); }
    void invent6() { invent(6); }
    void display(const std::optional<SlotBinding>& binding);
    void setInventory();
    void setInventoryKeyBox();
    void eraseKey();
    // The two options' check boxes: each keeps and stores what its box shows.
    void setOnlyWhileGameInFront();
    void setPauseWhileTypingInChat();

signals:
    // The bindings or their options changed (or were restored): from the next key press on,
    // these are the ones that tap.
    void bindingsChanged(const InventoryBindings& bindings);
    // A binding was written to the store, or could not be (`written` false).
    void storeWritten(bool written);

private:
    void invent(std::int64_t slot);
    // Titles slot button `slot` (1 to 6) with its binding.
    void showSlotTitle(int slot);

    UserDefaults defaults_;
    ProgramOptions options_;
    InventoryBindings& bindings_;
    std::int64_t inventoryEditNow_ = 0;
    InventoryPanelOutlets outlets_;
    KeyNames keyNames_;
    TapStatusPresenter tapStatus_;
    bool viewLoaded_ = false;
};

} // namespace tarnic
