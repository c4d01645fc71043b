#include "base/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <locale>
#include <sstream>
#include <system_error>

#include "base/run_time_error.h"

namespace varno {

namespace {

// The shortest decimal text of a value: 0.d1d2d3... x 10^exponent, without trailing zeros; zero has no
// digits.
struct Decimal {
    bool negative = false;
    std::string digits;
    int exponent = 0;
};

template <typename Float>
Decimal shortestDecimal(Float value) {
    if (!std::isfinite(value)) throw RunTimeError(errOverflow);
    char buffer[64];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific).ptr;
    const std::string_view text(buffer, static_cast<std::size_t>(end - buffer));

    Decimal decimal;
    decimal.negative = text.front() == '-';
    const std::size_t e = text.find('e');
    for (const char c : text.substr(0, e)) {
        if (c >= '0' && c <= '9') decimal.digits += c;
    }
    const char* from = text.data() + e + 1;
    if (*from == '+') ++from;
    std::from_chars(from, end, decimal.exponent);
    ++decimal.exponent;
    while (!decimal.digits.empty() && decimal.digits.back() == '0')
        decimal.digits.pop_back();
    if (decimal.digits.empty()) decimal = {};
    return decimal;
}

// The value's digits rounded half away from zero to `decimals` places, as an integer text without leading
// zeros.
std::string scaledDigits(const Decimal& decimal, int decimals) {
    const int kept = decimal.exponent + decimals;
    if (kept < 0 || decimal.digits.empty()) return {};
    const auto count = static_cast<std::size_t>(kept);
    if (count >= decimal.digits.size())
        return decimal.digits + std::string(count - decimal.digits.size(), '0');

    std::string digits = decimal.digits.substr(0, count);
    if (decimal.digits[count] >= '5') {
        auto place = digits.rbegin();
        while (place != digits.rend() && *place == '9')
            *place++ = '0';
        if (place != digits.rend()) {
            ++*place;
        } else {
            digits.insert(digits.begin(), '1');
        }
    }
    const auto first = digits.find_first_not_of('0');
    return first == std::string::npos ? std::string() : digits.substr(first);
}

std::string grouped(const std::string& digits, const std::string& sign) {
    std::string out;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i != 0 && (digits.size() - i) % 3 == 0) out += sign;
        out += digits[i];
    }
    return out;
}

template <typename Float>
std::string format(Float value, std::string_view pattern, const NumberLocale& locale) {
    const auto point = pattern.find('.');
    const std::string_view whole = pattern.substr(0, point);
    const std::size_t decimals = point == std::string_view::npos ? 0 : pattern.size() - point - 1;
    const auto leastWhole = static_cast<std::size_t>(std::count(whole.begin(), whole.end(), '0'));

    const Decimal decimal = shortestDecimal(value);
    std::string digits = scaledDigits(decimal, static_cast<int>(decimals));
    const bool negative = decimal.negative && !digits.empty();
    if (digits.size() < leastWhole + decimals) digits.insert(0, leastWhole + decimals - digits.size(), '0');

    std::string wholeDigits = digits.substr(0, digits.size() - decimals);
    if (whole.find(',') != std::string_view::npos) wholeDigits = grouped(wholeDigits, locale.thousands);
    std::string out = negative ? "-" : "";
    out += wholeDigits;
    if (decimals != 0) out += locale.decimal + digits.substr(digits.size() - decimals);
    return out;
}

template <typename Float>
std::string general(Float value) {
    const Decimal decimal = shortestDecimal(value);
    if (decimal.digits.empty()) return "0";
    std::string out = decimal.negative ? "-" : "";
    const int exponent = decimal.exponent - 1;
    if (exponent < -4 || exponent >= 7) {
        out += decimal.digits.front();
        if (decimal.digits.size() > 1) out += "." + decimal.digits.substr(1);
        const std::string power = std::to_string(std::abs(exponent));
        return out + (exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power;
    }
    if (decimal.exponent <= 0) {
        return out + "0." + std::string(static_cast<std::size_t>(-decimal.exponent), '0') + decimal.digits;
    }
    const auto whole = static_cast<std::size_t>(decimal.exponent);
    if (whole >= decimal.digits.size()) {
        return out + decimal.digits + std::string(whole - decimal.digits.size(), '0');
    }
    return out + decimal.digits.substr(0, whole) + "." + decimal.digits.substr(whole);
}

} // namespace

