#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace varno::tool {

/// A table of plain text: a head of one or more rows, columns as wide as their widest cell, right-aligned,
/// two blanks between them. No line ends with a blank.
class TextTable {
  public:
    void addRow(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }
    /// The table with every line indented by `indent` blanks.
    std::string text(std::size_t indent) const;

  private:
    std::vector<std::vector<std::string>> rows_;
};

/// `text` without blanks at its end.
std::string withoutTrailingBlanks(std::string text);

} // namespace varno::tool
