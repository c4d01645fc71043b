#include "base/sequential_text.h"

#include <algorithm>

#include "base/run_time_error.h"

namespace varno {

namespace {

// The system looks for one byte many at a time, but for one of two it would be asked byte by byte. In pieces, as a text
// may hold but one of the two and is not to be searched to its end for the other after every line.
std::size_t lineEnd(std::string_view text, std::size_t from) {
    constexpr std::size_t piece = 256;
    for (; from < text.size(); from += piece) {
        const std::string_view part = text.substr(from, piece);
        const std::size_t end = part.find('\r');
        const std::size_t first = std::min(end, part.substr(0, end).find('\n'));
        if (first != std::string_view::npos) return from + first;
    }
    return text.size();
}

bool endsField(char c) {
    return c == ',' || c == '\r' || c == '\n';
}

} // namespace

void SequentialText::skipBlanks() {
    while (at(' '))
        ++position_;
}

bool SequentialText::skipLineEnd() {
    if (at('\r')) {
        ++position_;
        if (at('\n')) ++position_;
        return true;
    }
    if (at('\n')) {
        ++position_;
        return true;
    }
    return false;
}

Bytes SequentialText::readField() {
    if (atEnd()) throw RunTimeError(errInputPastEnd);
    skipBlanks();
    Bytes field;
    if (at('"')) {
        const auto begin = position_ + 1;
        const auto close = std::min(bytes_.find('"', begin), bytes_.size());
        field = bytes_.substr(begin, close - begin);
        position_ = std::min(close + 1, bytes_.size());
        skipBlanks();
    } else {
        const auto begin = bytes_.begin() + static_cast<std::ptrdiff_t>(position_);
        const auto end =
            static_cast<std::size_t>(std::find_if(begin, bytes_.end(), endsField) - bytes_.begin());
        field = bytes_.substr(position_, end - position_);
        position_ = end;
    }
    if (at(',')) {
        ++position_;
    } else {
        skipLineEnd();
    }
    return field;
}

Bytes SequentialText::readLine() {
    if (atEnd()) throw RunTimeError(errInputPastEnd);
    const auto end = lineEnd(bytes_, position_);
    Bytes line = bytes_.substr(position_, end - position_);
    position_ = end;
    skipLineEnd();
    return line;
}

} // namespace varno
