#include "gui/ViewController.h"

#include "core/catalogue/Catalogue.h"
#include "core/editor/ClashRule.h"
#include "core/editor/ExportText.h"
#include "core/editor/GridLayout.h"
#include "core/editor/GridLetters.h"
#include "core/editor/InventoryBinding.h"
#include "core/editor/InventoryStatus.h"
#include "core/editor/KeyAssignment.h"
#include "core/editor/SelectionDetail.h"
#include "core/fatal/Fatal.h"
#include "core/import/CustomKeysImport.h"
#include "files/RegularFileReader.h"
#include "gui/AbilityTableView.h"
#include "gui/ExportFile.h"
#include "gui/GuiResources.h"
#include "gui/InventoryPopupNames.h"
#include "gui/Outlet.h"
#include "gui/Pictures.h"
#include "gui/PopUpTitles.h"
#include "gui/StatusBarTexts.h"
#include "shell/MessageBoxAlertPresenter.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPixmap>

namespace tarnic {

namespace {

QPixmap pictureNamed(const std::string& name) {
    return picture(qs(name));
}

// The game's own file is about 60 kB; anything past this is not a hotkey file, and reading stops
// there.
constexpr qint64 kLargestHotkeyFile = 4 * 1024 * 1024;

Alert importAlert(const QString& text, const QString& details, QMessageBox::Icon icon) {
    return {text, details, {QStringLiteral("OK")}, icon};
}

} // namespace

ViewController::ViewController(QSettings& settings, QSettings& options, QObject* parent)
    : QObject(parent), mainDic(all_data()), keyboardKeys(tarnic::keyboardKeys),
      keyboardKeysNum(tarnic::keyboardKeysNum), defaults_(settings), options_(options),
      tableModel_(mainDic) {
    initGuiResources();
}

ViewController::~ViewController() = default;

void ViewController::viewDidLoad() {
    for (int n = 1; n <= 6; ++n) {
        if (std::optional<InventoryModel> stored = defaults_.inventoryModel(n)) {
            inventoryModels[static_cast<std::size_t>(n - 1)] = std::move(*stored);
        }
    }

    QComboBox& keys = outlet(keysPopup, "keysPopup");
    for (std::string_view title : keyboardKeys) {
        keys.addItem(qs(title));
    }
    QComboBox& inventory = outlet(inventPopup, "inventPopup");
    fillInventoryPopup(inventory, keyNames_);
    viewLoaded_ = true;

    // The controller is the table's data source and delegate. The columns belong to the
    // window: it names them, as record keys, in the table's properties.
    QTableView& table = outlet(tableView, "tableView");
    tableModel_.setColumns(table.property("columnIdentifiers").toStringList(),
                           table.property("columnTitles").toStringList());
    table.setModel(&tableModel_);
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ViewController::tableViewSelectionDidChange);

    if (std::optional<std::vector<AbilityRecord>> stored = defaults_.mainDic()) {
        mainDic = std::move(*stored);
        reloadData();
    }
    storeMainDic();

    QFile templateFile(QStringLiteral(":/defaultkeys"));
    if (templateFile.open(QIODevice::ReadOnly)) {
        def_keys_bundle = templateFile.readAll().toStdString();
    }

    selectRow(outlet(tableView, "tableView"), 0);
    listChanged();

    // Hiding the application ends it, as closing the window does.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationHidden) {
                    windowWillClose();
                }
            });

    // The slot buttons show the restored bindings, and the options what was stored (off on a
    // first start).
    for (int n = 1; n <= 6; ++n) {
        showSlotTitle(n);
    }
    inventoryOptions = options_.inventoryOptions();
    outlet(onlyInGameBox, "onlyInGameBox").setChecked(inventoryOptions.onlyWhileGameInFront);
    outlet(pauseInChatBox, "pauseInChatBox").setChecked(inventoryOptions.pauseWhileTypingInChat);
    gridFollowsKeyboard_ = options_.gridFollowsKeyboard();
    outlet(gridFollowsBox, "gridFollowsBox").setChecked(gridFollowsKeyboard_);
    tapStatus_.attach(&outlet(gameStatusLbl, "gameStatusLbl"), &outlet(lastTapLbl, "lastTapLbl"));
}

void ViewController::setKeyNames(const KeyNames& names) {
    keyNames_ = names;
    tapStatus_.setKeyNames(keyNames_);
    if (!viewLoaded_) {
        return;
    }
    nameInventoryKeys(outlet(inventPopup, "inventPopup"), keyNames_);
    for (int n = 1; n <= 6; ++n) {
        showSlotTitle(n);
    }
}

void ViewController::showInventoryStatus(const AccessibilityTrust& trust) {
    outlet(inventStatusLbl, "inventStatusLbl")
        .setText(qs(inventoryStatusText(trust.isProcessTrusted(), trust.untrustedReason())));
}

void ViewController::viewDidAppear() {
    QWidget* window = outlet(tableView, "tableView").window();
    if (window != nullptr && window != window_) {
        window_ = window;
        window->installEventFilter(this);
    }
}

