#include "engine/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace varnowb {
namespace {

std::string_view withoutBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Long enough for the largest double with its 309 digits.
std::string printed(double value, std::chars_format format, int decimals) {
    std::array<char, 400> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, decimals).ptr;
    return {buffer.data(), end};
}

} // namespace

std::optional<double> readNumber(std::string_view text) {
    std::string number{withoutBlanks(text)};
    if (const auto comma = number.find(','); comma != std::string::npos) number[comma] = '.';
    // Only these: from_chars would take "inf" and "nan" for numbers.
    if (number.empty() || number.find_first_not_of("0123456789+-.eEdD") != std::string::npos) return {};
    std::replace_if(
        number.begin(), number.end(), [](char c) { return c == 'd' || c == 'D'; }, 'e');
    const char* first = number.data();
    const char* const last = first + number.size();
    if (*first == '+' && number.size() > 1 && first[1] != '-') ++first;
    double value = 0;
    const auto [end, error] = std::from_chars(first, last, value);
    if (error != std::errc{} || end != last || !std::isfinite(value)) return {};
    return value;
}

std::optional<int> readWhole(std::string_view text) {
    const auto value = readNumber(text);
    if (!value || *value != std::floor(*value)) return {};
    if (*value < std::numeric_limits<short>::min() || *value > std::numeric_limits<short>::max()) return {};
    return static_cast<int>(*value);
}

std::string fixed(double value, int decimals) {
    auto text = printed(value, std::chars_format::fixed, decimals);
    if (text.front() == '-' && text.find_first_of("123456789") == std::string::npos) text.erase(0, 1);
    return text;
}

std::string fitted(double value, int width, int decimals) {
    const auto room = static_cast<std::size_t>(width);
    auto text = fixed(value, decimals);
    for (int digits = 4; text.size() > room && digits >= 0; --digits)
        text = printed(value, std::chars_format::scientific, digits);
    return text;
}

std::string cell(double value, int width, int decimals) {
    const auto room = static_cast<std::size_t>(width);
    const auto text = fitted(value, width, decimals);
    return text.size() < room ? std::string(room - text.size(), ' ') + text : text;
}

std::string indexed(std::string_view field, std::size_t i) {
    std::string text{field};
    text += '(';
    text += std::to_string(i);
    text += ')';
    return text;
}

} // namespace varnowb
