#include "driver/keyboard.h"

#include "driver/wait.h"
#include "win32/strings.h"

namespace varno::gui::keyboard {

namespace {

void send(WORD virtualKey, WORD letter, DWORD flags) {
    INPUT inputs[2] = {};
    for (INPUT& input : inputs) {
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = virtualKey;
        input.ki.wScan = letter;
        input.ki.dwFlags = flags;
    }
    inputs[1].ki.dwFlags |= KEYEVENTF_KEYUP;
    if (SendInput(2, inputs, sizeof(INPUT)) != 2) throw GuiError("the keyboard cannot be used");
}

} // namespace

void press(WORD virtualKey) {
    send(virtualKey, static_cast<WORD>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC)), 0);
}

void pressWith(std::initializer_list<WORD> held, WORD virtualKey) {
    const auto hold = [&](DWORD flags) {
        for (const WORD key : held) {
            INPUT input{};
            input.type = INPUT_KEYBOARD;
            input.ki.wVk = key;
            input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
            input.ki.dwFlags = flags;
            SendInput(1, &input, sizeof input);
        }
    };
    hold(0);
    press(virtualKey);
    hold(KEYEVENTF_KEYUP);
}

void type(const std::string& text) {
    for (const wchar_t letter : win32::wide(text))
        send(0, letter, KEYEVENTF_UNICODE);
}

} // namespace varno::gui::keyboard
