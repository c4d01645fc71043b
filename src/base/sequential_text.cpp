#include "base/sequential_text.h"

#include <algorithm>

#include "base/run_time_error.h"

namespace varno {

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
        const auto end = std::min(bytes_.find_first_of(",\r\n", position_), bytes_.size());
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
    const auto end = std::min(bytes_.find_first_of("\r\n", position_), bytes_.size());
    Bytes line = bytes_.substr(position_, end - position_);
    position_ = end;
    skipLineEnd();
    return line;
}

} // namespace varno
