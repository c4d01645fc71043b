#include "engine/columns.h"

#include <charconv>

#include "base/numbers.h"
#include "base/text.h"

namespace varno::engine {

namespace {

std::string blanksBeside(std::string_view text, std::size_t width) {
    const std::size_t used = characterCount(text);
    return std::string(used < width ? width - used : 0, ' ');
}

} // namespace

std::string fitted(double value, std::size_t width, int decimals) {
    std::string text = formatNumber(value, "0." + std::string(static_cast<std::size_t>(decimals), '0'));
    for (int digits = 4; text.size() > width && digits >= 0; --digits) {
        char shorter[32];
        text.assign(shorter, std::to_chars(std::begin(shorter), std::end(shorter), value,
                                           std::chars_format::scientific, digits)
                                 .ptr);
    }
    return text;
}

std::string right(const std::string& text, std::size_t width) {
    return blanksBeside(text, width) + text;
}
std::string left(std::string_view text, std::size_t width) {
    return std::string(text) + blanksBeside(text, width);
}

std::string cell(double value, std::size_t width, int decimals) {
    return right(fitted(value, width, decimals), width);
}
std::string cell(int value, std::size_t width) {
    return right(std::to_string(value), width);
}

std::string indexed(std::string_view field, int i) {
    return std::string(field) + "(" + std::to_string(i) + ")";
}

} // namespace varno::engine
