#pragma once

#include "core/vocabulary/KeyNames.h"

#include <QComboBox>

namespace tarnic {

// Fills the inventory key pop-up: "Select", then the keys of keyboardKeysNum and keyboardKeys in
// their order, each titled with its name in `names` and carrying its key code as item data.
void fillInventoryPopup(QComboBox& popup, const KeyNames& names);

// Titles the keys of a filled pop-up with their names in `names`; the selection stays on the key
// it was on.
void nameInventoryKeys(QComboBox& popup, const KeyNames& names);

} // namespace tarnic
