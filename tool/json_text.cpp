#include "tool/json_text.h"

#include <cmath>
#include <cstdio>

#include "base/numbers.h"

namespace varno::tool {

namespace {

// The general form has no sign for a zero, a real may have one.
template <typename Real>
std::string numberOf(Real value) {
    return value == 0 && std::signbit(value) ? "-0.0" : generalForm(value);
}

} // namespace

std::string jsonText(const std::string& utf8) {
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

std::string jsonNumber(float value) {
    return numberOf(value);
}

std::string jsonNumber(double value) {
    return numberOf(value);
}

} // namespace varno::tool
