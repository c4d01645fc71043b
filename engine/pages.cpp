#include "engine/pages.h"

#include <algorithm>

namespace varno::engine {

Block& Block::add(std::string_view utf8) {
    Bytes line = VARNO1::toOemLetters(encodeWindows1252(utf8));
    line.resize(line.find_last_not_of(' ') + 1);
    lines_.push_back(std::move(line));
    return *this;
}

Block& Block::addBytes(std::string_view label, std::string_view bytes) {
    Bytes line(label);
    for (const char c : bytes)
        line += static_cast<unsigned char>(c) < 0x20 || c == 0x7F || c == '^' ? ' ' : c;
    line.resize(std::min(line.size(), pageWidth));
    lines_.push_back(std::move(line));
    return *this;
}

void Pages::add(const Block& block) {
    if (pages_.back().size() + block.lines().size() > pageLines - 1) newPage();
    pages_.back().insert(pages_.back().end(), block.lines().begin(), block.lines().end());
}

Bytes Pages::text() const {
    Bytes text;
    for (std::size_t i = 0; i < pages_.size(); ++i) {
        if (i > 0) text += "^\r\n";
        for (const Bytes& line : pages_[i])
            text += line + "\r\n";
    }
    return text;
}

} // namespace varno::engine
