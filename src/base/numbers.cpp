#include "base/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>
#include <system_error>

#include "base/run_time_error.h"

namespace varno {

namespace {

// The shortest decimal text of a value: 0.d1d2d3... x 10^exponent, without trailing zeros; zero has no digits.
class Decimal {
  public:
    template <typename Float>
    explicit Decimal(Float value) {
        if (!std::isfinite(value)) throw RunTimeError(errOverflow);
        char buffer[64];
        const char* const end =
            std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific).ptr;
        const char* next = buffer;
        for (; *next != 'e'; ++next) {
            if (*next >= '0' && *next <= '9') digits_[count_++] = *next;
        }
        if (*++next == '+') ++next;
        std::from_chars(next, end, exponent_);
        ++exponent_;
        negative_ = buffer[0] == '-';
        while (count_ > 0 && digits_[count_ - 1] == '0')
            --count_;
        if (count_ == 0) becomeZero();
    }

    bool isZero() const { return count_ == 0; }
    bool negative() const { return negative_; }
    int exponent() const { return exponent_; }
    std::string_view digits() const { return {digits_.data(), count_}; }
    /// The digit that counts tenths for -1, ones for 0, tens for 1.
    char digitAt(int place) const {
        const int index = exponent_ - 1 - place;
        return index >= 0 && index < static_cast<int>(count_) ? digits_[static_cast<std::size_t>(index)]
                                                              : '0';
    }

    /// Rounds half away from zero.
    void roundTo(int decimals) {
        const int kept = exponent_ + decimals;
        if (kept >= static_cast<int>(count_)) return;
        if (kept < 0) return becomeZero();
        count_ = static_cast<std::size_t>(kept);
        if (digits_[count_] >= '5')
            addToLast();
        else if (count_ == 0)
            becomeZero();
    }

  private:
    void becomeZero() {
        count_ = 0;
        exponent_ = 0;
        negative_ = false;
    }
    // The nines become zeros, which are not kept behind the last digit.
    void addToLast() {
        while (count_ > 0 && digits_[count_ - 1] == '9')
            --count_;
        if (count_ > 0) {
            ++digits_[count_ - 1];
        } else {
            digits_[count_++] = '1';
            ++exponent_;
        }
    }

