#include "tool/manual.h"

#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "tool/command_table.h"

namespace varno {

namespace {

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

std::string escaped(const std::string& text) {
    return std::regex_replace(text, std::regex("-"), "\\-");
}

TEST(ManualPage, NamesEveryCommandAndOption) {
    const std::string page = tool::manualPage();
    for (const tool::CommandRow& command : tool::commandTable()) {
        EXPECT_NE(page.find(std::string("\n.SS ") + command.name + "\n"), std::string::npos) << command.name;
        EXPECT_NE(page.find("\n" + escaped(command.description) + ".\n"), std::string::npos) << command.name;
        for (const tool::Parameter& parameter : command.parameters) {
            const std::string name = escaped(parameter.name);
            EXPECT_NE(page.find("\n.TP\n\\f" + std::string(parameter.isOption() ? "B" : "I") + name + "\\fR"),
                      std::string::npos)
                << name;
        }
    }
    EXPECT_NE(
        page.find("\n\\fBvarnotool\\fR \\fBrun\\fR \\fIFIL\\fR... \\fB\\-\\-engine\\fR \\fIKOMMANDO\\fR "
                  "[\\fB\\-\\-jobs\\fR \\fIN\\fR] "),
        std::string::npos);
    EXPECT_NE(page.find(".SH SLUTKODER\n.TP\n\\fB0\\fR\nklart\n"), std::string::npos) << page;
    EXPECT_NE(page.find("\\fB130\\fR\n"), std::string::npos);
}

// A line that begins with a point or an apostrophe is a request; everything else that troff would take for its own must
// be written out.
TEST(ManualPage, IsWhatTroffReads) {
    const std::regex request(R"(\.(TH VARNOTOOL 1 .*|SH [A-ZÅÄÖ]+|SS [a-z]+|PP|TP|nh|ad l))");
    const std::regex text(R"(([^\\-]|\\-|\\e|\\&|\\f[BIR])+)");
    for (const std::string& line : linesOf(tool::manualPage())) {
        const bool isRequest = line.starts_with('.') || line.starts_with('\'');
        EXPECT_TRUE(std::regex_match(line, isRequest ? request : text)) << line;
    }
}

} // namespace

} // namespace varno