bool ViewController::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window_ && event->type() == QEvent::Close) {
        windowWillClose();
    }
    return QObject::eventFilter(watched, event);
}

void ViewController::windowWillClose() {
    // Queued: the loop ends after the event that asked for it has been handled.
    QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit,
                              Qt::QueuedConnection);
}

// ---- Ability table and hotkeys ----

std::size_t ViewController::selectedIndex() const {
    const int row = selectedRow(outlet(tableView, "tableView"));
    if (row < 0 || static_cast<std::size_t>(row) >= mainDic.size()) {
        fatalError(kIndexOutOfRange,
                   "row " + std::to_string(row) + " of " + std::to_string(mainDic.size()));
    }
    return static_cast<std::size_t>(row);
}

void ViewController::reloadData() {
    QTableView& table = outlet(tableView, "tableView");
    const int row = selectedRow(table);
    tableModel_.reload();
    // A reload keeps the selection where the list still has that row.
    if (row >= 0 && selectedRow(table) < 0 && row < tableModel_.rowCount()) {
        table.selectionModel()->setCurrentIndex(tableModel_.index(row, 0),
                                                QItemSelectionModel::ClearAndSelect |
                                                    QItemSelectionModel::Rows);
    }
}

void ViewController::syncKeysPopup() {
    const AbilityRecord& record = mainDic[selectedIndex()];
    selectItemWithTitle(outlet(keysPopup, "keysPopup"), popupTitle(record));
}

void ViewController::tableViewSelectionDidChange() {
    const SelectionDetail detail = selectionDetail(mainDic[selectedIndex()]);
    outlet(spellImage, "spellImage").setPixmap(pictureNamed(detail.spellImage));
    outlet(parentImage, "parentImage").setPixmap(pictureNamed(detail.parentImage));
    outlet(parentLbl, "parentLbl").setText(qs(detail.parentLbl));
    selectItemWithTitle(outlet(keysPopup, "keysPopup"), detail.popupTitle);
    outlet(defHotkey, "defHotkey").setText(qs(detail.defHotkey));
    outlet(spellLbl, "spellLbl").setText(qs(detail.spellLbl));
}

void ViewController::setKey() {
    const std::size_t row = selectedIndex();
    assignKey(mainDic[row], selectedTitle(outlet(keysPopup, "keysPopup")));
    // Not a reload and not stored: the list reaches the store at the next start or layout.
    tableModel_.rowChanged(static_cast<int>(row));
    listChanged();
}

void ViewController::resetToDef() {
    mainDic = all_data();
    reloadData();
    syncKeysPopup();
    listChanged();
}

void ViewController::allQWER() {
    tarnic::allQWER(mainDic, gridFollowsKeyboard_ ? gridLettersOf(keyNames_) : qwerLetters());
    reloadData();
    storeMainDic();
    syncKeysPopup();
    listChanged();
}

void ViewController::storeMainDic() {
    // An unchanged list is not written again: that would only cost flushes to disk at every start.
    handedDic_ = mainDic;
    storeWritten(defaults_.setMainDicIfChanged(mainDic));
}

void ViewController::storeWritten(bool written) {
    // A write that works takes along everything an earlier one could not write.
    if (written) {
        storedDic_ = handedDic_;
    }
    showStoreWarning(outlet(storeWarningLbl, "storeWarningLbl"), written, userDefaultsPath());
    showModified();
}

void ViewController::showModified() {
    // A key set by hand lives in memory only; the title says so until the list is stored.
    if (QWidget* window = outlet(tableView, "tableView").window()) {
        window->setWindowModified(mainDic != storedDic_);
    }
}

void ViewController::listChanged() {
    const std::vector<Clash> clashes = findClashes(mainDic);
    tableModel_.setClashPartners(clashPartners(clashes, mainDic.size()));
    outlet(clashLbl, "clashLbl").setText(clashCountText(clashes.size()));
    showModified();
}

// ---- Export ----

void ViewController::saveCKeys() {
    result = exportText(mainDic, def_keys_bundle);
    QWidget* parent = tableView.isNull() ? nullptr : tableView->window();
    fileDialog_.saveTextFile(parent, qs(custKs), this,
                             [this](std::optional<QString> path) { writeResult(path); });
}

void ViewController::writeResult(const std::optional<QString>& path) {
    if (path) {
        if (path->isEmpty()) {
            fatalError(kNilUnwrap, "the save dialog was accepted without a file");
        }
        // A failed write leaves the old file as it was, and says why.
        if (const std::optional<QString> reason = writeExportFile(*path, result)) {
            runAlert(exportFailedAlert(*path, *reason));
        }
    }
    emit exportFinished();
}

// ---- Import ----

void ViewController::importCKeys() {
    QWidget* parent = tableView.isNull() ? nullptr : tableView->window();
    fileDialog_.openTextFile(parent, this,
                             [this](std::optional<QString> path) { readCustomKeys(path); });
}

