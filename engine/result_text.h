#pragma once

#include <string_view>

#include "engine/case_reader.h"
#include "engine/envelope.h"

namespace varno::engine {

/// The result file: bytes of the DOS code page, lines ended by CR LF, pages as pages.h says, six at the most. It opens
/// by calling itself the work of a sample engine. `when` is the time of the calculation as it is to be read.
Bytes resultText(const CaseOnFile& file, const Envelope& result, std::string_view when);

/// The result file of a case that makes no sense: `name` as the bytes of the case's first line, `reason` in UTF-8.
Bytes refusalText(std::string_view name, std::string_view reason, std::string_view when);

/// What "varnowb --help" prints (UTF-8, lines ended by LF).
std::string_view helpText();

} // namespace varno::engine
