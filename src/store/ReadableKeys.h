#pragma once

#include <plist/plist.h>

namespace tarnic {

// Whether every dictionary key in the tree can be read. libplist 2.2 keeps a key's length apart
// from its text, and asks for the key (plist_dict_next_item, plist_get_key_val) end the process
// on an assertion when the text holds a NUL byte, which a binary property list can carry. The
// tree is walked without recursion, so any depth the parser accepted is checked.
bool keysAreReadable(plist_t root);

} // namespace tarnic
