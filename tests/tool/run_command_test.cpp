#include <fstream>
#include <gtest/gtest.h>

#include <sstream>

#include "support/case_files.h"
#include "support/memory_files.h"
#include "support/temporary_folder.h"
#include "tool/batch_run.h"
#include "tool/command_line.h"
#include "tool/fake_engines.h"

namespace varno {

namespace {

namespace fs = std::filesystem;
using tool::Milliseconds;

// Cases on a disk in memory, their folders on the real one.
class RunCommand : public ::testing::Test {
  protected:
    void SetUp() override {
        for (const char* name : {"A", "B", "C"})
            files.content[name + std::string(".IND")] = testing::sampleFile();
        engines.work = [this](const std::string& path, int) { writeResult(path); };
    }
    void writeFile(const std::string& path, const std::string& name, const std::string& text = "x") {
        std::ofstream(tool::pathOf(path) / name, std::ios::binary) << text;
    }
    void writeResult(const std::string& path) {
        writeFile(path, "NAMN.res");
        writeFile(path, "momk.dat");
    }
    int run(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "run");
        for (const char* word : {"--engine", "motor fast", "--out"})
            arguments.emplace_back(word);
        arguments.push_back(folder.path("ut"));
        out.str("");
        err.str("");
        return tool::runTool(arguments, {files, in, out, err, engines});
    }
    /// What stands in the folder of the run, "A/A.IND".
    std::set<std::string> results() const {
        std::set<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(folder.file("ut"))) {
            const fs::path name = entry.path().lexically_relative(folder.file("ut"));
            names.insert(name.generic_string());
        }
        return names;
    }
    std::string contentOf(const std::string& name) const {
        return testing::contentOf(folder.file("ut") / name);
    }

    testing::TemporaryFolder folder;
    testing::MemoryFiles files;
    testing::FakeEngines engines;
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
};

TEST_F(RunCommand, CalculatesEveryCaseInAFolderOfItsOwn) {
    engines.work = [this](const std::string& path, int) {
        EXPECT_TRUE(path.ends_with(".~tmp")) << path;
        EXPECT_EQ(testing::contentOf(tool::pathOf(path) / "~indata~.tmp"), testing::sampleFile());
        writeResult(path);
    };
    EXPECT_EQ(run({"A.IND", "B.IND"}), 0);
    EXPECT_EQ(out.str(), "2 fall beräknade.\n");
    EXPECT_EQ(err.str(), "");
    EXPECT_EQ(results(), (std::set<std::string>{"A", "A/A.IND", "A/NAMN.res", "A/momk.dat", "B", "B/B.IND",
                                                "B/NAMN.res", "B/momk.dat"}));
    EXPECT_EQ(contentOf("A/A.IND"), testing::sampleFile());
    EXPECT_EQ(engines.started[0].words, (std::vector<std::string>{"motor", "fast"}));
    EXPECT_EQ(engines.held.size(), 0U);
}

TEST_F(RunCommand, RunsAsManyAtOnceAsItIsTold) {
    EXPECT_EQ(run({"A.IND", "B.IND", "C.IND", "--jobs", "1"}), 0);
    EXPECT_EQ(engines.most, 1U);
    fs::remove_all(folder.file("ut"));
    EXPECT_EQ(run({"A.IND", "B.IND", "C.IND"}), 0);
    EXPECT_EQ(engines.most, 2U) << "as many as the machine has cores";
}

TEST_F(RunCommand, CalculatesNoCaseTwice) {
    EXPECT_EQ(run({"A.IND", "B.IND"}), 0);
    EXPECT_EQ(run({"A.IND", "B.IND", "C.IND"}), 0);
    EXPECT_EQ(out.str(), "1 fall beräknat, 2 fanns redan.\n");
    EXPECT_EQ(engines.started.size(), 3U);
}

TEST_F(RunCommand, CalculatesNoCaseThatAnotherProcessHasJustFinished) {
    engines.beforeLock = [this] {
        fs::create_directories(folder.file("ut") / "A");
        writeFile(folder.path("ut/A"), "A.IND", testing::sampleFile());
        writeResult(folder.path("ut/A"));
    };
    EXPECT_EQ(run({"A.IND"}), 0);
    EXPECT_EQ(out.str(), "0 fall beräknade, 1 fanns redan.\n");
    EXPECT_EQ(engines.started.size(), 0U);
}

