#pragma once

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varno {

/// The signs that a formatted number is shown with, as UTF-8. Files use the default, whatever Windows is set
/// to.
struct NumberLocale {
    std::string decimal = ".";
    std::string thousands = ",";
};

/// A display pattern such as "##0.000", "#0", "####" or "##,##0.00": the digits before the point that its zeros ask for,
/// exactly as many decimals as it has, thousands grouped when it holds a comma.
struct NumberPattern {
    template <std::convertible_to<std::string_view> Text>
    constexpr NumberPattern(const Text& text) {
        const std::string_view pattern(text);
        const std::string_view whole = pattern.substr(0, pattern.find('.'));
        leastWhole = static_cast<int>(std::ranges::count(whole, '0'));
        decimals = static_cast<int>(pattern.size() - std::min(whole.size() + 1, pattern.size()));
        grouped = whole.find(',') != std::string_view::npos;
    }

    int leastWhole;
    int decimals;
    bool grouped;
};

/// `value` in a display pattern. Rounds half away from zero on the shortest decimal text of the value, of the *single* for
/// a single: 2.675f in "0.00" is 2.68. A value that rounds to zero has no minus sign. "####" of 0 is empty.
/// \throws RunTimeError 6 for a value that is not finite.
std::string formatNumber(double value, NumberPattern pattern, const NumberLocale& locale = {});
std::string formatNumber(float value, NumberPattern pattern, const NumberLocale& locale = {});
/// The same behind a text, with the signs of files.
void appendNumber(std::string& text, double value, NumberPattern pattern);
void appendNumber(std::string& text, float value, NumberPattern pattern);

/// The shortest text with a point that reads back as the same single (up to 9 digits); an exponent only below
/// 1e-4 and from 1e7 on. This is the general form of the design input file's real lines.
std::string generalForm(float value);
/// The same for a double.
std::string generalForm(double value);

/// Rounds to the nearest whole number, ties to even, into 16 bits. \throws RunTimeError 6 outside
/// -32768..32767.
std::int16_t toInteger(double value);

/// Rounds to single precision. \throws RunTimeError 6 when the value is beyond the largest single.
float toSingle(double value);

} // namespace varno

namespace VARNO1 {

/// The number that a text (UTF-8, or bytes of Windows-1252) begins with, 0 when it begins with none: the first "," counts
/// as ".", later ones end the number; blanks, tabs and no-break spaces (Sweden's thousands sign) are skipped wherever they
/// stand; exponents have E or D. Never throws, never looks at a locale; beyond the range of a double it is an infinity.
double parseNumber(std::string_view text);

/// The number of a text of digits with at most one point, a minus before them or none, and nothing but blanks behind: what
/// nearly every cell of a file is. Nothing for any other text.
std::optional<double> numberWrittenPlainly(std::string_view text);

/// The same as parseNumber without the comma rule: "6,5" is 6. Only the span and line-load counters read so.
double plainNumber(std::string_view text);

} // namespace VARNO1
