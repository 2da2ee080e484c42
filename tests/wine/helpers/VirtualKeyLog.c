/* A Windows program for the Wine tests: one window that logs the virtual keys it receives, one
 * line each, flushed at once:
 *   ready
 *   down <virtual key> <scan code> <extended> <num lock>    WM_KEYDOWN or WM_SYSKEYDOWN
 *   up <virtual key> <scan code> <extended> <num lock>      WM_KEYUP or WM_SYSKEYUP
 * All in decimal; <extended> is 1 for an extended key (the cursor block's arrows, for one), and
 * <num lock> is 1 while Num Lock is on as the program sees it.
 */
#include <stdio.h>
#include <windows.h>

static void logKey(const char* what, WPARAM wParam, LPARAM lParam) {
    const unsigned scanCode = (unsigned)((lParam >> 16) & 0xff);
    const unsigned extended = (unsigned)((lParam >> 24) & 1);
    const unsigned numLock = (unsigned)(GetKeyState(VK_NUMLOCK) & 1);
    printf("%s %u %u %u %u\n", what, (unsigned)wParam, scanCode, extended, numLock);
    fflush(stdout);
}

static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        logKey("down", wParam, lParam);
        return 0;
    case WM_KEYUP:
    case WM_SYSKEYUP:
        logKey("up", wParam, lParam);
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}

int main(void) {
    HINSTANCE instance = GetModuleHandleA(NULL);
    WNDCLASSA windowClass = {0};
    windowClass.lpfnWndProc = windowProcedure;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = "VirtualKeyLog";
    windowClass.hbrBackground = (HBRUSH)(COLOR_WINDOW + 1);
    if (!RegisterClassA(&windowClass)) {
        return 1;
    }
    HWND window = CreateWindowA("VirtualKeyLog", "virtual key log", WS_OVERLAPPEDWINDOW, 20, 20,
                                320, 200, NULL, NULL, instance, NULL);
    if (window == NULL) {
        return 1;
    }
    ShowWindow(window, SW_SHOWNORMAL);
    UpdateWindow(window);
    SetForegroundWindow(window);
    printf("ready\n");
    fflush(stdout);

    MSG message;
    while (GetMessageA(&message, NULL, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return 0;
}
