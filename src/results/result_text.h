#pragma once

#include <vector>

#include "base/file.h"
#include "base/text.h"

// The DOS letters of a text are repaired after every line that it grows by: text = fromOemLetters(text & CR LF & line).
// Each repair converts the first occurrence that is left of each of the six letters, wherever it stands in the text so
// far; a letter that occurs more often than lines follow it keeps DOS codes. The engine's files rely on it.

namespace VARNO1 {

/// The text of a result file as the viewer shows it, Windows-1252: an empty line, then the lines of the file.
/// \throws RunTimeError 52 when the file did not open.
varno::Bytes readResultText(varno::File& file);

/// The pages of a result file, Windows-1252: in each the lines of the file, every one preceded by CR LF, so
/// that a page begins with an empty line. The DOS letters are repaired page by page, the first occurrence
/// left of each letter after every line. \throws RunTimeError 52 when the file did not open, 9 at a seventh
/// page.
std::vector<varno::Bytes> readResultPages(varno::File& file);

} // namespace VARNO1
