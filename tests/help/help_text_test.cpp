#include <gtest/gtest.h>

#include <set>
#include <string>

#include "help/help_pages.h"
#include "help/help_topics.h"
#include "support/temporary_folder.h"

namespace varno::testing {
namespace {

struct Heading {
    std::string keyword;
    std::string winHelpTopic;
};

// Chapters and sections of the source, each with the topic name that its next paragraph gives it.
std::vector<Heading> headingsOfSource() {
    const std::string source = "\n" + helpSource();
    std::vector<Heading> headings;
    for (const char* command : {"\n\\C{", "\n\\H{", "\n\\S{"}) {
        for (auto at = source.find(command); at != std::string::npos; at = source.find(command, at + 1)) {
            const auto start = at + 4;
            const auto end = source.find('}', start);
            const auto next = source.find("\n\n", end) + 2;
            const std::string given = "\\cfg{winhelp-topic}{";
            const bool named = source.compare(next, given.size(), given) == 0;
            const auto name = next + given.size();
            headings.push_back({source.substr(start, end - start),
                                named ? source.substr(name, source.find('}', name) - name) : ""});
        }
    }
    return headings;
}

std::string winHelpName(std::string topic) {
    for (char& c : topic)
        c = c == '-' ? '_' : c;
    return topic;
}

TEST(HelpText, TheSourceHasEveryTopicOnceAndNoOther) {
    std::set<std::string> found;
    for (const Heading& heading : headingsOfSource()) {
        EXPECT_TRUE(found.insert(heading.keyword).second) << heading.keyword;
        EXPECT_EQ(heading.winHelpTopic, winHelpName(heading.keyword));
        EXPECT_NE(helpContext(heading.keyword), 0U) << heading.keyword;
    }
    for (const HelpTopic& topic : helpTopics)
        EXPECT_TRUE(found.contains(std::string(topic.name))) << topic.name;
}

TEST(HelpText, ThePageHasAnAnchorForEveryTopic) {
    for (const HelpTopic& topic : helpTopics)
        EXPECT_EQ(occurrences(helpPage(), "<a name=\"" + std::string(topic.name) + "\">"), 1U) << topic.name;
}

TEST(HelpText, EveryReferenceOfThePageLeadsSomewhere) {
    const auto references = between(helpPage(), "href=\"", "\"");
    EXPECT_GT(references.size(), 100U);
    for (const std::string& reference : references) {
        ASSERT_TRUE(reference.starts_with("#")) << reference;
        EXPECT_EQ(occurrences(helpPage(), "<a name=\"" + reference.substr(1) + "\">"), 1U) << reference;
    }
}

// The rows of the index: "spännvidd: <a href=...>Avsnitt 2.2</a>, ...".
std::string index() {
    const std::string heading = "<h2><a name=\"Register\"></a>Register</h2>";
    const auto start = helpPage().find(heading);
    return start == std::string::npos ? "" : helpPage().substr(start + heading.size());
}

TEST(HelpText, TheIndexLeadsToEveryFieldWindowAndMessage) {
    std::set<std::string> led;
    for (const std::string& reference : between(index(), "href=\"#", "\"")) {
        const auto place = helpPage().find("<a name=\"" + reference + "\">");
        ASSERT_NE(place, std::string::npos) << reference;
        // The heading that the place stands under.
        const std::string before = helpPage().substr(0, place);
        const auto heading = before.rfind("\n<h");
        ASSERT_NE(heading, std::string::npos) << reference;
        led.insert(between(helpPage().substr(heading), "<a name=\"", "\"").front());
    }
    for (const HelpTopic& topic : helpTopics) {
        const std::string name(topic.name);
        if (name.starts_with("falt-") || name.starts_with("medd-") || name.starts_with("fil-")) {
            EXPECT_TRUE(led.contains(name)) << name;
        }
    }
    for (const char* name : {"korning", "fonster-utdata", "fonster-diagram", "fonster-filnamn",
                             "fonster-typsnitt", "fonster-ta-bort", "tangenter"})
        EXPECT_TRUE(led.contains(name)) << name;
}

TEST(HelpText, TheIndexIsInSwedishOrder) {
    std::size_t last = 0;
    for (const char* term : {"\nansvar: ", "\nBKR: ", "\nmotor: ", "\nmotor, byta: ", "\nundertak: ",
                             "\nångra, Ctrl+Z: ", "\näldre än indata: ", "\nöppna ett fall: "}) {
        const auto at = index().find(term);
        ASSERT_NE(at, std::string::npos) << term;
        EXPECT_GT(at, last) << term;
        last = at;
    }
}

TEST(HelpText, APageOfItsOwnLeadsToEachTopic) {
    for (const HelpTopic& topic : helpTopics) {
        const std::string name(topic.name);
        const std::string page = contentOf(builtHelp() / "html" / "amnen" / (name + ".html"));
        EXPECT_NE(page.find("url=../index.html#" + name + "\""), std::string::npos) << name;
    }
}

TEST(HelpText, EveryPictureStandsUnderItsHeadingWithAText) {
    int pictures = 0;
    for (const std::string& line :
         between("\n" + contentOf(sourceFolder() / "help/pictures/pictures.txt"), "\nfonster-", "\n")) {
        SCOPED_TRACE(line);
        const auto bar = line.find(" | ");
        const auto second = line.find(" | ", bar + 3);
        const std::string topic = "fonster-" + line.substr(0, bar);
        const std::string file = line.substr(bar + 3, second - bar - 3);
        const auto heading = helpPage().find("<a name=\"" + topic + "\">");
        ASSERT_NE(heading, std::string::npos);
        const auto after = helpPage().find('\n', heading) + 1;
        const std::string image =
            "<p><img src=\"bilder/" + file + "\" alt=\"" + line.substr(second + 3) + "\"></p>";
        EXPECT_EQ(helpPage().substr(after, image.size()), image);
        const auto size = std::filesystem::file_size(builtHelp() / "html" / "bilder" / file);
        EXPECT_GT(size, 1000U);
        EXPECT_LT(size, 60000U);
        ++pictures;
    }
    EXPECT_EQ(static_cast<std::size_t>(pictures), occurrences(helpPage(), "<img "));
    EXPECT_GE(pictures, 8);
}

TEST(HelpText, NothingIsLeftUntranslatedAndNoLetterIsBroken) {
    EXPECT_NE(helpPage().find("charset=UTF-8"), std::string::npos);
    EXPECT_EQ(occurrences(helpPage(), "\xEF\xBF\xBD"), 0U); // the replacement character
    for (const char* english : {"Chapter ", "Section ", "Contents"})
        EXPECT_EQ(occurrences(readText(), english), 0U) << english;
    EXPECT_EQ(occurrences(readText(), "ryssrutan"), 0U); // what closes a window is no check box
    EXPECT_NE(readText().find("exempelmotor"), std::string::npos);
}

} // namespace
} // namespace varno::testing
