#pragma once

#include <string>

#include "base/text.h"

namespace varno::gui {

/// The text that the viewer must show for a result file, the slow way: an empty line first, and after every
/// line one more of each of the six DOS letters of the whole text repaired.
inline std::string viewerText(const Bytes& resultFile) {
    struct Letter {
        char dos;
        char windows;
    };
    constexpr Letter letters[] = {{'\x8F', '\xC5'}, {'\x8E', '\xC4'}, {'\x99', '\xD6'},
                                  {'\x86', '\xE5'}, {'\x84', '\xE4'}, {'\x94', '\xF6'}};
    Bytes text;
    std::size_t begin = 0;
    while (begin < resultFile.size()) {
        auto end = resultFile.find("\r\n", begin);
        if (end == Bytes::npos) end = resultFile.size();
        text += "\r\n" + resultFile.substr(begin, end - begin);
        begin = end + 2;
        for (const Letter& letter : letters) {
            const auto at = text.find(letter.dos);
            if (at != Bytes::npos) text[at] = letter.windows;
        }
    }
    return decodeWindows1252(text);
}

} // namespace varno::gui
