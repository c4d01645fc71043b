#include "tool/console.h"

namespace varno::tool {

std::vector<std::string> utf8Arguments(int count, char** values) {
    return count > 0 ? std::vector<std::string>(values + 1, values + count) : std::vector<std::string>();
}

Utf8Output::Utf8Output() = default;
Utf8Output::~Utf8Output() = default;

} // namespace varno::tool
