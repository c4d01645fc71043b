#include "shell/help_places.h"

#include <algorithm>
#include <array>
#include <string>

#include "controls/rule_sets.h"
#include "help/help_topics.h"
#include "input/field_table.h"
#include "shell/menu_table.h"

namespace varno {

namespace {

struct WindowTopic {
    std::string_view className;
    std::string_view topic;
};

constexpr std::array windowTopics{
    WindowTopic{"VarnoMain", "fonster-huvud"},
    WindowTopic{"VarnoInputForm", "fonster-indata"},
    WindowTopic{"VarnoForm10", "fonster-nyheter"},
    WindowTopic{"VarnoForm9", "fonster-viktigt"},
    WindowTopic{"VarnoSavePrompt", "fonster-spara"},
    WindowTopic{"VarnoFileInfo", "fonster-filnamn"},
    WindowTopic{"VarnoForm6", "fonster-utdata"},
    WindowTopic{"VarnoTypsn", "fonster-typsnitt"},
    WindowTopic{"VarnoLineLoads", "fonster-linjelaster"},
    WindowTopic{"VarnoFreeLineLoads", "fonster-fria-linjelaster"},
    WindowTopic{"VarnoMomkurva", "fonster-diagram"},
    WindowTopic{"VarnoDelFile", "fonster-ta-bort"},
    WindowTopic{"VarnoVeri", "fonster-bekrafta"},
    WindowTopic{"VarnoHelp", "fonster-hjalp"},
};

} // namespace

std::string helpTopicOf(Control control) {
    if (const RuleSet* rules = ruleSetWith(&RuleSet::classGroup, control.field)) return rules->helpTopic;
    const std::string topic = fieldTopic(control.field);
    return topic.empty() ? "laster" : topic;
}

std::string_view helpTopicOf(LineLoadControl control) {
    switch (control.box) {
    case LineLoadBox::nllast:
        return "falt-nllast";
    case LineLoadBox::llfnr:
        return "falt-llfnr";
    case LineLoadBox::avst:
        return "falt-avst";
    case LineLoadBox::lllast:
        return "falt-lllast";
    case LineLoadBox::multiplier:
        break;
    }
    constexpr std::array<std::string_view, 4> multipliers{"falt-mfbro", "falt-mfbru", "falt-mflan",
                                                          "falt-mfbra"};
    const auto place = static_cast<std::size_t>(control.index - 1);
    return place < multipliers.size() ? multipliers[place] : "multiplikatorer";
}

std::string_view helpTopicOfMenu(int id) {
    for (const MenuEntry& entry : menuTree) {
        if (id == 0 || entry.id != id) continue;
        return helpTopicOfContext(helpContext(std::string("meny-") + entry.name));
    }
    return "menyer";
}

std::string_view helpTopicOfWindow(std::string_view className) {
    const auto found = std::ranges::find(windowTopics, className, &WindowTopic::className);
    return found == windowTopics.end() ? std::string_view() : found->topic;
}

std::string_view helpTopicOfMessage(std::string_view title) {
    if (title == "Disk Error") return "medd-diskfel";
    if (title == "Varno") return "medd-korfel";
    return "meddelanden";
}

} // namespace varno
