#pragma once

#include <cmath>
#include <cstdio>
#include <string>
#include <type_traits>

#include "base/numbers.h"

namespace varno::tool {

/// A UTF-8 text as a JSON string, quotes included.
inline std::string jsonOf(const std::string& utf8) {
    std::string out = "\"";
    for (const char c : utf8) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (byte < 0x20 || byte == 0x7F) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(byte));
            out += escape;
        } else {
            out += c;
        }
    }
    return out + '"';
}

/// A truth value, or the shortest number that reads back as the same value.
template <typename Value>
requires std::is_arithmetic_v<Value> std::string jsonOf(Value value) {
    if constexpr (std::is_same_v<Value, bool>)
        return value ? "true" : "false";
    else if constexpr (std::is_integral_v<Value>)
        return std::to_string(value);
    else // the general form has no sign for a zero, a real may have one
        return value == 0 && std::signbit(value) ? "-0.0" : generalForm(value);
}

} // namespace varno::tool
