// For the shell tests: which keycodes hold an inventory slot's keypad digit as their only keysym,
// and what the backend's record on the root window names. On $DISPLAY; prints, one line each:
//   digit <slot 1..6> <keycode>     a keycode whose only keysym is that slot's keypad digit
//   record <keycode> ...            the record, when there is one (0 for a slot without keycode)
#include "support/KeymapProbe.h"

#include <cstdio>
#include <cstdlib>

int main() {
    const char* display = std::getenv("DISPLAY");
    tarnic::test::KeymapProbe probe(QString::fromLocal8Bit(display != nullptr ? display : ""));
    if (!probe.ok()) {
        std::fprintf(stderr, "keypad probe: cannot open the display\n");
        return 1;
    }
    for (std::size_t slot = 0; slot < tarnic::test::kSlotKeypadKeysyms.size(); ++slot) {
        for (const unsigned keycode :
             probe.keycodesWithOnly(tarnic::test::kSlotKeypadKeysyms[slot])) {
            std::printf("digit %zu %u\n", slot + 1, keycode);
        }
    }
    const std::vector<unsigned> recorded = probe.recordedKeycodes();
    if (!recorded.empty()) {
        std::printf("record");
        for (const unsigned keycode : recorded) {
            std::printf(" %u", keycode);
        }
        std::printf("\n");
    }
    return 0;
}
