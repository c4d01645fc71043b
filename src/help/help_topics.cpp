#include "help/help_topics.h"

#include <algorithm>

namespace varno {

unsigned helpContext(std::string_view topic) {
    const auto found = std::ranges::find(helpTopics, topic, &HelpTopic::name);
    return found == helpTopics.end() ? 0 : found->context;
}

} // namespace varno
