#include "engine/pages.h"

#include "engine/letters.h"

#include <algorithm>
#include <utility>

namespace varnowb {

Block& Block::add(std::string_view utf8) {
    auto line = toDos(utf8);
    line.resize(line.find_last_not_of(' ') + 1);
    lines_.push_back(std::move(line));
    return *this;
}

Block& Block::addBytes(std::string_view label, std::string_view bytes) {
    auto line = toDos(label);
    for (const char c : bytes)
        line += static_cast<unsigned char>(c) < 0x20 || c == 0x7F || c == '^' ? ' ' : c;
    line.resize(std::min(line.size(), kPageWidth));
    lines_.push_back(std::move(line));
    return *this;
}

void Pages::add(const Block& block) {
    if (pages_.back().size() + block.lines().size() > kPageLines - 1) newPage();
    pages_.back().insert(pages_.back().end(), block.lines().begin(), block.lines().end());
}

void Pages::newPage() {
    pages_.push_back(head_.lines());
}

std::string Pages::text() const {
    std::string text;
    for (std::size_t i = 0; i < pages_.size(); ++i) {
        if (i > 0) text += "^\r\n";
        for (const auto& line : pages_[i])
            text += line + "\r\n";
    }
    return text;
}

std::string padded(std::string_view text, std::size_t width) {
    const auto used = letterCount(text);
    return std::string{text} + std::string(used < width ? width - used : 0, ' ');
}

} // namespace varnowb
