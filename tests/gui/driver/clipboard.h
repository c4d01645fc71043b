#pragma once

#include <string>

namespace varno::gui::clipboard {

// The clipboard as another program uses it. UTF-8.

void set(const std::string& text);
std::string text();

} // namespace varno::gui::clipboard