std::string formatNumber(double value, std::string_view pattern, const NumberLocale& locale) {
    return format(value, pattern, locale);
}

std::string formatNumber(float value, std::string_view pattern, const NumberLocale& locale) {
    return format(value, pattern, locale);
}

std::string generalForm(float value) {
    return general(value);
}
std::string generalForm(double value) {
    return general(value);
}

std::int16_t toInteger(double value) {
    if (!(value >= -32769.0 && value <= 32768.0)) throw RunTimeError(errOverflow);
    double rounded = std::floor(value);
    const double rest = value - rounded;
    if (rest > 0.5 || (rest == 0.5 && std::fmod(rounded, 2.0) != 0.0)) rounded += 1.0;
    if (rounded < -32768.0 || rounded > 32767.0) throw RunTimeError(errOverflow);
    return static_cast<std::int16_t>(rounded);
}

float toSingle(double value) {
    if (!std::isfinite(value)) throw RunTimeError(errOverflow);
    // Half a step above the largest single is where rounding to nearest leaves the range.
    constexpr double largest = std::numeric_limits<float>::max();
    constexpr double halfStep = 1.0141204801825835e31; // 2^103
    if (std::fabs(value) >= largest + halfStep) throw RunTimeError(errOverflow);
    return static_cast<float>(value);
}

} // namespace varno

namespace VARNO1 {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// In UTF-8 byte A0 also ends other characters, whose first byte ends the number: nothing behind it counts.
constexpr std::string_view blanks[]{" ", "\t", "\u00A0", "\u202F", "\xA0"};

std::string withoutBlanks(std::string_view text) {
    std::string dense;
    while (!text.empty()) {
        const auto* const blank = std::find_if(std::begin(blanks), std::end(blanks),
                                               [&](std::string_view b) { return text.starts_with(b); });
        if (blank == std::end(blanks)) dense += text.front();
        text.remove_prefix(blank == std::end(blanks) ? 1 : blank->size());
    }
    return dense;
}

// The longest prefix of `text` that is a number, in the form that std::from_chars takes: sign, digits with at
// most one point, and an exponent only when digits follow its letter.
std::string leadingNumber(std::string_view text) {
    std::string number;
    std::size_t i = 0;
    const auto at = [&](std::size_t k) { return k < text.size() ? text[k] : '\0'; };
    const auto takeDigits = [&] {
        std::size_t taken = 0;
        for (; isDigit(at(i)); ++i, ++taken)
            number += at(i);
        return taken;
    };

    if (at(i) == '+' || at(i) == '-') {
        if (at(i) == '-') number += '-';
        ++i;
    }
    std::size_t digits = takeDigits();
    if (at(i) == '.') {
        number += '.';
        ++i;
        digits += takeDigits();
    }
    if (digits == 0) return {};

    const char letter = at(i);
    if (letter == 'e' || letter == 'E' || letter == 'd' || letter == 'D') {
        const std::size_t sign = at(i + 1) == '+' || at(i + 1) == '-' ? 1 : 0;
        if (isDigit(at(i + 1 + sign))) {
            number += at(i + 1) == '-' ? "e-" : "e";
            i += 1 + sign;
            takeDigits();
        }
    }
    return number;
}

// from_chars does not say on which side a number left the range; the streams give 0 below it, and fail above.
double outOfRange(const std::string& number) {
    std::istringstream in(number);
    in.imbue(std::locale::classic());
    double value = 0;
    in >> value;
    return in.fail() ? std::copysign(HUGE_VAL, value) : 0;
}

} // namespace

double plainNumber(std::string_view text) {
    const std::string number = leadingNumber(withoutBlanks(text));
    if (number.empty()) return 0;
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    return result.ec == std::errc::result_out_of_range ? outOfRange(number) : value;
}

double parseNumber(std::string_view text) {
    std::string pointed(text);
    const auto comma = pointed.find(',');
    if (comma != std::string::npos) pointed[comma] = '.';
    return plainNumber(pointed);
}

} // namespace VARNO1
