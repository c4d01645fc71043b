#include "shell/help_places.h"

#include <algorithm>
#include <array>
#include <string>

#include "controls/control_ids.h"
#include "controls/rule_sets.h"
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
    constexpr std::array boxes{"falt-nllast", "falt-llfnr", "falt-avst", "falt-lllast"};
    constexpr std::array multipliers{"falt-mfbro", "falt-mfbru", "falt-mflan", "falt-mfbra"};
    if (control.box != LineLoadBox::multiplier) return boxes[static_cast<std::size_t>(control.box)];
    const auto place = static_cast<std::size_t>(control.index - 1);
    return place < multipliers.size() ? multipliers[place] : "multiplikatorer";
}

std::string helpTopicOf(std::string_view windowClass, int id) {
    if (windowClass == "VarnoMain" && id >= idFlag && id < idFlag + flagCount) return "falt-flagga";
    if (windowClass == "VarnoInputForm") {
        const auto control = controlOfId(id);
        return control ? helpTopicOf(*control) : "";
    }
    if (windowClass != "VarnoLineLoads" && windowClass != "VarnoFreeLineLoads") return {};
    const int offset = id == idLineLoadSpin ? 0 : id - idLineLoadField;
    if (offset < 0 || offset / 10 > static_cast<int>(LineLoadBox::multiplier)) return {};
    return std::string(helpTopicOf({static_cast<LineLoadBox>(offset / 10), offset % 10}));
}

std::string helpTopicOfMenu(int id) {
    const auto entry = std::ranges::find(menuTree, id, &MenuEntry::id);
    return id == 0 || entry == menuTree.end() ? "menyer" : std::string("meny-") + entry->name;
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
