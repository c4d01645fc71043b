#pragma once

#include <vector>

#include "base/file.h"
#include "base/text.h"

namespace varno {

inline constexpr int maxResultPages = 6;   ///< that the page buffer holds
inline constexpr int linesPerPage = 70;    ///< at most
inline constexpr char endOfPageSign = '^'; ///< ends the page after the line that holds it, and is printed

} // namespace varno

namespace VARNO1 {

/// The pages of a result file, Windows-1252: in each the lines of the file, every one preceded by CR LF, so
/// that a page begins with an empty line. The DOS letters are repaired page by page, the first occurrence
/// left of each letter after every line. \throws RunTimeError 52 when the file did not open, 9 at a seventh
/// page.
std::vector<varno::Bytes> readResultPages(varno::File& file);

} // namespace VARNO1
