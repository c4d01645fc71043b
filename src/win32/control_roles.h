#pragma once

#include "controls/control_spec.h"

namespace varno::win32 {

/// What a control is to a screen reader: ROLE_SYSTEM_...
long roleOf(ControlKind kind);
/// It has no caption of its own; the label in front of it names it.
bool takesLabel(ControlKind kind);

} // namespace varno::win32
