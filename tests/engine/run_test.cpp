#include "engine/run.h"

#include "engine/envelope.h"
#include "tests/engine/support.h"
#include "tests/support/byte_files.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace varno::engine {
namespace {

using test::WorkFolder;
using Names = std::vector<std::string>;

constexpr const char* input = "~indata~.tmp";

TEST(EngineRun, LeavesBothFilesAndNothingElse) {
    const WorkFolder folder;
    test::write(input, test::caseFile(test::equalSpans(3, 5, 2, 3)).text());
    EXPECT_EQ(run(systemFileCalls(), "2026-11-21 20:35"), calculated);
    EXPECT_EQ(test::namesInFolder(), (Names{"HUS1.res", "momk.dat", input}));
    EXPECT_TRUE(test::read("momk.dat")->starts_with("3\r\n0.250000\r\n"));
    EXPECT_TRUE(test::read("HUS1.res")->starts_with("EXEMPELMOTOR"));
}

TEST(EngineRun, FactorsAndLineLoadsReachTheCurves) {
    const WorkFolder folder;
    auto v = test::equalSpans(1, 4, 2, 3);
    v.lambdaG = 1.35;
    v.lambdaQ = 1.5;
    v.nllast = 1;
    v.loads = {{1, 2, 10}, {1, 1, 99}};
    test::write(input, test::caseFile(v).text());
    EXPECT_EQ(run(systemFileCalls(), "2026-11-21 20:35"), calculated);
    const auto lines = test::crLfLines(*test::read("momk.dat"));
    // Middle of the span: (1.35 2 + 1.5 3) 4^2 / 8 + 10 4 / 4, and without the variable load.
    EXPECT_NE(lines.at(3).find(",24.400000,"), std::string::npos) << lines.at(3);
    EXPECT_NE(lines.at(7).find(",15.400000,"), std::string::npos) << lines.at(7);
}

TEST(EngineRun, WorksInAFolderWithBlanksAndLetters) {
    const WorkFolder folder{"Mina fall å ä ö"};
    auto v = test::equalSpans(2, 5, 2, 3);
    v.name = "H\x99GHUS \xD6 1"; // "HÖGHUS Ö 1" as the front-end writes it
    test::write(input, test::caseFile(v).text());
    EXPECT_EQ(run(systemFileCalls(), "2026-11-21 20:35"), calculated);
    EXPECT_EQ(test::namesInFolder(), (Names{"HÖGHUS Ö 1.res", "momk.dat", input}));
}

TEST(EngineRun, TakesThePlaceOfOlderFiles) {
    const WorkFolder folder;
    test::write(input, test::caseFile(test::equalSpans(1, 5, 2, 3)).text());
    test::write("HUS1.res", std::string(100000, 'x'));
    test::write("momk.dat", std::string(100000, 'x'));
    EXPECT_EQ(run(systemFileCalls(), "2026-11-21 20:35"), calculated);
    EXPECT_EQ(test::read("HUS1.res")->find('x' + std::string("xx")), std::string::npos);
    EXPECT_EQ(test::read("momk.dat")->find('x'), std::string::npos);
}

TEST(EngineRun, GivesTheSameBytesEveryTimeAndForEveryLineEnd) {
    const WorkFolder folder;
    const auto file = test::caseFile(test::equalSpans(5, 5.5, 2, 3));
    Names results;
    for (const char* end : {"\r\n", "\n", "\r", "\r\n"}) {
        test::write(input, file.text(end));
        EXPECT_EQ(run(systemFileCalls(), "2026-11-21 20:35"), calculated);
        results.push_back(*test::read("HUS1.res") + *test::read("momk.dat"));
        EXPECT_EQ(results.back(), results.front());
    }
}

TEST(EngineRun, ASenselessCaseIsToldInTheResultFile) {
    const WorkFolder folder;
    auto file = test::caseFile(test::equalSpans(2, 5, 2, 3));
    test::write(input, file.text());
    EXPECT_EQ(run(systemFileCalls(), "2026-11-21 20:35"), calculated);
    file.line(6) = "5.000  0.000";
    test::write(input, file.text());
    EXPECT_EQ(run(systemFileCalls(), "2026-11-21 20:35"), senseless);
    EXPECT_EQ(test::namesInFolder(), (Names{"HUS1.res", input})) << "the old moment curves must go";
    const auto shown = test::asShown(*test::read("HUS1.res"));
    EXPECT_NE(shown.find(test::windows("FEL. Rad 6: spännvidd spv(2) = 0.000 m ska vara positiv.")),
              std::string::npos)
        << shown;
}

TEST(EngineRun, AFileWithOnlyANameIsSenseless) {
    const WorkFolder folder;
    test::write(input, "HUS1");
    EXPECT_EQ(run(systemFileCalls(), "2026-11-21 20:35"), senseless);
    EXPECT_NE(test::read("HUS1.res")->find("rad 2 av 37 saknas"), std::string::npos);
}

TEST(EngineRun, NumbersBeyondAllReasonAreSenseless) {
    for (const char* cantilever : {"1E+20", "1E+30", "1E+38"}) {
        const WorkFolder folder;
        auto file = test::caseFile(test::equalSpans(2, 5, 2, 3));
        file.line(14) = cantilever;
        test::write(input, file.text());
        EXPECT_EQ(run(systemFileCalls(), "2026-11-21 20:35"), senseless) << cantilever;
        EXPECT_NE(test::read("HUS1.res")->find("orimligt stora"), std::string::npos);
        EXPECT_FALSE(test::read("momk.dat"));
    }
}

TEST(EngineRun, WithoutAUsableNameNothingIsWritten) {
    const WorkFolder folder;
    EXPECT_EQ(run(systemFileCalls(), "2026-11-21 20:35"), noCase);
    for (const char* start : {"", "\r\n", "  \r\n", "..\\HUS\r\n", "C:HUS\r\n", "NUL\r\n", "a*b\r\n"}) {
        auto rest = test::caseFile(test::equalSpans(1, 5, 2, 3));
        rest.lines.erase(rest.lines.begin());
        test::write(input, *start == '\0' ? "" : start + rest.text());
        EXPECT_EQ(run(systemFileCalls(), "2026-11-21 20:35"), noCase) << start;
        EXPECT_EQ(test::namesInFolder(), Names{input}) << start;
    }
}

TEST(EngineRun, AFileThatCannotBeReplacedIsReportedAndLeavesNoOther) {
    for (const char* blocked : {"HUS1.res", "momk.dat"}) {
        const WorkFolder folder;
        test::write(input, test::caseFile(test::equalSpans(1, 5, 2, 3)).text());
        std::filesystem::create_directory(blocked);
        test::write(std::string{blocked} + "/inside",
                    "x"); // a folder with something in it cannot be replaced
        EXPECT_EQ(run(systemFileCalls(), "2026-11-21 20:35"), notWritten) << blocked;
        for (const auto& name : test::namesInFolder())
            EXPECT_FALSE(name.starts_with("~varnowb")) << name;
    }
}

TEST(EngineRun, AFileThatCannotBeWrittenIsReportedAndTheOldOnesStay) {
    for (const char* blocked : {"~varnowb.tm1", "~varnowb.tm2"}) {
        const WorkFolder folder;
        test::write(input, test::caseFile(test::equalSpans(1, 5, 2, 3)).text());
        test::write("HUS1.res", "old");
        test::write("momk.dat", "old");
        std::filesystem::create_directory(blocked);
        EXPECT_EQ(run(systemFileCalls(), "2026-11-21 20:35"), notWritten) << blocked;
        EXPECT_EQ(test::read("HUS1.res"), "old");
        EXPECT_EQ(test::read("momk.dat"), "old");
        auto expected = Names{"HUS1.res", "momk.dat", input, blocked};
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(test::namesInFolder(), expected);
    }
}

#ifndef _WIN32
TEST(EngineRun, AFullDiskIsReportedAndTheOldFilesStay) {
    for (const char* full : {"~varnowb.tm1", "~varnowb.tm2"}) {
        const WorkFolder folder;
        test::write(input, test::caseFile(test::equalSpans(1, 5, 2, 3)).text());
        test::write("HUS1.res", "old");
        test::write("momk.dat", "old");
        std::filesystem::create_symlink("/dev/full", full);
        EXPECT_EQ(run(systemFileCalls(), "2026-11-21 20:35"), notWritten) << full;
        EXPECT_EQ(test::read("HUS1.res"), "old");
        EXPECT_EQ(test::read("momk.dat"), "old");
        EXPECT_EQ(test::namesInFolder(), (Names{"HUS1.res", "momk.dat", input}));
    }
}
#endif

// A disk that takes its time for a flush, or cannot do it, is none of a calculation's business.
class NoFlush : public ByteFiles {
  public:
    std::unique_ptr<Output> create(const std::string& path) override {
        return std::make_unique<Unflushed>(ByteFiles::create(path));
    }

