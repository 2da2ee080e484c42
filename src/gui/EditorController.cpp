#include "gui/EditorController.h"

#include "core/catalogue/Catalogue.h"
#include "core/editor/ClashRule.h"
#include "core/editor/GridLayout.h"
#include "core/editor/GridLetters.h"
#include "core/editor/KeyAssignment.h"
#include "core/editor/SelectionDetail.h"
#include "core/fatal/Fatal.h"
#include "core/import/CustomKeysImport.h"
#include "core/vocabulary/KeyCodes.h"
#include "gui/AbilityTableView.h"
#include "gui/GuiResources.h"
#include "gui/Outlet.h"
#include "gui/Pictures.h"
#include "gui/PopUpTitles.h"
#include "gui/StatusBarTexts.h"

#include <QLabel>

namespace tarnic {

namespace {

// The picture as drawn for the view, at the view's screen's pixel ratio: the view shows it as it
// is, without scaling it.
void showPicture(QLabel& view, const std::string& name, int edge) {
    view.setPixmap(pictureNamed(toQString(name), edge, view.devicePixelRatio()));
}

} // namespace

EditorController::EditorController(QSettings& settings, QSettings* options, QObject* parent)
    : QObject(parent), mainDic_(all_data()), defaults_(settings), tableModel_(mainDic_) {
    if (options != nullptr) {
        options_.emplace(*options);
    }
    initGuiResources();
}

EditorController::~EditorController() = default;

void EditorController::viewDidLoad() {
    QComboBox& keys = outlet(outlets_.keysPopup, "keysPopup");
    for (std::string_view title : keyboardKeys) {
        keys.addItem(toQString(title));
    }

    // A stored list takes the catalogue's place before the table has a model: the table then
    // lays out and measures its rows once.
    bool listFromStore = catalogueStored_;
    if (!listFromStore) {
        if (std::optional<std::vector<AbilityRecord>> stored = defaults_.mainDic()) {
            mainDic_ = std::move(*stored);
            listFromStore = true;
        }
    }

    // The controller is the table's data source and delegate. The columns belong to the
    // window: it names them, as record keys, in the table's properties.
    QTableView& table = tableView();
    tableModel_.setColumns(table.property("columnIdentifiers").toStringList(),
                           table.property("columnTitles").toStringList());
    table.setModel(&tableModel_);
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &EditorController::tableViewSelectionDidChange);

    // The list is stored at every start. One that the file holds already, as read from it or as
    // just stored in it, is neither compared nor copied.
    if (listFromStore && defaults_.fileIsCurrent()) {
        storedIsWorking_ = true;
        storeWritten(true);
    } else {
        storeMainDic();
    }

    selectRow(tableView(), 0);
    listChanged();

    if (options_) {
        gridFollowsKeyboard_ = options_->gridFollowsKeyboard();
        outlet(outlets_.gridFollowsBox, "gridFollowsBox").setChecked(gridFollowsKeyboard_);
    }
}

QTableView& EditorController::tableView() const {
    return outlet(outlets_.tableView, "tableView");
}

std::size_t EditorController::selectedIndex() const {
    const int row = selectedRow(tableView());
    if (row < 0 || static_cast<std::size_t>(row) >= mainDic_.size()) {
        fatalError(kIndexOutOfRange,
                   "row " + std::to_string(row) + " of " + std::to_string(mainDic_.size()));
    }
    return static_cast<std::size_t>(row);
}

void EditorController::reloadData() {
    QTableView& table = tableView();
    const int row = selectedRow(table);
    tableModel_.reload();
    // A reload keeps the selection where the list still has that row.
    if (row >= 0 && selectedRow(table) < 0 && row < tableModel_.rowCount()) {
        table.selectionModel()->setCurrentIndex(tableModel_.index(row, 0),
                                                QItemSelectionModel::ClearAndSelect |
                                                    QItemSelectionModel::Rows);
    }
}

void EditorController::syncKeysPopup() {
    const AbilityRecord& record = mainDic_[selectedIndex()];
    selectItemWithTitle(outlet(outlets_.keysPopup, "keysPopup"), popupTitle(record));
}

void EditorController::tableViewSelectionDidChange() {
    const SelectionDetail detail = selectionDetail(mainDic_[selectedIndex()]);
    showPicture(outlet(outlets_.spellImage, "spellImage"), detail.spellImage, kAbilityPictureEdge);
    showPicture(outlet(outlets_.parentImage, "parentImage"), detail.parentImage, kOwnerPictureEdge);
    outlet(outlets_.parentLbl, "parentLbl").setText(toQString(detail.parentLbl));
    selectItemWithTitle(outlet(outlets_.keysPopup, "keysPopup"), detail.popupTitle);
    outlet(outlets_.defHotkey, "defHotkey").setText(toQString(detail.defHotkey));
    outlet(outlets_.spellLbl, "spellLbl").setText(toQString(detail.spellLbl));
}

void EditorController::setKey() {
    const std::size_t row = selectedIndex();
    keepStoredList();
    assignKey(mainDic_[row], selectedTitle(outlet(outlets_.keysPopup, "keysPopup")));
    // Not a reload and not stored: the list reaches the store at the next start or layout.
    tableModel_.rowChanged(static_cast<int>(row));
    listChanged();
}

void EditorController::resetToDef() {
    keepStoredList();
    mainDic_ = all_data();
    reloadData();
    syncKeysPopup();
    listChanged();
}

void EditorController::allQWER() {
    keepStoredList();
    tarnic::allQWER(mainDic_, gridFollowsKeyboard_ ? gridLettersOf(keyNames_) : qwerLetters());
    reloadData();
    storeMainDic();
    syncKeysPopup();
    listChanged();
}

ImportReport EditorController::importKeys(std::string_view text) {
    keepStoredList();
    ImportReport report = importCustomKeys(mainDic_, text);
    if (report.holdsCatalogue()) {
        reloadData();
        syncKeysPopup();
        listChanged();
    }
    return report;
}

void EditorController::setGridFollowsKeyboard() {
    gridFollowsKeyboard_ = outlet(outlets_.gridFollowsBox, "gridFollowsBox").isChecked();
    if (options_) {
        options_->setGridFollowsKeyboard(gridFollowsKeyboard_);
    }
}

void EditorController::keepStoredList() {
    if (storedIsWorking_) {
        storedDic_ = std::make_shared<const std::vector<AbilityRecord>>(mainDic_);
        handedDic_ = storedDic_;
        storedIsWorking_ = false;
    }
}

void EditorController::storeMainDic() {
    // An unchanged list is not written again: that would only cost flushes to disk at every start.
    handedDic_ = std::make_shared<const std::vector<AbilityRecord>>(mainDic_);
    storeWritten(defaults_.setMainDicIfChanged(mainDic_));
}

void EditorController::storeWritten(bool written) {
    // A write that works takes along everything an earlier one could not write.
    if (written) {
        storedDic_ = handedDic_;
    }
    showStoreWarning(outlet(outlets_.storeWarningLbl, "storeWarningLbl"), written,
                     userDefaultsPath());
    showModified();
}

void EditorController::showModified() {
    // A key set by hand lives in memory only; the title says so until the list is stored.
    if (QWidget* window = tableView().window()) {
        window->setWindowModified(!storedIsWorking_ && mainDic_ != *storedDic_);
    }
}

void EditorController::listChanged() {
    const std::vector<Clash> clashes = findClashes(mainDic_);
    tableModel_.setClashPartners(clashPartners(clashes, mainDic_.size()));
    outlet(outlets_.clashLbl, "clashLbl").setText(clashCountText(clashes.size()));
    showModified();
}

} // namespace tarnic
