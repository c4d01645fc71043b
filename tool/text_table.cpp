#include "tool/text_table.h"

#include <algorithm>

namespace varno::tool {

std::size_t widthOf(std::string_view utf8) {
    const auto begins = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), begins));
}

std::string withoutTrailingBlanks(std::string text) {
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

std::string TextTable::text(std::size_t indent) const {
    std::vector<std::size_t> widths;
    for (const auto& row : rows_) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], widthOf(row[column]));
    }
    std::string out;
    for (const auto& row : rows_) {
        std::string line(indent, ' ');
        for (std::size_t column = 0; column < row.size(); ++column) {
            if (column != 0) line += "  ";
            line += std::string(widths[column] - widthOf(row[column]), ' ') + row[column];
        }
        out += withoutTrailingBlanks(std::move(line)) + '\n';
    }
    return out;
}

} // namespace varno::tool
