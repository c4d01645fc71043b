#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/text.h"

namespace varno {

/// Reads the bytes of a text file from front to back, field by field or line by line.
///
///     file      = { field separator }
///     field     = blanks ( quoted | plain )
///     quoted    = '"' { any byte but '"' } '"'
///     plain     = { any byte but ',' CR LF }
///     separator = "," | CR LF | CR | LF | end of file
///
/// A quoted field may hold commas and line ends; blanks behind it are skipped. Blanks behind a plain field belong
/// to it, and a '"' inside it is an ordinary byte.
///
/// What one might not expect: an empty line is an empty field, a comma at the end of a line is followed by an
/// empty field, a quotation without its closing quote runs to the end of the file, and what follows a closing
/// quote without a separator is the next field. Only blanks are skipped in front of a field, not tabs.
///
/// The bytes are the caller's, and so is what is read: it stays as long as they do.
class SequentialText {
  public:
    explicit SequentialText(std::string_view bytes = {}) : bytes_(bytes) {}

    bool atEnd() const { return position_ >= bytes_.size(); }
    /// The next field. \throws RunTimeError 62 at the end of the file.
    std::string_view readField();
    /// The rest of the line without its end. \throws RunTimeError 62 at the end of the file.
    std::string_view readLine();
    /// How many bytes are read.
    std::size_t position() const { return position_; }
    /// From the same place on in a copy of the bytes.
    SequentialText in(std::string_view copy) const {
        SequentialText text(copy);
        text.position_ = position_;
        return text;
    }

  private:
    bool at(char c) const { return !atEnd() && bytes_[position_] == c; }
    void skipBlanks();
    void skipLineEnd();
    std::string_view takeUntil(std::size_t end);

    std::string_view bytes_;
    std::size_t position_ = 0;
};

} // namespace varno
