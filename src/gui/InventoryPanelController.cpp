#include "gui/InventoryPanelController.h"

#include "core/editor/InventoryBinding.h"
#include "core/editor/InventoryStatus.h"
#include "core/vocabulary/KeyCodes.h"
#include "gui/InventoryPopupNames.h"
#include "gui/Outlet.h"
#include "gui/PopUpTitles.h"

#include <string>

namespace tarnic {

InventoryPanelController::InventoryPanelController(QSettings& settings, QSettings& options,
                                                   InventoryBindings& bindings, QObject* parent)
    : QObject(parent), defaults_(settings), options_(options), bindings_(bindings) {}

InventoryPanelController::~InventoryPanelController() = default;

void InventoryPanelController::loadBindings() {
    for (int n = 1; n <= InventoryBindings::kSlotCount; ++n) {
        if (std::optional<SlotBinding> stored = defaults_.inventoryModel(n)) {
            bindings_.of(n) = *stored;
        }
    }
}

void InventoryPanelController::viewDidLoad() {
    fillInventoryPopup(outlet(outlets_.inventPopup, "inventPopup"), keyNames_);
    viewLoaded_ = true;

    // The slot buttons show the restored bindings, and the options what was stored (off on a
    // first start).
    for (int n = 1; n <= InventoryBindings::kSlotCount; ++n) {
        showSlotTitle(n);
    }
    bindings_.options = options_.inventoryOptions();
    outlet(outlets_.onlyInGameBox, "onlyInGameBox")
        .setChecked(bindings_.options.onlyWhileGameInFront);
    outlet(outlets_.pauseInChatBox, "pauseInChatBox")
        .setChecked(bindings_.options.pauseWhileTypingInChat);
    tapStatus_.attach(&outlet(outlets_.gameStatusLbl, "gameStatusLbl"),
                      &outlet(outlets_.lastTapLbl, "lastTapLbl"));
    emit bindingsChanged(bindings_);
}

void InventoryPanelController::setKeyNames(const KeyNames& names) {
    keyNames_ = names;
    tapStatus_.setKeyNames(keyNames_);
    if (!viewLoaded_) {
        return;
    }
    nameInventoryKeys(outlet(outlets_.inventPopup, "inventPopup"), keyNames_);
    for (int n = 1; n <= InventoryBindings::kSlotCount; ++n) {
        showSlotTitle(n);
    }
}

void InventoryPanelController::showInventoryStatus(const AccessibilityTrust& trust) {
    outlet(outlets_.inventStatusLbl, "inventStatusLbl")
        .setText(toQString(inventoryStatusText(trust.isProcessTrusted(), trust.untrustedReason())));
}

void InventoryPanelController::showSlotTitle(int slot) {
    const auto index = static_cast<std::size_t>(slot - 1);
    outlet(outlets_.inventButtons.at(index), "invent" + std::to_string(slot))
        .setText(toQString(slotTitle(slot, bindings_.of(slot), keyNames_)));
}

void InventoryPanelController::invent(std::int64_t slot) {
    inventoryEditNow_ = slot;
    display(bindings_.of(static_cast<int>(slot)));
}

void InventoryPanelController::display(const std::optional<SlotBinding>& binding) {
    outlet(outlets_.delBTN, "delBTN").setVisible(true);
    outlet(outlets_.inventPopup, "inventPopup").setVisible(true);
    outlet(outlets_.isShiftBox, "isShiftBox").setVisible(true);
    outlet(outlets_.isShiftBox, "isShiftBox").setChecked(false);
    selectItemWithTitle(outlet(outlets_.inventPopup, "inventPopup"), select);
    if (!binding) {
        return;
    }
    const InventoryDisplay shown = displayOf(binding, keyNames_);
    selectItemWithTitle(outlet(outlets_.inventPopup, "inventPopup"), shown.title);
    outlet(outlets_.isShiftBox, "isShiftBox").setChecked(shown.shift);
}

void InventoryPanelController::setInventory() {
    const std::string title =
        selectedTitle(outlet(outlets_.inventPopup, "inventPopup")).value_or(std::string());
    const bool shift = outlet(outlets_.isShiftBox, "isShiftBox").checkState() != Qt::Unchecked;
    if (std::optional<SlotBinding> binding =
            bindingFrom(inventoryEditNow_, title, shift, keyNames_)) {
        const auto slot = static_cast<int>(inventoryEditNow_);
        bindings_.of(slot) = *binding;
        emit bindingsChanged(bindings_);
        emit storeWritten(defaults_.setInventoryModel(slot, *binding));
        showSlotTitle(slot);
    }
}

void InventoryPanelController::setInventoryKeyBox() {
    // The box alone binds nothing: the next key pick stores the binding with the new modifier.
    selectItemWithTitle(outlet(outlets_.inventPopup, "inventPopup"), select);
}

void InventoryPanelController::eraseKey() {
    outlet(outlets_.isShiftBox, "isShiftBox").setChecked(false);
    selectItemWithTitle(outlet(outlets_.inventPopup, "inventPopup"), select);
    if (inventoryEditNow_ >= 1 && inventoryEditNow_ <= InventoryBindings::kSlotCount) {
        const auto slot = static_cast<int>(inventoryEditNow_);
        bindings_.of(slot).reset();
        emit bindingsChanged(bindings_);
        emit storeWritten(defaults_.removeInventoryModel(slot));
        showSlotTitle(slot);
    }
}

void InventoryPanelController::setOnlyWhileGameInFront() {
    bindings_.options.onlyWhileGameInFront =
        outlet(outlets_.onlyInGameBox, "onlyInGameBox").isChecked();
    emit bindingsChanged(bindings_);
    options_.setOnlyWhileGameInFront(bindings_.options.onlyWhileGameInFront);
}

void InventoryPanelController::setPauseWhileTypingInChat() {
    bindings_.options.pauseWhileTypingInChat =
        outlet(outlets_.pauseInChatBox, "pauseInChatBox").isChecked();
    emit bindingsChanged(bindings_);
    options_.setPauseWhileTypingInChat(bindings_.options.pauseWhileTypingInChat);
}

} // namespace tarnic
