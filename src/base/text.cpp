#include "base/text.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "base/oem_letters.h"

namespace varno {

namespace {

// Bytes 128 to 159 of Windows-1252. All others are the code point of the same number.
constexpr std::array<char16_t, 32> highControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr char32_t replacement = 0xFFFD;

void appendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) { // nearly all
        out += static_cast<char>(c);
        return;
    }
    constexpr std::array<char32_t, 4> leads{0, 0xC0, 0xE0, 0xF0};
    const std::size_t more = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    out += static_cast<char>(leads[more] | (c >> (6 * more)));
    for (std::size_t left = more; left > 0; --left)
        out += static_cast<char>(0x80 | ((c >> (6 * (left - 1))) & 0x3F));
}

// Takes one character off the front. A damaged sequence costs one byte and gives U+FFFD.
char32_t takeUtf8(std::string_view& in) {
    constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(in.front());
    if (lead < 0x80) {
        in.remove_prefix(1);
        return lead;
    }
    const std::size_t length = lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
    bool whole = length > 0 && length <= in.size();
    char32_t c = length > 1 ? lead & (0x7Fu >> length) : lead;
    for (std::size_t i = 1; whole && i < length; ++i) {
        const auto next = static_cast<unsigned char>(in[i]);
        whole = (next & 0xC0) == 0x80;
        c = (c << 6) | (next & 0x3Fu);
    }
    const bool surrogate = c >= 0xD800 && c <= 0xDFFF;
    if (!whole || c < smallest[length] || c > 0x10FFFF || surrogate) {
        in.remove_prefix(1);
        return replacement;
    }
    in.remove_prefix(length);
    return c;
}

char32_t upper(char32_t c) {
    if (c >= 'a' && c <= 'z') return c - 32;
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return c - 32;
    switch (c) {
    case 0xFF:
        return 0x178; // ÿ
    case 0x161:
        return 0x160; // š
    case 0x153:
        return 0x152; // œ
    case 0x17E:
        return 0x17D; // ž
    default:
        return c;
    }
}

} // namespace

std::string decodeWindows1252(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    for (const char byte : bytes) {
        const auto b = static_cast<unsigned char>(byte);
        appendUtf8(out, b >= 0x80 && b < 0xA0 ? highControls[b - 0x80u] : b);
    }
    return out;
}

Bytes encodeWindows1252(std::string_view utf8) {
    Bytes out;
    out.reserve(utf8.size());
    while (!utf8.empty()) {
        const char32_t c = takeUtf8(utf8);
        if (c < 0x80 || (c >= 0xA0 && c < 0x100)) {
            out += static_cast<char>(c);
            continue;
        }
        const auto found = std::find(highControls.begin(), highControls.end(), c);
        out += found == highControls.end() ? '?' : static_cast<char>(0x80 + (found - highControls.begin()));
    }
    return out;
}

std::u16string utf16FromUtf8(std::string_view utf8) {
    std::u16string out;
    out.reserve(utf8.size());
    while (!utf8.empty()) {
        const char32_t c = takeUtf8(utf8);
        if (c < 0x10000) {
            out += static_cast<char16_t>(c);
        } else {
            out += static_cast<char16_t>(0xD7C0 + (c >> 10));
            out += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
        }
    }
    return out;
}

std::string utf8FromUtf16(std::u16string_view utf16) {
    std::string out;
    out.reserve(utf16.size());
    for (std::size_t i = 0; i < utf16.size(); ++i) {
        char32_t c = utf16[i];
        if (c >= 0xD800 && c <= 0xDFFF) {
            const bool pair = c < 0xDC00 && i + 1 < utf16.size() && (utf16[i + 1] & 0xFC00) == 0xDC00;
            c = pair ? 0x10000 + ((c & 0x3FF) << 10) + (utf16[++i] & 0x3FFu) : replacement;
        }
        appendUtf8(out, c);
    }
    return out;
}

std::string upperCase(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    while (!utf8.empty())
        appendUtf8(out, upper(takeUtf8(utf8)));
    return out;
}

std::size_t characterCount(std::string_view utf8) {
    const auto begins = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    return static_cast<std::size_t>(std::ranges::count_if(utf8, begins));
}

std::string trimBlanks(std::string_view text) {
    const auto begin = text.find_first_not_of(' ');
    if (begin == std::string_view::npos) return {};
    return std::string(text.substr(begin, text.find_last_not_of(' ') - begin + 1));
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return upperCase(a) == upperCase(b);
}

} // namespace varno

namespace VARNO1 {

namespace {

// Swaps the first `from` of each pair for its `to`. All positions are looked up before anything is replaced,
// first those of the capitals, then those of the small letters.
template <typename From, typename To>
varno::Bytes swapFirst(varno::Bytes text, From from, To to) {
    constexpr std::size_t capitals = 3;
    for (std::size_t group = 0; group < varno::oemLetters.size(); group += capitals) {
        std::array<std::size_t, capitals> places{};
        for (std::size_t i = 0; i < capitals; ++i)
            places[i] = text.find(from(varno::oemLetters[group + i]));
        for (std::size_t i = 0; i < capitals; ++i) {
            if (places[i] != varno::Bytes::npos) text[places[i]] = to(varno::oemLetters[group + i]);
        }
    }
    return text;
}

constexpr auto windowsOf = [](const varno::OemLetter& letter) { return letter.windows; };
constexpr auto dosOf = [](const varno::OemLetter& letter) { return letter.dos; };

} // namespace

varno::Bytes toOemLetters(std::string_view text) {
    return swapFirst(varno::Bytes(text), windowsOf, dosOf);
}

varno::Bytes fromOemLetters(std::string_view text) {
    return swapFirst(varno::Bytes(text), dosOf, windowsOf);
}

} // namespace VARNO1