void ViewController::readCustomKeys(const std::optional<QString>& path) {
    if (path && !path->isEmpty()) {
        runAlert(importFrom(*path));
    }
    emit importFinished();
}

void ViewController::runAlert(const Alert& alert) {
    MessageBoxAlertPresenter messageBox;
    (alerts_ != nullptr ? *alerts_ : messageBox).run(alert);
}

Alert ViewController::importFrom(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    const QString unchanged = QStringLiteral("Nothing was changed.");
    const FileContents file = RegularFileReader(kLargestHotkeyFile).read(path);
    if (file.status == FileContents::Status::TooLarge) {
        return importAlert(
            QStringLiteral("\u201C%1\u201D is too large for a hotkey file.").arg(name), unchanged,
            QMessageBox::Warning);
    }
    if (!file.isRead()) {
        QString reason = file.reason;
        if (!reason.isEmpty()) {
            reason[0] = reason[0].toUpper();
        }
        return importAlert(QStringLiteral("\u201C%1\u201D could not be read.").arg(name),
                           reason + QStringLiteral(". ") + unchanged, QMessageBox::Warning);
    }
    const QByteArray& bytes = file.bytes;
    const ImportReport report = importCustomKeys(
        mainDic, std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    if (!report.holdsCatalogue()) {
        return importAlert(
            QStringLiteral("\u201C%1\u201D holds no hotkeys of the abilities in the list.")
                .arg(name),
            unchanged, QMessageBox::Warning);
    }
    reloadData();
    syncKeysPopup();
    listChanged();
    return importAlert(qs(importSummary(report)), qs(importDetails(report)),
                       QMessageBox::Information);
}

// ---- Inventory keys ----

void ViewController::showSlotTitle(int slot) {
    const auto index = static_cast<std::size_t>(slot - 1);
    outlet(inventButtons.at(index), "invent" + std::to_string(slot))
        .setText(qs(slotTitle(slot, inventoryModels.at(index), keyNames_)));
}

void ViewController::invent(std::int64_t slot) {
    inventoryEditNow = slot;
    display(inventoryModels[static_cast<std::size_t>(slot - 1)]);
}

void ViewController::display(const InventoryModel& model) {
    outlet(delBTN, "delBTN").setVisible(true);
    outlet(inventPopup, "inventPopup").setVisible(true);
    outlet(isShiftBox, "isShiftBox").setVisible(true);
    outlet(isShiftBox, "isShiftBox").setChecked(false);
    selectItemWithTitle(outlet(inventPopup, "inventPopup"), select);
    if (model.empty()) {
        return;
    }
    const InventoryDisplay shown = displayOf(model, keyNames_);
    selectItemWithTitle(outlet(inventPopup, "inventPopup"), shown.title);
    outlet(isShiftBox, "isShiftBox").setChecked(shown.shift);
}

void ViewController::setInventoryKey() {
    setInventory();
}

void ViewController::setInventory() {
    const std::string title =
        selectedTitle(outlet(inventPopup, "inventPopup")).value_or(std::string());
    const bool shift = outlet(isShiftBox, "isShiftBox").checkState() != Qt::Unchecked;
    if (std::optional<InventoryModel> binding =
            bindingFrom(inventoryEditNow, title, shift, keyNames_)) {
        const auto slot = static_cast<int>(inventoryEditNow);
        inventoryModels[static_cast<std::size_t>(slot - 1)] = *binding;
        storeWritten(defaults_.setInventoryModel(slot, *binding));
        showSlotTitle(slot);
    }
}

void ViewController::setInventoryKeyBox() {
    // The box alone binds nothing: the next key pick stores the binding with the new modifier.
    selectItemWithTitle(outlet(inventPopup, "inventPopup"), select);
}

void ViewController::eraseKey() {
    outlet(isShiftBox, "isShiftBox").setChecked(false);
    selectItemWithTitle(outlet(inventPopup, "inventPopup"), select);
    if (inventoryEditNow >= 1 && inventoryEditNow <= 6) {
        const auto slot = static_cast<int>(inventoryEditNow);
        InventoryModel().swap(inventoryModels[static_cast<std::size_t>(slot - 1)]);
        storeWritten(defaults_.removeInventoryModel(slot));
        showSlotTitle(slot);
    }
}

void ViewController::setOnlyWhileGameInFront() {
    inventoryOptions.onlyWhileGameInFront = outlet(onlyInGameBox, "onlyInGameBox").isChecked();
    options_.setOnlyWhileGameInFront(inventoryOptions.onlyWhileGameInFront);
}

void ViewController::setPauseWhileTypingInChat() {
    inventoryOptions.pauseWhileTypingInChat = outlet(pauseInChatBox, "pauseInChatBox").isChecked();
    options_.setPauseWhileTypingInChat(inventoryOptions.pauseWhileTypingInChat);
}

void ViewController::setGridFollowsKeyboard() {
    gridFollowsKeyboard_ = outlet(gridFollowsBox, "gridFollowsBox").isChecked();
    options_.setGridFollowsKeyboard(gridFollowsKeyboard_);
}

} // namespace tarnic
