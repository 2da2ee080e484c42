// For the shell tests: every key press the X server receives, from any client (the keyboard,
// XTest, the program's own taps), through RECORD, one line each, flushed at once:
//   ready                  recording has begun
//   press <keycode>
// Runs until killed.
#include <X11/Xlib.h>
#include <X11/Xproto.h>
#include <X11/extensions/record.h>

#include <cstdio>

namespace {

void receive(XPointer, XRecordInterceptData* data) {
    if (data->category == XRecordStartOfData) {
        std::printf("ready\n");
    } else if (data->category == XRecordFromServer && data->data != nullptr &&
               data->data_len * 4 >= sizeof(xEvent)) {
        const auto* event = reinterpret_cast<const xEvent*>(data->data);
        if ((event->u.u.type & 0x7f) == KeyPress) {
            std::printf("press %u\n", static_cast<unsigned>(event->u.u.detail));
        }
    }
    std::fflush(stdout);
    XRecordFreeData(data);
}

} // namespace

int main() {
    Display* control = XOpenDisplay(nullptr);
    Display* recording = XOpenDisplay(nullptr);
    if (control == nullptr || recording == nullptr) {
        std::fprintf(stderr, "record key log: cannot open the display\n");
        return 1;
    }
    XRecordRange* range = XRecordAllocRange();
    range->device_events.first = KeyPress;
    range->device_events.last = KeyPress;
    XRecordClientSpec clients = XRecordAllClients;
    const XRecordContext context = XRecordCreateContext(control, 0, &clients, 1, &range, 1);
    XFree(range);
    XSync(control, False);
    if (context == 0 || XRecordEnableContext(recording, context, receive, nullptr) == 0) {
        std::fprintf(stderr, "record key log: cannot record\n");
        return 1;
    }
    return 0;
}
