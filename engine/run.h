#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/file_calls.h"
#include "engine/envelope.h"
#include "model/design_case.h"

namespace varno::engine {

enum ExitCode {
    calculated = 0,
    senseless = 1,  ///< the result file says why; there is no moment curve file
    noCase = 2,     ///< nothing to call a result file by; nothing is written
    notWritten = 3, ///< a file could not be written or replaced, or moment curves no longer true not removed
};

/// Calculates the case in "~indata~.tmp": reads it from the current folder and leaves the result file and "momk.dat"
/// there. Each is written under another name first and takes the place of an older one only when both are complete. `when` is the time that the result bears.
ExitCode run(FileCalls& files, std::string_view when);

/// The moments and reactions of a case that makes sense.
Envelope calculate(const DesignCase& c);

/// The result file of a case: the text of its first line and ".res", in UTF-8. Nothing when no file can have that name
/// in the current folder: it is empty or blank, names a device or a path, or holds a character that Windows forbids in
/// file names.
std::optional<std::string> resultFileName(const Bytes& firstLine);

} // namespace varno::engine
