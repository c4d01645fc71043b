#pragma once

#include <functional>

#include "driver/program.h"

namespace varno::gui::mouse {

// The mouse as the hand moves it: what it does goes to the window that lies there on the screen, whatever program
// it belongs to.

/// Clicks into the middle of a window or control.
void click(const Control& control);
/// Does `click` until it arrived, a few times at most: one that comes while another window still goes or comes up goes to
/// that one, and a user clicks again.
void clickUntil(const std::function<bool()>& arrived, const std::function<void()>& click);
/// Clicks into a control and so gives it the focus.
void clickInto(const Program& program, const Control& control);
/// Lets the pointer rest on a point of it, in hundredths of its width, half its height down.
void restOn(const Control& control, int hundredths = 50);
/// Clicks on the title bar of a window, which activates it and does nothing else.
void clickTitle(const Control& window);
/// Turns the wheel over a control, away from the user for a positive number of notches.
void wheel(const Control& control, int notches);

} // namespace varno::gui::mouse
