#pragma once

#include "core/platform/AccessibilityTrust.h"
#include "core/record/AbilityRecord.h"
#include "core/remapper/InventoryRemapper.h"
#include "core/remapper/TapListener.h"
#include "core/vocabulary/KeyCodes.h"
#include "core/vocabulary/KeyNames.h"
#include "gui/AbilityTableModel.h"
#include "gui/FileDialog.h"
#include "gui/TapStatusPresenter.h"
#include "shell/AlertPresenter.h"
#include "store/ProgramOptions.h"
#include "store/UserDefaults.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QTableView>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarnic {

// The controller of the main window. It owns all the state of the hotkey editor and the six slot
// bindings of the inventory keys with their two options, the working list of abilities and the
// export buffers. The
// window owns the controls; the controller only points at them (the outlets below, set by the
// window) and its actions are connected by the window. Watching keys is not its business: the
// remapper session reads the bindings it keeps.
class ViewController : public QObject {
    Q_OBJECT
public:
    // `settings` is the user defaults store and `options` the program's options file (see
    // ProgramOptions); both must outlive the controller.
    ViewController(QSettings& settings, QSettings& options, QObject* parent = nullptr);
    ~ViewController() override;

    // The whole text of the ":/defaultkeys" template, read when the view loads.
    std::string def_keys_bundle;
    // The text the last export built.
    std::string result;
    // The slot (1 to 6) the inventory controls edit; 0 until a slot is chosen.
    std::int64_t inventoryEditNow = 0;
    // inventoryModel1 .. inventoryModel6: the binding of each slot, empty while unbound. The
    // remapper reads this array on every key press, so a new binding is live at once.
    std::array<InventoryModel, 6> inventoryModels;
    // The inventory keys' options, off until the view loads what was stored. The remapper reads
    // them on every key press, so a change is live at once.
    InventoryOptions inventoryOptions;

    // Outlets.
    QPointer<QPushButton> delBTN;
    QPointer<QCheckBox> isShiftBox;
    QPointer<QLabel> defHotkey;
    QPointer<QLabel> spellLbl;
    QPointer<QLabel> parentLbl;
    QPointer<QTableView> tableView;
    QPointer<QLabel> spellImage;
    QPointer<QLabel> parentImage;
    QPointer<QComboBox> inventPopup;
    // The slot buttons invent1 .. invent6, titled with their bindings.
    std::array<QPointer<QPushButton>, 6> inventButtons;
    // Whether the inventory keys can work, under the slots.
    QPointer<QLabel> inventStatusLbl;
    QPointer<QCheckBox> onlyInGameBox;
    QPointer<QCheckBox> pauseInChatBox;
    // Whether the game was found, and what the last tap did (it fades), under the slots.
    QPointer<QLabel> gameStatusLbl;
    QPointer<QLabel> lastTapLbl;
    // "Grid follows my keyboard", under the Grid layout button.
    QPointer<QCheckBox> gridFollowsBox;

    // The working list, one table row per record, in list order.
    std::vector<AbilityRecord> mainDic;
    // Titles of the hotkey pop-up, and with them those of the inventory pop-up.
    const std::array<std::string_view, 26>& keyboardKeys;
    const std::array<std::string_view, 22>& keyboardKeysNum;

    QPointer<QComboBox> keysPopup;
    // The status bar's count of clashes.
    QPointer<QLabel> clashLbl;
    // The status bar's warning, shown while the store file lacks a change it was handed.
    QPointer<QLabel> storeWarningLbl;

    // Runs once, after the window has connected the outlets: restores the stored bindings and
    // list, fills the pop-ups, reads the template and selects the first row.
    void viewDidLoad();
    // Runs when the window is shown: from then on closing the window ends the application.
    void viewDidAppear();
    // Says under the slots whether the inventory keys can work, from the platform's trust.
    void showInventoryStatus(const AccessibilityTrust& trust);
    // Names the keys as the player's layout prints them: the inventory pop-up, the slot buttons,
    // the last tap, and the letters of the next grid layout when it follows the keyboard. Stored
    // bindings do not change.
    void setKeyNames(const KeyNames& names);
    const KeyNames& keyNames() const { return keyNames_; }
    // What the last tap did, and whether the game was found at the last look.
    void showTap(const SlotTap& tap) { tapStatus_.showTap(tap); }
    void showGameRunning(bool running) { tapStatus_.showGameRunning(running); }
    TapStatusPresenter& tapStatus() { return tapStatus_; }

    // The file dialogs of the export and the import; tests answer them through here.
    FileDialog& fileDialog() { return fileDialog_; }
    // Where the import's message goes; without one, a message box. It must outlive the
    // controller.
    void setAlerts(AlertPresenter& alerts) { alerts_ = &alerts; }
    // The table's data.
    AbilityTableModel& tableModel() { return tableModel_; }

    // Actions.
    void eraseKey();
    void setInventory();
    // The two options' check boxes: each keeps and stores what its box shows.
    void setOnlyWhileGameInFront();
    void setPauseWhileTypingInChat();
    // The "Grid follows my keyboard" box: kept and stored; it changes only the next grid layout.
    void setGridFollowsKeyboard();
    void setInventoryKeyBox();
    void setInventoryKey();
    void invent1() { invent(1); }
    void display(const InventoryModel& model);
    void invent2() { invent(2); }
    void invent3() { invent(3); }
    void invent4() { invent(4); }
    void invent5() { invent(5); }
    void invent6() { invent(6); }
    void setKey();
    // Ends the application; nothing is saved at this point.
    void windowWillClose();
    void tableViewSelectionDidChange();
    void resetToDef();
    void allQWER();
    void saveCKeys();
    // Reads a CustomKeys.txt the player chooses into the working list, like a key set by hand:
    // in memory only. Says what it did in a message.
    void importCKeys();

signals:
    // The save dialog of an export was answered and, if accepted, the file written or not.
    void exportFinished();
    // The open dialog of an import was answered and, if accepted, its message dismissed.
    void importFinished();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void invent(std::int64_t slot);
    // Titles slot button `slot` (1 to 6) with its binding.
    void showSlotTitle(int slot);
    // The selected row; a list position that is not there ends the program.
    std::size_t selectedIndex() const;
    void reloadData();
    void syncKeysPopup();
    void writeResult(const std::optional<QString>& path);
    void readCustomKeys(const std::optional<QString>& path);
    // Imports the file and tells what happened; the list changes only when the file holds
    // something of it.
    Alert importFrom(const QString& path);
    // After every change of the working list: the clash marks and count, and the title's mark of
    // a list that differs from the stored one.
    void listChanged();
    void showModified();
    void storeMainDic();
    // After every write to the store: the warning, and what the store holds.
    void storeWritten(bool written);
    void runAlert(const Alert& alert);

    UserDefaults defaults_;
    // What the store file holds under "mainDic", as last written, and the list last handed to the
    // store (the same unless a write failed).
    std::vector<AbilityRecord> storedDic_;
    std::vector<AbilityRecord> handedDic_;
    AlertPresenter* alerts_ = nullptr;
    ProgramOptions options_;
    AbilityTableModel tableModel_;
    FileDialog fileDialog_;
    QPointer<QWidget> window_;
    KeyNames keyNames_;
    TapStatusPresenter tapStatus_;
    bool gridFollowsKeyboard_ = false;
    bool viewLoaded_ = false;
};

} // namespace tarnic
