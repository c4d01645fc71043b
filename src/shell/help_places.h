#pragma once

#include <string>
#include <string_view>

#include "controls/field.h"
#include "lineloads/line_load_view.h"

// Which topic of the help belongs to which place in the program.

namespace varno {

/// What the field tables name for a control of the input form; the spin button has the topic of the span count.
std::string helpTopicOf(Control control);
std::string_view helpTopicOf(LineLoadControl control);
/// The topic of a control by its ID and the class of the window it stands in; empty for one without its own.
std::string helpTopicOf(std::string_view windowClass, int id);
/// The topic of a menu item by its ID; "menyer" for one that has none.
std::string helpTopicOfMenu(int id);
/// The topic of a window of the program by its class, empty for any other class.
std::string_view helpTopicOfWindow(std::string_view className);
/// The topic of a message box by its title.
std::string_view helpTopicOfMessage(std::string_view title);

} // namespace varno
