#include "engine/letters.h"

#include <algorithm>
#include <array>

namespace varnowb {
namespace {

struct Letter {
    char32_t unicode; // all six lie below U+0100, where Windows-1252 has the same number
    unsigned char dos;
};
constexpr std::array<Letter, 6> kLetters{{{U'\u00C5', 143},
                                          {U'\u00C4', 142},
                                          {U'\u00D6', 153},
                                          {U'\u00E5', 134},
                                          {U'\u00E4', 132},
                                          {U'\u00F6', 148}}};

// Windows-1252 at 0x80 to 0x9F; its five gaps keep their own number, as Windows itself maps them.
constexpr std::array<char32_t, 32> kHigh{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                         0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                         0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                         0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void appendUtf8(std::string& text, char32_t c) {
    if (c < 0x80) {
        text += static_cast<char>(c);
    } else if (c < 0x800) {
        text += static_cast<char>(0xC0 | (c >> 6));
        text += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | (c >> 12));
        text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (c & 0x3F));
    }
}

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// "NUL.res" would be the device, whatever follows the first point.
bool isDevice(std::string_view name) {
    std::string stem{name.substr(0, name.find('.'))};
    while (!stem.empty() && stem.back() == ' ')
        stem.pop_back();
    std::transform(stem.begin(), stem.end(), stem.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    if (stem == "CON" || stem == "PRN" || stem == "AUX" || stem == "NUL") return true;
    return stem.size() == 4 && (stem.starts_with("COM") || stem.starts_with("LPT")) && stem[3] >= '1' &&
           stem[3] <= '9';
}

} // namespace

std::string toDos(std::string_view utf8) {
    std::string dos;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        if (byte < 0x80) {
            dos += utf8[i];
        } else if (!isContinuation(utf8[i])) {
            char converted = '?';
            for (const auto& letter : kLetters) {
                std::string encoded;
                appendUtf8(encoded, letter.unicode);
                if (utf8.substr(i).starts_with(encoded)) converted = static_cast<char>(letter.dos);
            }
            dos += converted;
        }
    }
    return dos;
}

std::size_t letterCount(std::string_view utf8) {
    return static_cast<std::size_t>(
        std::count_if(utf8.begin(), utf8.end(), [](char c) { return !isContinuation(c); }));
}

std::string textOfLine(std::string_view line) {
    std::string bytes{line};
    for (const auto& letter : kLetters)
        if (const auto at = bytes.find(static_cast<char>(letter.dos)); at != std::string::npos)
            bytes[at] = static_cast<char>(letter.unicode);
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        appendUtf8(text, byte >= 0x80 && byte < 0xA0 ? kHigh[byte - 0x80U] : byte);
    }
    return text;
}

std::optional<std::string> resultFileName(std::string_view firstLine) {
    if (firstLine.find_first_not_of(' ') == std::string_view::npos) return {};
    if (firstLine.find_first_of("\\/:*?\"<>|") != std::string_view::npos) return {};
    if (std::any_of(firstLine.begin(), firstLine.end(),
                    [](char c) { return static_cast<unsigned char>(c) < 0x20; }))
        return {};
    if (isDevice(firstLine)) return {};
    return textOfLine(firstLine) + ".res";
}

} // namespace varnowb
