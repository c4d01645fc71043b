#include "help/help_topics.h"
#include "shell/help_places.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "controls/control_ids.h"
#include "controls/rule_sets.h"
#include "help/help_pages.h"
#include "shell/menu_table.h"
#include "support/temporary_folder.h"

namespace varno::testing {
namespace {

TEST(HelpTopics, NoTopicAndNoNumberStandsTwice) {
    std::set<std::string_view> names;
    std::set<unsigned> numbers;
    for (const HelpTopic& topic : helpTopics) {
        EXPECT_TRUE(names.insert(topic.name).second) << topic.name;
        EXPECT_TRUE(numbers.insert(topic.context).second) << topic.name;
        EXPECT_NE(topic.context, 0U);
        EXPECT_EQ(helpContext(topic.name), topic.context);
    }
    EXPECT_EQ(helpContext("falt-finns-inte"), 0U);
}

TEST(HelpTopics, EveryControlOfTheFormHasATopicOfItsOwnField) {
    std::set<std::string> topics;
    for (int field = 0; field < static_cast<int>(Field::loadFrame); ++field) {
        const std::string topic = helpTopicOf(Control{static_cast<Field>(field)});
        EXPECT_NE(helpContext(topic), 0U) << field << " " << topic;
        EXPECT_TRUE(topic.starts_with("falt-")) << topic;
        topics.insert(topic);
    }
    // The spin button shares the topic of the span count.
    EXPECT_EQ(topics.size(), static_cast<std::size_t>(Field::loadFrame) - 1);
    EXPECT_EQ(helpTopicOf(Control{Field::spin1}), helpTopicOf(Control{Field::nfack}));
    EXPECT_NE(helpContext(helpTopicOf(Control{Field::loadFrame})), 0U);
}

TEST(HelpTopics, EveryBoxOfTheLineLoadEditorsHasATopic) {
    std::set<std::string_view> topics;
    for (const LineLoadBox box :
         {LineLoadBox::nllast, LineLoadBox::llfnr, LineLoadBox::avst, LineLoadBox::lllast})
        topics.insert(helpTopicOf(LineLoadControl{box, 1}));
    for (int multiplier = 1; multiplier <= 4; ++multiplier)
        topics.insert(helpTopicOf(LineLoadControl{LineLoadBox::multiplier, multiplier}));
    EXPECT_EQ(topics.size(), 8U);
    topics.insert(helpTopicOf(LineLoadControl{LineLoadBox::multiplier, 5}));
    for (const std::string_view topic : topics)
        EXPECT_NE(helpContext(topic), 0U) << topic;
}

TEST(HelpTopics, AControlIsFoundByItsNumberAndItsWindow) {
    EXPECT_EQ(helpTopicOf("VarnoInputForm", controlId({Field::upl, 3})), "falt-upl");
    EXPECT_EQ(helpTopicOf("VarnoInputForm", idFormLabel), "");
    EXPECT_EQ(helpTopicOf("VarnoMain", idFlag), "falt-flagga");
    EXPECT_EQ(helpTopicOf("VarnoMain", idFlag + flagCount - 1), "falt-flagga");
    EXPECT_EQ(helpTopicOf("VarnoMain", idFlag + flagCount), "");
    for (const char* editor : {"VarnoLineLoads", "VarnoFreeLineLoads"}) {
        EXPECT_EQ(helpTopicOf(editor, idLineLoadSpin), "falt-nllast");
        EXPECT_EQ(helpTopicOf(editor, idLineLoadField + 23), "falt-avst");
        EXPECT_EQ(helpTopicOf(editor, idLineLoadField + 44), "falt-mfbra");
        EXPECT_EQ(helpTopicOf(editor, 0), "");
        EXPECT_EQ(helpTopicOf(editor, idLineLoadField + 50), "");
    }
    EXPECT_EQ(helpTopicOf("VarnoMain", controlId({Field::upl, 3})), "");
}

TEST(HelpTopics, EveryMenuItemHasTheTopicOfItsName) {
    for (const MenuEntry& entry : menuTree) {
        if (entry.id == 0) continue;
        EXPECT_EQ(helpTopicOfMenu(entry.id), std::string("meny-") + entry.name);
        EXPECT_NE(helpContext(helpTopicOfMenu(entry.id)), 0U);
    }
    EXPECT_EQ(helpTopicOfMenu(0), "menyer");
    EXPECT_EQ(helpTopicOfMenu(idEditFont), "menyer");
    EXPECT_NE(helpContext("menyer"), 0U);
}

// That every window of the program has one is seen when the program runs: tests/gui asks for the topic of each window it
// meets.
TEST(HelpTopics, AWindowHasTheTopicOfItsClass) {
    EXPECT_EQ(helpTopicOfWindow("VarnoMain"), "fonster-huvud");
    EXPECT_EQ(helpTopicOfWindow("VarnoTypsn"), "fonster-typsnitt");
    EXPECT_EQ(helpTopicOfWindow("Edit"), "");
}

TEST(HelpTopics, AMessageBoxHasTheTopicOfItsTitle) {
    EXPECT_EQ(helpTopicOfMessage("Disk Error"), "medd-diskfel");
    EXPECT_EQ(helpTopicOfMessage("Varno"), "medd-korfel");
    EXPECT_EQ(helpTopicOfMessage(""), "meddelanden");
    for (const char* title : {"Disk Error", "Varno", ""})
        EXPECT_NE(helpContext(helpTopicOfMessage(title)), 0U);
}

} // namespace
} // namespace varno::testing
