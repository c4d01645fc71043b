#pragma once

#include <string>
#include <vector>

namespace varno {

/// Cells as a spreadsheet copies them, row by row.
using ClipboardRows = std::vector<std::vector<std::string>>;
/// Tabs end a cell and line ends a row; cells below each other are one row.
ClipboardRows clipboardRows(const std::string& text);

/// The hint at numbers that found no cell.
inline constexpr const char* leftOutHint =
    "Alla tal fick inte plats: där finns inga fler rutor att skriva i.";

} // namespace varno
