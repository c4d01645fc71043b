#pragma once

#include <span>
#include <string_view>

// The topics of the help. Help is asked for by context number, `WinHelp` with HELP_CONTEXT.

namespace varno {

struct HelpTopic {
    std::string_view name;
    unsigned context;
};

/// The rows of help/topics.txt, from which the build makes this table.
extern const std::span<const HelpTopic> helpTopics;

/// 0 for a topic that is not in the table.
unsigned helpContext(std::string_view topic);

} // namespace varno