TEST_F(RunCommand, CalculatesAgainWhatHasChanged) {
    EXPECT_EQ(run({"A.IND"}), 0);
    files.content["A.IND"] = testing::sampleFileWith(20, "33");
    engines.work = [this](const std::string& path, int) {
        writeFile(path, "NYTT.RES");
        writeFile(path, "MOMK.DAT");
    };
    EXPECT_EQ(run({"A.IND"}), 0);
    EXPECT_EQ(results(), (std::set<std::string>{"A", "A/A.IND", "A/NYTT.RES", "A/MOMK.DAT"}));
    EXPECT_EQ(contentOf("A/A.IND"), files.content["A.IND"]);
}

TEST_F(RunCommand, AFailedCaseIsToldAndRepeatedAlone) {
    engines.work = [this](const std::string& path, int child) {
        if (child != 1) writeResult(path);
        writeFile(path, "motor.txt", child == 1 ? "ont om plats" : "");
    };
    engines.code = [](int child) { return child == 1 ? 7L : 0L; };
    EXPECT_EQ(run({"A.IND", "B.IND", "--jobs", "1"}), 3);
    EXPECT_EQ(out.str(), "A.IND: Motorn skrev ingen resultatfil (slutkod 7). Se mappen " +
                             folder.path("ut/A.fel") + ".\n1 fall beräknat, 1 misslyckades.\n");
    EXPECT_EQ(results(), (std::set<std::string>{"A.fel", "A.fel/A.IND", "A.fel/motor.txt", "B", "B/B.IND",
                                                "B/NAMN.res", "B/momk.dat"}));
    EXPECT_EQ(run({"A.IND", "B.IND"}), 0);
    EXPECT_EQ(engines.started.size(), 3U);
    EXPECT_FALSE(results().contains("A.fel"));
    EXPECT_TRUE(results().contains("A/NAMN.res"));
}

TEST_F(RunCommand, TellsWhatAnEngineLeftOut) {
    engines.work = [this](const std::string& path, int) { writeFile(path, "A.res"); };
    engines.code = [](int) { return 1L; };
    EXPECT_EQ(run({"A.IND"}), 3);
    EXPECT_TRUE(out.str().starts_with(
        "A.IND: Motorn skrev inga momentkurvor (slutkod 1); varför står i resultatfilen."))
        << out.str();
    engines.work = [this](const std::string& path, int) { writeFile(path, "A.res", ""); };
    EXPECT_EQ(run({"A.IND"}), 3);
    EXPECT_TRUE(out.str().starts_with("A.IND: Motorn skrev ingen resultatfil")) << "an empty file is none";
}

TEST_F(RunCommand, WhatAnEngineEndsWithIsNotLookedAt) {
    engines.code = [](int) { return 42L; };
    EXPECT_EQ(run({"A.IND"}), 0);
}

TEST_F(RunCommand, WhatACrashedEngineWroteIsNoResult) {
    engines.crashed = {1};
    engines.code = [](int) { return 11L; };
    EXPECT_EQ(run({"A.IND"}), 3);
    EXPECT_TRUE(out.str().starts_with("A.IND: Motorn avbröts (11).")) << out.str();
    EXPECT_FALSE(results().contains("A"));
}

TEST_F(RunCommand, EndsAnEngineThatTakesTooLong) {
    engines.takes = [](int child) { return Milliseconds(child == 1 ? 3000 : 500); };
    EXPECT_EQ(run({"A.IND", "B.IND", "C.IND", "--jobs", "2", "--timeout", "1.5"}), 3);
    EXPECT_TRUE(out.str().starts_with("A.IND: Motorn var inte klar inom 1,5 s. Se mappen ")) << out.str();
    EXPECT_EQ(engines.killed, std::vector<int>{1});
    EXPECT_EQ(engines.clock, Milliseconds(1500)) << "the others did not wait for it";
    EXPECT_TRUE(results().contains("C/momk.dat"));
    EXPECT_FALSE(results().contains("A"));
}

TEST_F(RunCommand, AnEndThatIsAskedForLeavesNoEngineAndNoHalfResult) {
    engines.interruptedAfter = 1;
    EXPECT_EQ(run({"A.IND", "B.IND", "C.IND", "--jobs", "2"}), 130);
    EXPECT_EQ(engines.running.size(), 0U);
    EXPECT_EQ(engines.started.size() - engines.ended.size(), engines.killed.size());
    EXPECT_GT(engines.killed.size(), 0U);
    for (const std::string& name : results())
        EXPECT_EQ(name.find('~'), std::string::npos) << name;
    EXPECT_NE(out.str().find("; körningen avbröts.\n"), std::string::npos) << out.str();
    engines.wasInterrupted = false;
    engines.interruptedAfter = 99;
    EXPECT_EQ(run({"A.IND", "B.IND", "C.IND"}), 0) << "and can be gone on with";
}

