#include "driver/other_program.h"

#include <future>

#include "driver/mouse.h"
#include "driver/wait.h"

namespace varno::gui {

namespace {

constexpr int width = 160;
constexpr int height = 90;

HWND createWindow() {
    return CreateWindowExW(WS_EX_TOPMOST, L"STATIC", L"Annat program",
                           WS_POPUP | WS_CAPTION | WS_VISIBLE | SS_NOTIFY,
                           GetSystemMetrics(SM_CXSCREEN) - width, GetSystemMetrics(SM_CYSCREEN) - height,
                           width, height, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
}

} // namespace

OtherProgram::OtherProgram() {
    // A thread of its own answers its messages while the test waits.
    std::promise<HWND> created;
    thread_ = std::thread([&created] {
        const HWND window = createWindow();
        created.set_value(window);
        MSG message;
        while (IsWindow(window) && GetMessageW(&message, nullptr, 0, 0) > 0)
            DispatchMessageW(&message);
    });
    window_ = Control(created.get_future().get());
}

OtherProgram::~OtherProgram() {
    window_.post(WM_CLOSE);
    thread_.join();
}

void OtherProgram::activate() const {
    mouse::clickTitle(window_);
    if (!waitUntil([&] { return active(); })) throw GuiError("the other program does not come to the front");
}

} // namespace varno::gui
