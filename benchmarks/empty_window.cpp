// The least that a program with documents in a window can be: an MDI frame and a child in it, both empty. What the
// program's own start and memory are held against.
#include <windows.h>

namespace {

constexpr const wchar_t* frameClass = L"VarnoEmptyFrame";
constexpr const wchar_t* childClass = L"VarnoEmptyChild";

HWND client = nullptr;

LRESULT CALLBACK frameProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CREATE) {
        CLIENTCREATESTRUCT parameters{};
        parameters.idFirstChild = 1;
        client = CreateWindowExW(0, L"MDICLIENT", nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, 0,
                                 0, window, nullptr, GetModuleHandleW(nullptr), &parameters);
    }
    if (message == WM_DESTROY) PostQuitMessage(0);
    return DefFrameProcW(window, client, message, wParam, lParam);
}

void registerClass(const wchar_t* name, WNDPROC proc) {
    WNDCLASSW info{};
    info.lpfnWndProc = proc;
    info.hInstance = GetModuleHandleW(nullptr);
    info.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    info.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    info.lpszClassName = name;
    RegisterClassW(&info);
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
    registerClass(frameClass, frameProc);
    registerClass(childClass, DefMDIChildProcW);
    // As large as the screen lets it be, and no smaller than the program's: the surface of a window costs too.
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const HWND frame =
        CreateWindowExW(0, frameClass, L"", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, work.left, work.top,
                        work.right - work.left, work.bottom - work.top, nullptr, nullptr, instance, nullptr);
    CreateMDIWindowW(childClass, L"", WS_VISIBLE, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                     client, instance, 0);
    ShowWindow(frame, SW_SHOW);
    UpdateWindow(frame);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}
