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

TEST_F(Program, ReadsTheStandardInputByteForByte) {
    folder.write("A.IND", testing::sampleFile());
    EXPECT_EQ(shell("\"$VARNOTOOL\" json - <A.IND >A.json && \"$VARNOTOOL\" write - B.IND <A.json"), 0);
    EXPECT_EQ(folder.read("B.IND"), testing::sampleFile());
}

TEST_F(Program, IsInstalledWithItsManualAndItsCompletion) {
    EXPECT_EQ(shell(VARNO_INSTALL " --prefix \"$PWD/installed\" >log 2>&1"), 0) << folder.read("log");
    EXPECT_EQ(shell("installed/bin/varnotool --version >version && cmp installed/share/man/man1/varnotool.1 "
                    "<(\"$VARNOTOOL\" --manual) && cmp installed/share/bash-completion/completions/varnotool "
                    "<(\"$VARNOTOOL\" --bash-completion)"),
              0);
    EXPECT_EQ(folder.read("version"), "varnotool " VARNO_VERSION "\n");
}

class Completion : public testing::ToolProgram {
  protected:
    /// What bash offers for the last of these words.
    std::string offers(const std::string& words) {
        EXPECT_EQ(
            shell("source <(\"$VARNOTOOL\" --bash-completion); COMP_WORDS=(varnotool " + words +
                  "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n_varnotool; echo \"${COMPREPLY[*]}\" >offers"),
            0);
        return folder.read("offers");
    }
};

TEST_F(Completion, OffersCommandsAndTheirOptions) {
    EXPECT_EQ(offers("re"), "rewrite report result\n");
    EXPECT_EQ(offers("--v"), "--version\n");
    EXPECT_EQ(offers("run A.IND --"), "--engine --jobs --out --timeout --help\n");
    EXPECT_EQ(offers("show --"), "--help\n");
    EXPECT_EQ(offers("write A.json --b"), "--base\n");
}

TEST_F(Completion, OffersFoldersWhereAFolderIsExpected) {
    shell("mkdir resultat; touch resan");
    EXPECT_EQ(offers("run A.IND --out res"), "resultat\n");
    EXPECT_EQ(offers("report A.IND --out res"), "\n") << "files are left to bash";
    EXPECT_EQ(offers("run A.IND --jobs ''"), "\n");
    EXPECT_EQ(offers("nonsense ''"), "\n");
}

TEST_F(Program, Ends1WhenItsOutputIsLost) {
    folder.write("A.IND", testing::sampleFile());
    EXPECT_EQ(shell("\"$VARNOTOOL\" json A.IND >/dev/full 2>err"), 1);
    testing::expectTold(folder.read("err"), "Något gick fel.", "57: Device I/O error");
}

} // namespace

} // namespace varno
