#pragma once

#include "core/import/ImportReport.h"
#include "core/record/AbilityRecord.h"
#include "core/vocabulary/KeyNames.h"
#include "gui/AbilityTableModel.h"
#include "store/ProgramOptions.h"
#include "store/UserDefaults.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QObject>
#include <QPointer>
#include <QSettings>
#include <QTableView>

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace tarnic {

// The controls the hotkey editor works on; the window owns them.
struct EditorOutlets {
    QPointer<QTableView> tableView;
    QPointer<QLabel> spellImage;
    QPointer<QLabel> spellLbl;
    QPointer<QLabel> parentImage;
    QPointer<QLabel> parentLbl;
    QPointer<QLabel> defHotkey;
    QPointer<QComboBox> keysPopup;
    // The status bar's count of clashes.
    QPointer<QLabel> clashLbl;
    // The status bar's warning, shown while the store file lacks a change it was handed.
    QPointer<QLabel> storeWarningLbl;
    // "Grid follows my keyboard", under the Grid layout button.
    QPointer<QCheckBox> gridFollowsBox;
};

// The hotkey editor: the working list of abilities in the table, the selected ability's detail
// and hotkey pop-up, a key set by hand, "Reset to defaults" and the grid layout, and what the
// store holds of the list. The window owns the controls and connects their actions.
class EditorController : public QObject {
    Q_OBJECT
public:
    // `settings` is the user defaults store and `options` the program's options file (see
    // ProgramOptions), where "Grid follows my keyboard" is kept; without one the option starts
    // off and is not kept. Both must outlive the controller.
    explicit EditorController(QSettings& settings, QSettings* options = nullptr,
                              QObject* parent = nullptr);
    ~EditorController() override;

    // Points the controller at the window's controls. Call once, before viewDidLoad.
    void setOutlets(const EditorOutlets& outlets) { outlets_ = outlets; }

    // Runs once, after the outlets are set: fills the hotkey pop-up, restores and stores the
    // list, selects the first row and restores "Grid follows my keyboard".
    void viewDidLoad();
    // The store was empty at start and holds the catalogue now, stored by whoever opened it: the
    // view neither reads the list back nor compares it with the store. Call before viewDidLoad.
    void storeHoldsCatalogue() { catalogueStored_ = true; }

    // The keys' names in the player's layout: the letters of the next grid layout when it follows
    // the keyboard.
    void setKeyNames(const KeyNames& names) { keyNames_ = names; }
    const KeyNames& keyNames() const { return keyNames_; }

    // The working list, one table row per record, in list order.
    const std::vector<AbilityRecord>& mainDic() const { return mainDic_; }
    // The table's data.
    AbilityTableModel& tableModel() { return tableModel_; }
    // The ability table.
    QTableView& tableView() const;

    // Reads a CustomKeys.txt's text into the list, like keys set by hand: in memory only. The
    // list changes only when the file holds something of it.
    ImportReport importKeys(std::string_view text);

    // Actions.
    void tableViewSelectionDidChange();
    void setKey();
    void resetToDef();
    void allQWER();
    // The "Grid follows my keyboard" box: kept and stored; it changes only the next grid layout.
    void setGridFollowsKeyboard();

    // After every write to the store, the editor's own or another's: the warning, and what the
    // store holds.
    void storeWritten(bool written);

private:
    // The selected row; a list position that is not there ends the program.
    std::size_t selectedIndex() const;
    void reloadData();
    void syncKeysPopup();
    // After every change of the working list: the clash marks and count, and the title's mark of
    // a list that differs from the stored one.
    void listChanged();
    void showModified();
    void storeMainDic();
    // Before every change of the working list: a copy of what the store holds, if none was made.
    void keepStoredList();

    std::vector<AbilityRecord> mainDic_;
    UserDefaults defaults_;
    // What the store file holds under "mainDic", as last written, and the list last handed to the
    // store (the same unless a write failed).
    // Shared, as they are mostly the same list: one copy per hand-over, none per write.
    std::shared_ptr<const std::vector<AbilityRecord>> storedDic_ =
        std::make_shared<const std::vector<AbilityRecord>>();
    std::shared_ptr<const std::vector<AbilityRecord>> handedDic_ = storedDic_;
    // The store holds the working list as it stands, and the two above are not made yet: the
    // list read at start is copied only when it first changes.
    bool storedIsWorking_ = false;
    bool catalogueStored_ = false;
    AbilityTableModel tableModel_;
    EditorOutlets outlets_;
    std::optional<ProgramOptions> options_;
    KeyNames keyNames_;
    bool gridFollowsKeyboard_ = false;
};

} // namespace tarnic
