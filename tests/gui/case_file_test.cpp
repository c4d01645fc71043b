// The case file as the program reads and writes it: what a user can see of the file's own rules.
#include <gtest/gtest.h>

#include "driver/program.h"
#include "soon.h"

namespace varno::gui {
namespace {

class CaseFiles : public ::testing::Test {
  protected:
    CaseFiles() { program.passStartUp(); }

    // Opens a file with these bytes.
    void openBytes(const std::string& name, const Bytes& bytes) {
        scene.write(name + ".IND", bytes);
        program.open(name + ".IND");
        expectCaption(program, name + ".IND");
    }
    std::vector<Bytes> savedLines(const std::string& name) {
        program.saveAs(name);
        return linesOf(scene.read(name + ".IND"));
    }
    std::string text(Field field, int index = 0) const { return program.field(field, index).text(); }
    void typeAndLeave(varno::Control control, const std::string& typed) {
        program.typeInto(control, typed);
        program.field(Field::rubrik).clickInto();
        expectSoon(program, program.field(Field::rubrik), [&] { return program.focused(); });
    }
    void spin(int step) {
        // The arrows of the spin button: the upper half, the lower half.
        const Control spin = program.field(Field::spin1);
        const RECT box = spin.place();
        const LONG height = box.bottom - box.top;
        spin.clickAt(static_cast<int>(box.right - box.left) / 2,
                     static_cast<int>(step > 0 ? height / 4 : height * 3 / 4));
    }

