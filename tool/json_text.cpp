#include "tool/json_text.h"

#include <cstdio>

namespace varno::tool {

std::string jsonOf(const std::string& utf8) {
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

} // namespace varno::tool
