#pragma once

#include <string>

#include "base/run_time_error.h"

namespace varno {

/// What a run-time error means to the user, in Swedish and without its number: what happened and to which file or
/// field, what was not done, and what to do.
std::string errorWords(int number, const ErrorSubject& subject);

} // namespace varno
