#include "tool/command_line.h"

#include <gtest/gtest.h>

#include <sstream>

#include "support/case_files.h"
#include "support/memory_files.h"
#include "tool/command_table.h"
#include "tool/fake_engines.h"
#include "tool/told.h"

namespace varno {

namespace {

using testing::expectTold;

class CommandLine : public ::testing::Test {
  protected:
    int run(const std::vector<std::string>& arguments) {
        out.str("");
        err.str("");
        return tool::runTool(arguments, {files, in, out, err, engines});
    }

    testing::MemoryFiles files;
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    testing::FakeEngines engines;
};

TEST_F(CommandLine, RunsItsCommands) {
    files.content["Åäö prov/A.IND"] = testing::sampleFile();
    files.content["A.res"] = "text\r\n";
    EXPECT_EQ(run({"json", "Åäö prov/A.IND"}), 0);
    EXPECT_TRUE(out.str().starts_with("{\n  \"currentFileName\": \"NAMNLÖS\",\n"));
    EXPECT_EQ(run({"show", "Åäö prov/A.IND"}), 0);
    EXPECT_TRUE(out.str().starts_with("NAMNLÖS.IND\n"));
    EXPECT_EQ(run({"result", "A.res"}), 0);
    EXPECT_EQ(out.str(), "\r\ntext");
    EXPECT_EQ(run({"rewrite", "Åäö prov/A.IND", "/B.IND"}), 0);
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(files.content["/B.IND"], testing::sampleFile());
    EXPECT_EQ(err.str(), "");
}

TEST_F(CommandLine, TellsARunTimeErrorAndEndsWith1) {
    EXPECT_EQ(run({"json", "MISSING.IND"}), 1);
    expectTold(err.str(), "Filen MISSING.IND finns inte.", "52: Bad file name or number");
    EXPECT_EQ(out.str(), "");
    files.content["A.IND"] = testing::sampleFileWith(3, std::to_string(maxLoadCode + 1));
    EXPECT_EQ(run({"show", "A.IND"}), 1);
    expectTold(err.str(),
               "I filen A.IND står på rad 4 ett nummer eller ett antal som inte finns, till exempel fler än "
               "15 fack.",
               "9: Subscript out of range");
    files.content["A.IND"] = testing::sampleFileWith(5, "99999");
    EXPECT_EQ(run({"json", "A.IND"}), 1);
    expectTold(err.str(), "I filen A.IND står på rad 5 ett tal som är för stort.", "6: Overflow");
    files.content["A.IND"] = "A\r\n";
    EXPECT_EQ(run({"rewrite", "A.IND", "A.IND"}), 1);
    expectTold(
        err.str(),
        "Filen A.IND tar slut på rad 2 innan allt är läst: den är tom, avklippt eller av ett annat slag.",
        "62: Input past end of file");
    EXPECT_EQ(files.content["A.IND"], "A\r\n");
}

TEST_F(CommandLine, TellsAFileErrorOnceAndEnds) {
    files.fault = [](const std::string&, const std::string&) { return errPathNotFound; };
    EXPECT_EQ(run({"json", "X:\\A.IND"}), 1);
    expectTold(err.str(), "Disk Error: Path Does Not Exist\nMappen för filen X:\\A.IND finns inte.",
               "52: Bad file name or number");
}

TEST_F(CommandLine, WrongUsageEndsWith2) {
    const std::vector<std::string> wrong[] = {
        {},
        {"nonsense"},
        {"json"},
        {"json", "a", "b"},
        {"rewrite", "a"},
        {"result"},
        {"rewrite", "a", "b", "c"},
        {"--nonsense"},
        {"json", "--nonsense", "a"},
        {"show"},
        {"json", "a", "show", "b"},
    };
    for (const auto& arguments : wrong) {
        EXPECT_EQ(run(arguments), 2) << ::testing::PrintToString(arguments);
        EXPECT_TRUE(err.str().starts_with("Fel användning: "));
        EXPECT_NE(err.str().find("Användning: varnotool"), std::string::npos) << err.str();
        EXPECT_EQ(out.str(), "");
    }
    EXPECT_TRUE(files.calls.empty());
}

TEST_F(CommandLine, NamesTheArgumentThatIsWrong) {
    const std::pair<std::vector<std::string>, std::string> wrong[] = {
        {{}, "ett kommando saknas."},
        {{"nonsense"}, "kommandot \"nonsense\" finns inte."},
        {{"jsno", "A.IND"}, "kommandot \"jsno\" finns inte; menade Du \"json\"?"},
        {{"--nonsense"}, "valet \"--nonsense\" finns inte."},
        {{"rewrite", "A.IND"}, "varnotool rewrite: argumentet UT saknas."},
        {{"check"}, "varnotool check: argumentet FIL saknas."},
        {{"json", "A.IND", "B.IND"}, "varnotool json: argumentet \"B.IND\" är ett för mycket eller okänt."},
        {{"json", "--usde", "A.IND"},
         "varnotool json: argumentet \"--usde\" är ett för mycket eller okänt; menade Du \"--used\"?"},
        {{"sketch", "A.IND", "--svg"}, "varnotool sketch: valet --svg väntar ett värde."},
        {{"sketch", "A.IND"}, "varnotool sketch: ange antingen --list eller --svg UT."},
    };
    for (const auto& [arguments, complaint] : wrong) {
        EXPECT_EQ(run(arguments), 2) << complaint;
        EXPECT_TRUE(err.str().starts_with("Fel användning: " + complaint + "\n")) << err.str();
    }
}

TEST_F(CommandLine, TellsItsVersion) {
    EXPECT_EQ(run({"--version"}), 0);
    EXPECT_EQ(out.str(), "varnotool " VARNO_VERSION "\n");
}

TEST_F(CommandLine, ReadsTheStandardInputAsAFile) {
    in.str(testing::sampleFile());
    EXPECT_EQ(run({"show", "-"}), 0);
    EXPECT_TRUE(out.str().starts_with("NAMNLÖS.IND\n"));
    in = std::istringstream("A\r\n");
    EXPECT_EQ(run({"json", "-"}), 1);
    EXPECT_TRUE(err.str().starts_with("Filen på standard in tar slut på rad 2 ")) << err.str();
    EXPECT_TRUE(files.calls.empty());
}

TEST_F(CommandLine, EveryHelpHasExamples) {
    for (const tool::CommandRow& command : tool::commandTable()) {
        EXPECT_EQ(run({command.name, "--help"}), 0);
        EXPECT_NE(out.str().find("Exempel:\n"), std::string::npos) << command.name;
        ASSERT_FALSE(command.examples.empty()) << command.name;
        for (const tool::Example& example : command.examples)
            EXPECT_NE(out.str().find(example.line), std::string::npos) << out.str();
    }
}

TEST_F(CommandLine, ExplainsItselfInSwedish) {
    EXPECT_EQ(run({"--help"}), 0);
    for (const char* part : {"Användning: varnotool [VAL] KOMMANDO", "json", "rewrite", "result", "show",
                             "Visar den här hjälpen"})
        EXPECT_NE(out.str().find(part), std::string::npos) << part;
    EXPECT_EQ(err.str(), "");
    EXPECT_EQ(run({"rewrite", "--help"}), 0);
    EXPECT_NE(out.str().find("Användning: varnotool rewrite [VAL] IN UT"), std::string::npos) << out.str();
    for (const char* english : {"Usage", "Options", "OPTIONS", "REQUIRED", "TEXT", "Positionals"})
        EXPECT_EQ(out.str().find(english), std::string::npos) << english;
}

} // namespace

} // namespace varno
