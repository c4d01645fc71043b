// Numbers as text, always with a point as decimal sign: the C locale is never asked.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace varnowb {

// The number that a cell or a line holds, blanks around it allowed. The first comma counts as the decimal
// point and D as the E of an exponent. Nothing when the text is empty, holds anything else or is beyond a
// double.
std::optional<double> readNumber(std::string_view text);

// A whole number of 16 bits written in the same way ("3", " 3", "3.000").
std::optional<int> readWhole(std::string_view text);

// Exactly `decimals` decimals; never a minus sign before a zero.
std::string fixed(double value, int decimals);

// fixed(), or with an exponent when that takes more than `width` characters.
std::string fitted(double value, int width, int decimals);

// fitted() set to the right in `width` characters.
std::string cell(double value, int width, int decimals);

// A field and its index, "spv(3)".
std::string indexed(std::string_view field, std::size_t i);

} // namespace varnowb
