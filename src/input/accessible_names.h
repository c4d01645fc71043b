#pragma once

#include <string>

#include "input/form_view.h"

namespace varno {

/// What a screen reader says for a control of the input form, UTF-8: the boxes of the grid are told apart by
/// span or support, and symbols are spelt out. Empty for a control that its own caption names.
std::string accessibleName(Control control);

} // namespace varno
