// Letters at the program's edge.
//
// The front-end writes the text lines of the design input file in Windows-1252, save that the first
// occurrence of each of the six Swedish letters is a byte of the DOS code pages 437 and 850. It shows a
// result file by undoing that, after each line it has read, for one more occurrence of each letter. So a line
// that holds the same letter twice would be shown with a wrong sign in it: no line that this program composes
// may do so.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varnowb {

// UTF-8 to the DOS code page: ASCII and the six Swedish letters; any other character becomes "?".
std::string toDos(std::string_view utf8);

// Characters in a UTF-8 text, for padding.
std::size_t letterCount(std::string_view utf8);

// The UTF-8 text that a text line of the design input file stands for.
std::string textOfLine(std::string_view line);

// The result file of a case: the text of its first line and ".res", in UTF-8. Nothing when no file can have
// that name in the current folder: it is empty or blank, names a device or a path, or holds a character that
// Windows forbids in file names.
std::optional<std::string> resultFileName(std::string_view firstLine);

} // namespace varnowb
