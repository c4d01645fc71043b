#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "base/file.h"
#include "base/text.h"

namespace varno {

/// A text that grows line by line, its DOS letters repaired after every line: text = fromOemLetters(text & CR
/// LF & line). Each repair converts the first occurrence that is left of each of the six letters, wherever it
/// stands in the text so far; a letter that occurs more often than lines follow it keeps DOS codes. The
/// engine's files rely on it.
///
/// Every letter is searched for from behind its last one on, so that a text of N bytes costs N steps, not N for every
/// line.
class RepairedText {
  public:
    void appendLine(std::string_view line);

    /// Windows-1252; every line is preceded by CR LF.
    const Bytes& bytes() const& { return text_; }
    Bytes bytes() && { return std::move(text_); }

  private:
    Bytes text_;
    std::array<std::size_t, 6> searched_{}; ///< how far, for each letter
};

} // namespace varno

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
