#include <gtest/gtest.h>

#include <set>

#include "help/help_file.h"
#include "help/help_pages.h"
#include "help/help_topics.h"
#include "support/temporary_folder.h"

namespace varno::testing {
namespace {

HelpFile builtFile() {
    return readHelpFile(contentOf(builtHelp() / "Varno.HLP"));
}

TEST(WinHelpFile, EveryContextNumberLeadsToItsTopic) {
    const HelpFile file = builtFile();
    EXPECT_EQ(file.contexts.size(), helpTopics.size());
    std::set<std::int32_t> places;
    for (const HelpTopic& topic : helpTopics) {
        std::string name(topic.name);
        for (char& c : name)
            c = c == '-' ? '_' : c;
        SCOPED_TRACE(name);
        const auto named = file.topics.find(helpTopicHash(name));
        const auto numbered = file.contexts.find(static_cast<std::int32_t>(topic.context));
        ASSERT_NE(named, file.topics.end());
        ASSERT_NE(numbered, file.contexts.end());
        EXPECT_EQ(named->second, numbered->second);
        EXPECT_TRUE(places.insert(numbered->second).second);
    }
}

TEST(WinHelpFile, ItsTitleIsInTheLettersOfWindows) {
    EXPECT_NE(builtFile().system.find("Kalvora Tessaplan - hj\xE4lp"), std::string::npos);
}

TEST(WinHelpFile, ItsButtonsAreInSwedish) {
    const HelpFile file = builtFile();
    EXPECT_NE(file.system.find("\"&Upp\""), std::string::npos);
    EXPECT_NE(file.system.find("\"&Om\""), std::string::npos);
    for (const char* english : {"&Up\"", "&About"})
        EXPECT_EQ(file.system.find(english), std::string::npos) << english;
}

TEST(WinHelpFile, ADamagedFileIsSeenAsSuch) {
    std::string bytes = contentOf(builtHelp() / "Varno.HLP");
    bytes.pop_back();
    EXPECT_THROW(readHelpFile(bytes), std::exception);
    EXPECT_THROW(readHelpFile("?_\x03"), std::exception);
}

} // namespace
} // namespace varno::testing
