#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace varno::tool {

/// The name that a mistyped word was most likely meant to be; empty when none is near.
std::string nearestName(std::string_view word, const std::vector<std::string>& names);

/// The end of a sentence about a word that is unknown: "; menade Du \"spv\"?", or ".".
std::string suggestion(std::string_view word, const std::vector<std::string>& names);

} // namespace varno::tool
