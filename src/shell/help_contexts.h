#pragma once

#include <string_view>

#include "win32/window.h"

namespace varno {

/// Gives every control of the input form and every flag its topic's number as its help context.
void setHelpContexts(HWND main, HWND form);

/// The topic of the focused window: its help context or, while it has none, that of the window it stands in.
std::string_view helpTopicOfFocus(HWND focus);
/// The topic of what Windows asks help for: a menu item, or a message box.
/// Empty for any other window; their F1 key comes through the message queue.
std::string_view helpTopicOfRequest(const HELPINFO& request);

} // namespace varno
