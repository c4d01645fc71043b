// The result file's pages.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace varnowb {

constexpr std::size_t kPageLines = 70; // with the line that ends the page
constexpr std::size_t kPageWidth = 78; // characters of fixed pitch

// Lines that stay together on a page, as bytes of the DOS code page.
class Block {
  public:
    // UTF-8; each of the six Swedish letters at most once (see letters.h).
    Block& add(std::string_view utf8 = {});
    // A text of the user's: `label` in UTF-8, without Swedish letters, then the bytes as they stand in the
    // input, save that control characters and "^", which would end the page, are blanked and the rest is cut
    // at the page width.
    Block& addBytes(std::string_view label, std::string_view bytes);

    const std::vector<std::string>& lines() const { return lines_; }

  private:
    std::vector<std::string> lines_;
};

class Pages {
  public:
    // `head` opens every page but the first.
    explicit Pages(Block head) : head_(std::move(head)) {}

    // Puts the block on this page, or on the next one when it does not fit.
    void add(const Block& block);
    void newPage();

    // Lines end with CR LF; a line holding only "^" ends every page but the last.
    std::string text() const;

  private:
    Block head_;
    std::vector<std::vector<std::string>> pages_{1};
};

// `text` (UTF-8) filled with blanks to `width` characters.
std::string padded(std::string_view text, std::size_t width);

} // namespace varnowb
