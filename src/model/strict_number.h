#pragma once

#include <algorithm>
#include <charconv>
#include <string>
#include <system_error>

namespace varno {

/// Reads a text that is one number and nothing else: a sign, digits with at most one point, an exponent with E or D.
/// Gives errc::invalid_argument for any other text and errc::result_out_of_range for a number that `Number` does not
/// hold.
template <typename Number>
std::errc readStrictly(std::string text, Number& number) {
    std::ranges::replace_if(
        text, [](char c) { return c == 'd' || c == 'D'; }, 'e');
    // Only these: from_chars would take "inf" and "nan" for numbers.
    if (text.find_first_not_of("0123456789+-.eE") != std::string::npos || text.starts_with("+-"))
        return std::errc::invalid_argument;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data() + (text.starts_with('+') ? 1 : 0), end, number);
    return read.ptr == end ? read.ec : std::errc::invalid_argument;
}

} // namespace varno
