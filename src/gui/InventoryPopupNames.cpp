#include "gui/InventoryPopupNames.h"

#include "core/vocabulary/KeyCodes.h"
#include "gui/PopUpTitles.h"

namespace tarnic {

void fillInventoryPopup(QComboBox& popup, const KeyNames& names) {
    popup.addItem(toQString(select));
    // Each key carries its code: the titles are the names the layout gives the keys, and change
    // with it.
    for (std::string_view title : keyboardKeysNum) {
        popup.addItem(toQString(title), codeOfLabel(title).value_or(-1));
    }
    for (std::string_view title : keyboardKeys) {
        popup.addItem(toQString(title), codeOfLabel(title).value_or(-1));
    }
    nameInventoryKeys(popup, names);
}

void nameInventoryKeys(QComboBox& popup, const KeyNames& names) {
    for (int i = 0; i < popup.count(); ++i) {
        bool isCode = false;
        const int code = popup.itemData(i).toInt(&isCode);
        if (isCode) {
            if (std::optional<std::string> name = names.nameOf(code)) {
                popup.setItemText(i, toQString(*name));
            }
        }
    }
}

} // namespace tarnic
