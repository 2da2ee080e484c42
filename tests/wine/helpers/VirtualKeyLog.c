/* A Windows program for the Wine tests: one window that logs the virtual keys it receives, one
 * line each, flushed at once:
 *   ready
 *   down <virtual key>     WM_KEYDOWN or WM_SYSKEYDOWN
 *   up <virtual key>       WM_KEYUP or WM_SYSKEYUP
 */
#include <stdio.h>
#include <windows.h>

static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        printf("down %u\n", (unsigned)wParam);
        fflush(stdout);
        return 0;
    case WM_KEYUP:
    case WM_SYSKEYUP:
        printf("up %u\n", (unsigned)wParam);
        fflush(stdout);
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
