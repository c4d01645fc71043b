#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>

namespace varno::gui::keyboard {

// Keys as the hand presses them: they go to the window that has the focus, whatever program it belongs to.

void press(WORD virtualKey);
/// The key while others are held down, such as VK_SHIFT.
void pressWith(std::initializer_list<WORD> held, WORD virtualKey);
inline void pressWith(WORD held, WORD virtualKey) {
    pressWith({held}, virtualKey);
}
/// UTF-8, letter by letter.
void type(const std::string& text);

} // namespace varno::gui::keyboard
