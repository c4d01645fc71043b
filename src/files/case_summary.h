#pragma once

#include <string>

#include "base/file_calls.h"
#include "base/numbers.h"

namespace varno {

/// What a chooser says of a case before it is opened: title, spans, rule set, and when it was last written, in three
/// lines. Of a file that is not there, nothing; of one that is no sound case, only that. It asks and raises nothing.
std::string caseSummary(FileCalls& calls, const std::string& path, const NumberLocale& locale);

} // namespace varno