  private:
    class Unflushed : public Output {
      public:
        explicit Unflushed(std::unique_ptr<Output> output) : output_(std::move(output)) {}
        void write(std::string_view bytes) override { output_->write(bytes); }
        void flush() override { throw RunTimeError(errDeviceIo); }
        void close() override { output_->close(); }

      private:
        std::unique_ptr<Output> output_;
    };
};

TEST(EngineRun, DoesNotWaitForTheDisk) {
    NoFlush files;
    files.content[input] = test::caseFile(test::equalSpans(2, 5, 2, 3)).text();
    EXPECT_EQ(run(files, "2026-11-21 20:35"), calculated);
    EXPECT_TRUE(files.content["momk.dat"].starts_with("2\r\n"));
    EXPECT_TRUE(files.content["HUS1.res"].starts_with("EXEMPELMOTOR"));
}

TEST(EngineRun, ResultFileIsNamedByTheFirstLine) {
    EXPECT_EQ(resultFileName("HUS1"), "HUS1.res");
    EXPECT_EQ(resultFileName("Hus 1, plan 2"), "Hus 1, plan 2.res");
    EXPECT_EQ(resultFileName("H\x99G\xD6"), "HÖGÖ.res");
    // Only the first DOS byte of each letter is a letter: a second one is the Windows-1252 character of that number.
    EXPECT_EQ(resultFileName("B\x84rl\xE4gg \x84"), "Bärlägg „.res");
    EXPECT_EQ(resultFileName("A.B"), "A.B.res");
    EXPECT_EQ(resultFileName(" A "), " A .res");
    EXPECT_EQ(resultFileName("COM"), "COM.res");
    EXPECT_EQ(resultFileName("CONSOLE"), "CONSOLE.res");
}

TEST(EngineRun, NoFileOutsideTheFolderAndNoDeviceIsNamed) {
    for (const char* name : {"", "   ", "a/b", "a\\b", "..\\x", "c:x", "a*", "a?", "a\"b", "<a", "a>", "a|b",
                             "a\tb", "nul", "CON", "Aux.x", "LPT1", "com9 ", "prn."})
        EXPECT_FALSE(resultFileName(name)) << name;
    EXPECT_FALSE(resultFileName(std::string("a\0b", 3)));
}

TEST(EngineRun, ALongNameIsNotWritten) {
    const WorkFolder folder;
    auto v = test::equalSpans(1, 5, 2, 3);
    v.name = std::string(300, 'n');
    test::write(input, test::caseFile(v).text());
    EXPECT_EQ(run(systemFileCalls(), "2026-11-21 20:35"), notWritten);
}

} // namespace
} // namespace varno::engine
