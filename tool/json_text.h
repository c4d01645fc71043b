#pragma once

#include <string>

namespace varno::tool {

/// A UTF-8 text as a JSON string, quotes included.
std::string jsonText(const std::string& utf8);

/// The shortest JSON number that reads back as the same value.
std::string jsonNumber(float value);
std::string jsonNumber(double value);

} // namespace varno::tool
