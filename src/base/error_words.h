#pragma once

#include <string>

#include "base/run_time_error.h"

namespace varno {

/// What a run-time error means to the user, in Swedish and without its number; any of them may be empty.
struct ErrorWords {
    std::string happened; ///< and to which file or field
    std::string notDone;  ///< by the program
    std::string advice;
};
ErrorWords errorWords(int number, const ErrorSubject& subject);

} // namespace varno
