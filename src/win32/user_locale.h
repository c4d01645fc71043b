#pragma once

#include "base/numbers.h"

namespace varno::win32 {

/// The decimal and thousands signs of the user's Windows settings.
NumberLocale userNumberLocale();

} // namespace varno::win32
