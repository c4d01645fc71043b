#include "support/case_files.h"
#include "tool/told.h"
#include "tool/tool_program.h"

// The real program: what only it can get wrong, its exit codes and its streams.
namespace varno {

namespace {

using Program = testing::ToolProgram;

TEST_F(Program, Ends0AndPrintsUtf8) {
    folder.write("Å.IND", testing::sampleFile());
    EXPECT_EQ(run("json " + quoted("Å.IND")), 0);
    EXPECT_TRUE(folder.read("out").starts_with("{\n  \"currentFileName\": \"NAMNLÖS\",\n"));
    EXPECT_EQ(folder.read("err"), "");
    EXPECT_EQ(run("rewrite " + quoted("Å.IND") + " " + quoted("Ö.IND")), 0);
    EXPECT_EQ(folder.read("Ö.IND"), testing::sampleFile());
    EXPECT_EQ(run("--help"), 0);
}

TEST_F(Program, Ends1AtARunTimeError) {
    EXPECT_EQ(run("json " + quoted("saknas.IND")), 1);
    testing::expectTold(folder.read("err"), "Filen " + folder.path("saknas.IND") + " finns inte.",
                        "52: Bad file name or number");
    EXPECT_EQ(folder.read("out"), "");
}

TEST_F(Program, Ends2AtWrongUsage) {
    EXPECT_EQ(run(""), 2);
    EXPECT_EQ(run("nonsense"), 2);
    EXPECT_TRUE(folder.read("err").starts_with("Fel användning: "));
    EXPECT_EQ(folder.read("out"), "");
}

TEST_F(Program, Ends1WhenItsOutputIsLost) {
    folder.write("A.IND", testing::sampleFile());
    EXPECT_EQ(shell("\"$VARNOTOOL\" json A.IND >/dev/full 2>err"), 1);
    testing::expectTold(folder.read("err"), "Något gick fel.", "57: Device I/O error");
}

} // namespace

} // namespace varno