    std::array<char, 20> digits_{}; // a double has 17 at most
    std::size_t count_ = 0;
    int exponent_ = 0;
    bool negative_ = false;
};

// Those that a double holds exactly, and the quotient of two such is the nearest double of what they say.
constexpr std::array powersOfTen{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

// A value in units of its last decimal, when these decimals say all of it; nothing otherwise. `Float` tells texts of so many
// digits apart, so the one that reads back as the value is the shortest there is, and there is nothing to round. Searching
// for the shortest was a third of the time to write a file.
template <typename Float>
std::optional<std::int64_t> unitsOf(Float value, int decimals) {
    // With many more, the double in between could round to another single than the text itself.
    constexpr int mostDecimals = 3;
    if (decimals > mostDecimals) return {};
    const double unit = powersOfTen[static_cast<std::size_t>(decimals)];
    const double nearest = std::fabs(static_cast<double>(value)) * unit + 0.5;
    if (!(nearest < powersOfTen[std::numeric_limits<Float>::digits10])) return {};
    const auto units = static_cast<std::int64_t>(nearest);
    if (static_cast<Float>(static_cast<double>(units) / unit) != std::fabs(value)) return {};
    return units;
}

template <typename Float>
std::string format(Float value, NumberPattern pattern, const NumberLocale& locale) {
    Decimal decimal(value);
    decimal.roundTo(pattern.decimals);
    std::string out = decimal.negative() ? "-" : "";
    for (int place = std::max(decimal.exponent(), pattern.leastWhole) - 1; place >= 0; --place) {
        out += decimal.digitAt(place);
        if (pattern.grouped && place != 0 && place % 3 == 0) out += locale.thousands;
    }
    if (pattern.decimals != 0) out += locale.decimal;
    for (int place = -1; place >= -pattern.decimals; --place)
        out += decimal.digitAt(place);
    return out;
}

// The short way where there is nothing to round.
template <typename Float>
void append(std::string& text, Float value, NumberPattern pattern) {
    const std::optional<std::int64_t> units = unitsOf(value, pattern.decimals);
    if (!units || pattern.grouped) {
        text += format(value, pattern, {});
        return;
    }
    std::array<char, 32> digits{};
    char* const end = digits.data() + digits.size();
    char* next = end;
    std::int64_t left = *units;
    const auto putDigit = [&] {
        *--next = static_cast<char>('0' + left % 10);
        left /= 10;
    };
    for (int i = 0; i < pattern.decimals; ++i)
        putDigit();
    if (pattern.decimals != 0) *--next = '.';
    for (int i = 0; left != 0 || i < pattern.leastWhole; ++i)
        putDigit();
    if (value < 0) *--next = '-';
    text += std::string_view(next, end);
}

template <typename Float>
std::string general(Float value) {
    const Decimal decimal(value);
    if (decimal.isZero()) return "0";
    const std::string digits(decimal.digits());
    std::string out = decimal.negative() ? "-" : "";
    const int exponent = decimal.exponent() - 1;
    if (exponent < -4 || exponent >= 7) {
        out += digits.front();
        if (digits.size() > 1) out += "." + digits.substr(1);
        const std::string power = std::to_string(std::abs(exponent));
        return out + (exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power;
    }
    if (exponent < 0) return out + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    const auto whole = static_cast<std::size_t>(decimal.exponent());
    if (whole >= digits.size()) return out + digits + std::string(whole - digits.size(), '0');
    return out + digits.substr(0, whole) + "." + digits.substr(whole);
}

} // namespace

std::string formatNumber(double value, NumberPattern pattern, const NumberLocale& locale) {
    return format(value, pattern, locale);
}
std::string formatNumber(float value, NumberPattern pattern, const NumberLocale& locale) {
    return format(value, pattern, locale);
}

void appendNumber(std::string& text, double value, NumberPattern pattern) {
    append(text, value, pattern);
}
void appendNumber(std::string& text, float value, NumberPattern pattern) {
    append(text, value, pattern);
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

// from_chars does not say on which side a number left the range: the power of ten of its first digit does. A stream would
// say so too, and bring 800 kB of locales into the program.
double outOfRange(std::string_view number) {
    const std::size_t e = std::min(number.find('e'), number.size());
    const std::string_view digits = number.substr(0, e);
    const std::size_t first = digits.find_first_of("123456789");
    if (first == std::string_view::npos) return 0;
    const auto place = static_cast<std::int64_t>(std::min(digits.find('.'), digits.size())) -
                       static_cast<std::int64_t>(first);
    std::int64_t power = 0;
    if (e < number.size()) {
        const std::string_view written = number.substr(e + 1);
        const auto result = std::from_chars(written.data(), written.data() + written.size(), power);
        constexpr auto beyondAll = std::numeric_limits<std::int64_t>::max() / 2;
        if (result.ec == std::errc::result_out_of_range) power = written[0] == '-' ? -beyondAll : beyondAll;
    }
    if (place + power < 0) return 0;
    return number.starts_with('-') ? -HUGE_VAL : HUGE_VAL;
}

} // namespace

// The quotient of two whole numbers: half the time to read a file went into looking for blanks inside the number and for the
// nearest double.
std::optional<double> numberWrittenPlainly(std::string_view text) {
    const char* next = text.data();
    const char* const end = next + text.size();
    const auto at = [&](char c) { return next != end && *next == c; };
    std::int64_t digits = 0;
    std::size_t count = 0;
    const auto takeDigits = [&] {
        const std::size_t before = count;
        for (; next != end && isDigit(*next) && count < varno::powersOfTen.size(); ++next, ++count)
            digits = 10 * digits + (*next - '0');
        return count - before;
    };

    const bool negative = at('-');
    if (negative) ++next;
    if (takeDigits() == 0) return {};
    std::size_t decimals = 0;
    if (at('.')) {
        ++next;
        decimals = takeDigits();
    }
    while (at(' '))
        ++next;
    if (next != end || count >= varno::powersOfTen.size()) return {};
    const double value = static_cast<double>(digits) / varno::powersOfTen[decimals];
    return negative ? -value : value;
}

double plainNumber(std::string_view text) {
    if (const auto value = numberWrittenPlainly(text)) return *value;
    const std::string number = leadingNumber(withoutBlanks(text));
    if (number.empty()) return 0;
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    return result.ec == std::errc::result_out_of_range ? outOfRange(number) : value;
}

double parseNumber(std::string_view text) {
    if (const auto value = numberWrittenPlainly(text)) return *value;
    const auto comma = text.find(',');
    if (comma == std::string_view::npos) return plainNumber(text);
    std::string pointed(text);
    pointed[comma] = '.';
    return plainNumber(pointed);
}

} // namespace VARNO1
