#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace varno::testing {

/// What a help viewer reads of a WinHelp file to find a topic.
struct HelpFile {
    std::map<std::int32_t, std::int32_t> topics;   ///< hash of a topic's name, to its place in the text
    std::map<std::int32_t, std::int32_t> contexts; ///< context number, to the same
    std::string system;                            ///< the content of |SYSTEM
};

/// Reads the file from its bytes. \throws std::exception for one that is damaged.
HelpFile readHelpFile(const std::string& bytes);

/// The hash of a topic name of letters, digits and "_".
std::int32_t helpTopicHash(std::string_view name);

} // namespace varno::testing