TEST_F(RunCommand, AnEngineThatCannotBeStartedEndsTheRun) {
    engines.startError = errFileNotFound;
    EXPECT_EQ(run({"A.IND", "B.IND"}), 1);
    EXPECT_EQ(err.str(), "Motorn kan inte startas. Filen motor finns inte.\n");
    EXPECT_EQ(results(), std::set<std::string>{});
}

TEST_F(RunCommand, AFolderThatCannotBeMadeIsNamed) {
    folder.write("ut", "a file");
    EXPECT_EQ(run({"A.IND"}), 1);
    EXPECT_NE(err.str().find(folder.path("ut")), std::string::npos) << err.str();
    EXPECT_NE(err.str().find("\nrun-time error "), std::string::npos) << err.str();
}

TEST_F(RunCommand, AFileThatIsNoCaseFailsAndTheOthersGoOn) {
    files.content["B.IND"] = "kort\r\n";
    EXPECT_EQ(run({"A.IND", "SAKNAS.IND", "B.IND", "C.IND"}), 3);
    EXPECT_TRUE(out.str().starts_with("SAKNAS.IND: Filen SAKNAS.IND finns inte.\n"
                                      "B.IND: Filen B.IND tar slut på rad 2 "))
        << out.str();
    EXPECT_TRUE(out.str().ends_with("\n2 fall beräknade, 2 misslyckades.\n"));
}

TEST_F(RunCommand, ACaseThatAnotherProcessWorksAtIsLeftToIt) {
    fs::create_directories(folder.file("ut") / "A.~tmp");
    writeFile(folder.path("ut/A.~tmp"), "halvt");
    engines.held.insert(folder.path("ut/A.~lock"));
    EXPECT_EQ(run({"A.IND"}), 3);
    EXPECT_TRUE(out.str().starts_with("A.IND: Fallet beräknas redan av någon annan.\n")) << out.str();
    EXPECT_TRUE(results().contains("A.~tmp/halvt"));
    engines.held.clear();
    EXPECT_EQ(run({"A.IND"}), 0) << "what a dead one left is in nobody's way";
    EXPECT_EQ(results().size(), 4U);
}

TEST_F(RunCommand, TwoCasesOfOneNameAreRefused) {
    EXPECT_EQ(run({"x/A.IND", "B.IND", "y/a.ind"}), 2);
    EXPECT_TRUE(err.str().starts_with("Fel användning: varnotool run: x/A.IND och y/a.ind heter lika "))
        << err.str();
    EXPECT_EQ(engines.started.size(), 0U);
}

TEST_F(RunCommand, RefusesNumbersThatMakeNoSense) {
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"A.IND", "--jobs", "-1"},
                                                      {"A.IND", "--jobs", "två"},
                                                      {"A.IND", "--timeout", "-2"}}) {
        EXPECT_EQ(run(arguments), 2);
        EXPECT_TRUE(
            err.str().starts_with("Fel användning: varnotool run: valet " + arguments[1] + " väntar ett "))
            << err.str();
    }
}

TEST_F(RunCommand, TakesACaseFromTheStandardInput) {
    in.str(testing::sampleFile());
    EXPECT_EQ(run({"-"}), 0);
    EXPECT_EQ(results().size(), 4U);
    EXPECT_TRUE(fs::exists(tool::pathOf(folder.path("ut/NAMNLÖS/NAMNLÖS.IND"))));
}

TEST(EngineWords, AreThoseOfTheCommandLine) {
    using Words = std::vector<std::string>;
    EXPECT_EQ(tool::engineWords("motor"), Words{"motor"});
    EXPECT_EQ(tool::engineWords("  wine  'C:\\Mina program\\m.exe' --tyst "),
              (Words{"wine", "C:\\Mina program\\m.exe", "--tyst"}));
    EXPECT_EQ(tool::engineWords("a\"b c\"d ''"), (Words{"ab cd", ""}));
    EXPECT_EQ(tool::engineWords(" "), Words{});
}

TEST(EngineWords, ThatNameAFileNameItFromEverywhere) {
    const testing::TemporaryFolder folder;
    folder.write("motor", "x");
    const fs::path before = fs::current_path();
    fs::current_path(folder.folder());
    const auto words = tool::engineWords("./motor saknas");
    fs::current_path(before);
    EXPECT_TRUE(fs::path(tool::pathOf(words[0])).is_absolute()) << words[0];
    EXPECT_EQ(testing::contentOf(tool::pathOf(words[0])), "x");
    EXPECT_EQ(words[1], "saknas");
}

TEST(EngineWords, AProgramWithABlankInItsPathNeedsNoQuotationMarks) {
    const testing::TemporaryFolder folder;
    folder.write("motor", "x");
    EXPECT_EQ(tool::engineWords(folder.path("motor")).size(), 1U) << folder.path("motor");
}

} // namespace

} // namespace varno
