#include "tool/text_table.h"

#include <algorithm>

#include "base/text.h"

namespace varno::tool {

std::string withoutTrailingBlanks(std::string text) {
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

std::string TextTable::text(std::size_t indent) const {
    std::vector<std::size_t> widths;
    for (const auto& row : rows_) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], characterCount(row[column]));
    }
    std::string out;
    for (const auto& row : rows_) {
        std::string line(indent, ' ');
        for (std::size_t column = 0; column < row.size(); ++column) {
            if (column != 0) line += "  ";
            line += std::string(widths[column] - characterCount(row[column]), ' ') + row[column];
        }
        out += withoutTrailingBlanks(std::move(line)) + '\n';
    }
    return out;
}

} // namespace varno::tool