    Scene scene;
    Program program{scene};
};

TEST_F(CaseFiles, OneSpanAndTenSpansHaveLinesOfTheirLength) {
    Bytes one = withLine(scene.read("varno.def"), 1, "ETT");
    one = withLine(withLine(one, 5, "1"), 6, "5.500  ");
    openBytes("ETT", one);
    auto lines = savedLines("ETTB");
    ASSERT_EQ(lines.size(), 37u);
    for (const std::size_t line : {6u, 7u, 12u, 13u})
        EXPECT_EQ(lines[line - 1].size(), 7u) << line;
    EXPECT_EQ(lines[7], "0.000 0.000 ");

    program.open("TIOFACK.IND");
    lines = savedLines("TIOB");
    for (const std::size_t line : {6u, 7u, 12u, 13u})
        EXPECT_EQ(lines[line - 1].size(), 70u) << line;
    EXPECT_EQ(lines[7].size(), 66u);
    EXPECT_EQ(lines[9].size(), 42u);
    for (std::size_t line = 33; line <= 37; ++line)
        EXPECT_EQ(lines[line - 1].size(), 17u);
}

TEST_F(CaseFiles, EndSupportsAreReadAsZero) {
    Bytes file = withLine(scene.read("varno.def"), 1, "STOD");
    file = withLine(file, 8, "0.200 0.300 0.100 0.200 ");
    openBytes("STOD", file);
    EXPECT_EQ(savedLines("STODB").at(7), "0.000 0.300 0.100 0.000 ");
}

TEST_F(CaseFiles, TypedNumbersAreWrittenWithAPointAndBlanks) {
    typeAndLeave({Field::spv, 1}, "0,25");
    typeAndLeave({Field::spv, 2}, "12.5");
    typeAndLeave({Field::upl, 1}, "0,25");
    typeAndLeave({Field::konsv}, "1,5");
    const auto lines = savedLines("TAL");
    EXPECT_EQ(lines.at(5), "0.250  12.500 12.500 ");
    EXPECT_EQ(lines.at(7), "0.000 0.250 0.250 0.000 ");
    EXPECT_EQ(lines.at(13), "1.5");
}

TEST_F(CaseFiles, NumberWiderThanItsCellIsCut) {
    typeAndLeave({Field::ptjl, 2}, "1234,567");
    typeAndLeave({Field::ptjl, 3}, "12345678");
    program.command(idSaveAs);
    program.chooseFile("BRED");
    const std::string lost = program.answer().text;
    EXPECT_NE(lost.find("12345678 blir 1234567"), std::string::npos) << lost;
    expectCaption(program, "BRED.IND");
    EXPECT_EQ(linesOf(scene.read("BRED.IND")).at(6), "0.170  1234.561234567");
    program.open("BRED.IND");
    expectSoon(program, std::string("1234567"), [&] { return text(Field::ptjl, 3).substr(0, 7); });
}

TEST_F(CaseFiles, OnlyTheFirstOfEachLetterIsADosLetter) {
    program.typeInto({Field::rubrik}, "Bärlägg å ö Å Ä Ö ÅÄÖ åäö");
    const auto lines = savedLines("BOKSTAV");
    EXPECT_EQ(lines.at(1), "B\x84rl\xE4gg \x86 \x94 \x8F \x8E \x99 \xC5\xC4\xD6 \xE5\xE4\xF6");
    program.open("BOSTAD.IND");
    program.open("BOKSTAV.IND");
    expectSoon(program, std::string("Bärlägg å ö Å Ä Ö ÅÄÖ åäö"), [&] { return text(Field::rubrik); });
}

TEST_F(CaseFiles, CommaInTheTitleShiftsWhatFollows) {
    // The second half of the title is read as the rule set, the rule set as the class, and so on.
    Bytes file = withLine(withLine(scene.read("varno.def"), 1, "KOMMA"), 2, "Hus,4 plan");
    scene.write("KOMMA.IND", withLine(file, 4, "1"));
    program.command(idOpen);
    program.chooseFile("KOMMA.IND");
    const std::string told = program.answer().text;
    EXPECT_NE(told.find("Rad 2 (Rubrik)"), std::string::npos) << told;
    expectCaption(program, "KOMMA.IND");
    EXPECT_EQ(text(Field::rubrik), "Hus");
    EXPECT_TRUE(program.main().item(idFlag + 4).visible()) << "rule set 4";
    EXPECT_EQ(text(Field::nfack), "1") << "the class of the file";
    EXPECT_EQ(text(Field::spv, 1).substr(0, 1), "3") << "its number of spans";
}

TEST_F(CaseFiles, CarriesTheReservedValueAndTheUnusedLineLoads) {
    Bytes file = withLine(scene.read("KONTOR.IND"), 1, "RESERV");
    file = withLine(withLine(file, 27, "-17"), 37, "3  1.250  -4.500 ");
    openBytes("RESERV", file);
    program.saveAs("RESERVB");
    EXPECT_EQ(scene.read("RESERVB.IND"), withLine(file, 1, "RESERVB"));
}

TEST_F(CaseFiles, RemovedSpansAreNotSavedButComeBack) {
    program.open("TIOFACK.IND");
    spin(-1);
    expectSoon(program, std::string("9"), [&] { return text(Field::nfack); });
    EXPECT_FALSE(program.field(Field::spv, 10).visible());
    EXPECT_EQ(savedLines("NIO").at(5).size(), 63u);
    spin(+1);
    expectSoon(program, std::string("10"), [&] { return text(Field::nfack); });
    EXPECT_EQ(savedLines("TIO").at(5), linesOf(scene.read("TIOFACK.IND")).at(5));

    // A case read anew starts from the defaults, not from the case before.
    program.open("BOSTAD.IND");
    spin(+1);
    expectSoon(program, std::string("4"), [&] { return text(Field::nfack); });
    const auto lines = savedLines("FYRA");
    EXPECT_EQ(lines.at(5), "4.200  4.800  3.600  5.500  ");
    EXPECT_EQ(lines.at(6), "0.160  0.160  0.160  0.170  ");
}

TEST_F(CaseFiles, RuleSetsKeepTheirClassesButForTwo) {
    program.open("KONTOR.IND");
    EXPECT_EQ(savedLines("K0").at(3), "2");
    // Once round the six flags.
    const std::vector<Bytes> ruleSets{"5", "4", "2", "6", "1", "3"};
    int flag = 2;
    for (const Bytes& ruleSet : ruleSets) {
        program.main().item(idFlag + flag).click();
        flag = flag % 6 + 1;
        expectSoon(program, true, [&] { return program.main().item(idFlag + flag).visible(); });
        const auto lines = savedLines("K" + ruleSet);
        EXPECT_EQ(lines.at(2), ruleSet);
        // Sets 2 and 6 are reset at every switch, 3 has its own choice back, the others had none: 2.
        EXPECT_EQ(lines.at(3), ruleSet == "2" || ruleSet == "6" ? "1" : "2");
    }
}

} // namespace
} // namespace varno::gui
