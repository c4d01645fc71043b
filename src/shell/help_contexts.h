#pragma once

#include <string>

#include "win32/strings.h"

namespace varno {

/// The topic of the focused window: its own or, while it has none, that of the window it stands in.
std::string helpTopicOfFocus(HWND focus);
/// The topic of what Windows asks help for: a menu item, or a message box.
/// Empty for any other window; their F1 key comes through the message queue.
std::string helpTopicOfRequest(const HELPINFO& request);

} // namespace varno
