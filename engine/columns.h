#pragma once

#include <string>
#include <string_view>

// Numbers and words in columns of fixed pitch.

namespace varno::engine {

/// `decimals` decimals, or an exponent when that takes more than `width` characters.
std::string fitted(double value, std::size_t width, int decimals);

/// A text (UTF-8) set to the right, or to the left, in `width` characters.
std::string right(const std::string& text, std::size_t width);
std::string left(std::string_view text, std::size_t width);

std::string cell(double value, std::size_t width, int decimals);
std::string cell(int value, std::size_t width);

/// A field and its index, "spv(3)".
std::string indexed(std::string_view field, int i);

} // namespace varno::engine
