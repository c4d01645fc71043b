#pragma once

#include "driver/control.h"

namespace varno::gui::mouse {

// The mouse as the hand moves it: what it does goes to the window that lies there on the screen, whatever program
// it belongs to.

/// Clicks into the middle of a window or control.
void click(const Control& control);
/// Lets the pointer rest on a point of it, in hundredths of its width, half its height down.
void restOn(const Control& control, int hundredths = 50);
/// Clicks on the title bar of a window, which activates it and does nothing else.
void clickTitle(const Control& window);
/// Turns the wheel over a control, away from the user for a positive number of notches.
void wheel(const Control& control, int notches);

} // namespace varno::gui::mouse
