#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/text.h"

// The result file's pages.
//
// The front-end shows a result file by undoing the DOS letters, after each line it has read, for one more occurrence
// of each of the six. So a line that holds the same letter twice would be shown with a wrong sign in it: no line that
// this program composes may do so.

namespace varno::engine {

inline constexpr std::size_t pageLines = 70; ///< with the line that ends the page
inline constexpr std::size_t pageWidth = 78; ///< characters of fixed pitch

/// Lines that stay together on a page.
class Block {
  public:
    /// UTF-8; each of the six Swedish letters at most once.
    Block& add(std::string_view utf8 = {});
    /// A text of the user's: `label`, without Swedish letters, then the bytes as they stand in the input, save that
    /// control characters and "^", which would end the page, are blanked and the rest is cut at the page width.
    Block& addBytes(std::string_view label, std::string_view bytes);

    const std::vector<Bytes>& lines() const { return lines_; }

  private:
    std::vector<Bytes> lines_;
};

class Pages {
  public:
    /// `head` opens every page but the first.
    explicit Pages(Block head) : head_(std::move(head)) {}

    /// Puts the block on this page, or on the next one when it does not fit.
    void add(const Block& block);
    void newPage() { pages_.push_back(head_.lines()); }

    /// Lines end with CR LF; a line holding only "^" ends every page but the last.
    Bytes text() const;

  private:
    Block head_;
    std::vector<std::vector<Bytes>> pages_{1};
};

} // namespace varno::engine
