#include "base/sequential_text.h"

#include <algorithm>

#include "base/run_time_error.h"

namespace varno {

namespace {

// The first of some signs. The system looks for one byte many at a time, but for one of several it would be asked byte by
// byte. In pieces, as a text may hold but one of them and is not to be searched to its end for the others each time.
std::size_t firstOf(std::string_view signs, std::string_view text, std::size_t from) {
    constexpr std::size_t piece = 256;
    for (; from < text.size(); from += piece) {
        std::string_view before = text.substr(from, piece);
        const std::size_t searched = before.size();
        for (const char sign : signs)
            before = before.substr(0, before.find(sign));
        if (before.size() < searched) return from + before.size();
    }
    return text.size();
}

} // namespace

void SequentialText::skipBlanks() {
    while (at(' '))
        ++position_;
}

void SequentialText::skipLineEnd() {
    if (at('\r')) {
        ++position_;
        if (at('\n')) ++position_;
    } else if (at('\n')) {
        ++position_;
    }
}

std::string_view SequentialText::readField() {
    if (atEnd()) throw RunTimeError(errInputPastEnd);
    skipBlanks();
    std::string_view field;
    if (at('"')) {
        const auto begin = position_ + 1;
        const auto close = std::min(bytes_.find('"', begin), bytes_.size());
        field = bytes_.substr(begin, close - begin);
        position_ = std::min(close + 1, bytes_.size());
        skipBlanks();
    } else {
        field = takeUntil(firstOf(",\r\n", bytes_, position_));
    }
    if (at(',')) {
        ++position_;
    } else {
        skipLineEnd();
    }
    return field;
}

std::string_view SequentialText::readLine() {
    if (atEnd()) throw RunTimeError(errInputPastEnd);
    const std::string_view line = takeUntil(firstOf("\r\n", bytes_, position_));
    skipLineEnd();
    return line;
}

std::string_view SequentialText::takeUntil(std::size_t end) {
    const std::string_view taken = bytes_.substr(position_, end - position_);
    position_ = end;
    return taken;
}

} // namespace varno
