#pragma once

#include <string>

#include "base/text.h"

namespace varno::kill {

// What the saving program and the one that ends it agree on.

/// Set by the saving program when its first save is through; the number is its process.
inline std::wstring readyEvent(unsigned long process) {
    return L"varno-save-loop-" + std::to_wstring(process);
}

/// The lines of the two cases that are saved in turn: as many as a case has, of different lengths, so that a mixture
/// of the two is none of them.
inline constexpr int caseLineCount = 37;
inline Bytes lineOf(bool second, int line) {
    const std::string number = std::to_string(line);
    return second ? Bytes(70, 'B') + number : "A" + number;
}
inline Bytes wholeCase(bool second) {
    Bytes bytes;
    for (int line = 1; line <= caseLineCount; ++line)
        bytes += lineOf(second, line) + "\r\n";
    return bytes;
}

} // namespace varno::kill
