#pragma once

#include <string>
#include <string_view>

namespace varno::tool {

/// A text as the content or the attribute of an element of HTML or SVG. Control characters, which neither may hold, are
/// blanks.
inline std::string escaped(std::string_view text) {
    std::string out;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '&')
            out += "&amp;";
        else if (c == '<')
            out += "&lt;";
        else if (c == '>')
            out += "&gt;";
        else if (c == '"')
            out += "&quot;";
        else if ((byte < 0x20 && c != '\n') || byte == 0x7F)
            out += ' ';
        else
            out += c;
    }
    return out;
}

/// <name>text</name>, the text escaped.
inline std::string element(std::string_view name, std::string_view text) {
    const std::string tag(name);
    return "<" + tag + ">" + escaped(text) + "</" + tag.substr(0, tag.find(' ')) + ">";
}

} // namespace varno::tool
