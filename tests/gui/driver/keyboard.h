#pragma once

#include <windows.h>

#include <string>

namespace varno::gui::keyboard {

// Keys as the hand presses them: they go to the window that has the focus, whatever program it belongs to.

void press(WORD virtualKey);
/// UTF-8, letter by letter.
void type(const std::string& text);

} // namespace varno::gui::keyboard
