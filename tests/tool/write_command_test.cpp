#include <random>

#include "tool/tool_runner.h"

namespace varno {

namespace {

class WriteCommand : public testing::ToolRunner {
  protected:
    void SetUp() override { files.content["A.IND"] = testing::sampleFile(); }

    /// The case that a text makes of A.IND.
    CaseFile written(const std::string& json) {
        EXPECT_EQ(run({"write", "-", "out/V1.IND", "--base", "A.IND"}, json), 0) << json << '\n' << err.str();
        return testing::readCase(files.content["out/V1.IND"]);
    }
    /// What is said about a text that is refused.
    std::string refusal(const std::string& json) {
        files.content["V1.IND"] = "old";
        EXPECT_EQ(run({"write", "-", "V1.IND", "--base", "A.IND"}, json), 1) << json;
        EXPECT_EQ(files.content["V1.IND"], "old");
        EXPECT_TRUE(err.str().starts_with("-: ")) << err.str();
        return err.str().substr(std::min<std::size_t>(3, err.str().size()));
    }
};

TEST_F(WriteCommand, TakesBackWhatJsonPrinted) {
    CaseFile ten = testing::sampleCase();
    ten.name = "TIO";
    ten.designCase.nfack = 10;
    ten.designCase.upl(3) = 0.333f;
    ten.designCase.upl(10) = 0;
    ten.designCase.konsh = 1.2345678f;
    ten.designCase.lambdaG(3) = 1.234;
    ten.designCase.nllast = 5;
    files.content["TIO.IND"] = testing::writtenCase(ten);
    for (const std::string name : {"A.IND", "TIO.IND"}) {
        for (const std::vector<std::string>& how : std::vector<std::vector<std::string>>{{}, {"--used"}}) {
            std::vector<std::string> arguments{"json", name};
            arguments.insert(arguments.end(), how.begin(), how.end());
            ASSERT_EQ(run(arguments), 0);
            files.content["C.json"] = out.str();
            // Line loads that are not in use come from the base.
            ASSERT_EQ(run({"write", "C.json", "C.IND", "--base", name}), 0) << err.str();
            EXPECT_EQ(files.content["C.IND"], files.content[name]) << name;
            EXPECT_EQ(err.str(), "");
        }
        ASSERT_EQ(run({"json", name}), 0);
        files.content["C.json"] = out.str();
        ASSERT_EQ(run({"write", "C.json", "C.IND"}), 0) << err.str();
        EXPECT_EQ(files.content["C.IND"], files.content[name]) << name << " without a base";
    }
}

TEST_F(WriteCommand, KeepsWhatIsNotNamed) {
    CaseFile expected = testing::sampleCase();
    expected.name = "V1";
    EXPECT_EQ(written("{}"), expected);
    expected.title = "Provet ä";
    expected.designCase.konsv = 5.3f;
    expected.designCase.spv(2) = 6.4f;
    expected.designCase.upl(1) = 0.15f;
    expected.designCase.psi1(3, 2) = 0.55;
    expected.designCase.kavko = -1;
    EXPECT_EQ(written(R"({"rubrik": "Provet ä", "konsv": 5.3, "spv": {"2": 6.4}, "upl": [0, 0.15],
                          "psi1": {"3": {"2": 0.55}}, "kavko": -1})"),
              expected);
}

TEST_F(WriteCommand, NamesTheCaseAfterItsFileUnlessTheTextDoes) {
    EXPECT_EQ(written("{}").name, "V1");
    EXPECT_EQ(written(R"({"currentFileName": "hus å"})").name, "HUS Å");
}

TEST_F(WriteCommand, StartsFromThePresetsWithoutABase) {
    ASSERT_EQ(run({"write", "-", "N.IND"}, R"({"nfack": 2, "loadCode": 3, "btg": 2})"), 0) << err.str();
    const CaseFile read = testing::readCase(files.content["N.IND"]);
    EXPECT_EQ(read.designCase.spv(2), 5.5f);
    EXPECT_EQ(read.designCase.upl(1), 0.1f);
    EXPECT_EQ(read.designCase.upl(2), 0.0f);
    EXPECT_EQ(read.designCase.lambdaG(3), 1.35);
}

TEST_F(WriteCommand, AnotherNumberOfSpansMovesTheEndSupport) {
    EXPECT_EQ(written(R"({"nfack": 2})").designCase.upl(2), 0.0f);
    const DesignCase five = written(R"({"nfack": 5, "upl": {"3": 0.2}})").designCase;
    EXPECT_EQ(five.upl(3), 0.2f);
    EXPECT_EQ(five.upl(4), 0.1f);
    EXPECT_EQ(five.upl(5), 0.0f);
    EXPECT_EQ(five.spv(5), 5.5f);
}

TEST_F(WriteCommand, RefusesANameThatIsNotThere) {
    EXPECT_EQ(refusal(R"({"spw": [0, 1]})"), "Fältet \"spw\" finns inte; menade Du \"spv\"?\n");
    EXPECT_EQ(refusal(R"({"NFACK": 3})"), "Fältet \"NFACK\" finns inte; menade Du \"nfack\"?\n");
    EXPECT_EQ(refusal(R"({"nllastf": 0})"), "Fältet \"nllastf\" finns inte; menade Du \"nllast\"?\n");
    EXPECT_EQ(refusal(R"({"qqqqqq": 0})"), "Fältet \"qqqqqq\" finns inte.\n");
    EXPECT_EQ(refusal(R"({"konsv": 1, "konsv": 2})"), "Fältet \"konsv\": står två gånger.\n");
}

TEST_F(WriteCommand, RefusesValuesOfTheWrongKind) {
    EXPECT_EQ(refusal("[1]"), "Texten är inget JSON-objekt.\n");
    EXPECT_EQ(refusal("{\"spv\": "), "Texten är ingen JSON: felet står vid tecken 9.\n");
    EXPECT_EQ(refusal(R"({"nfack": 2.5})"),
              "Fältet \"nfack\": ska vara ett heltal från -32768 till 32767.\n");
    EXPECT_EQ(refusal(R"({"btg": "2"})"), "Fältet \"btg\": ska vara ett heltal från -32768 till 32767.\n");
    EXPECT_EQ(refusal(R"({"ktack": 40000})"),
              "Fältet \"ktack\": ska vara ett heltal från -32768 till 32767.\n");
    EXPECT_EQ(refusal(R"({"konsv": null})"), "Fältet \"konsv\": ska vara ett tal.\n");
    EXPECT_EQ(refusal(R"({"konsv": 1e300})"), "Fältet \"konsv\": är för stort.\n");
    EXPECT_EQ(refusal(R"({"konsv": 1e999})"), "Texten har ett tal som är för stort.\n");
    EXPECT_EQ(refusal(R"({"rubrik": 1})"), "Fältet \"rubrik\": ska vara en text.\n");
    EXPECT_EQ(refusal(R"({"spv": 1})"),
              "Fältet \"spv\": ska vara en lista, eller ett objekt med element efter nummer.\n");
    EXPECT_EQ(refusal(R"({"spv": {"16": 1}})"), "Fältet \"spv[16]\": numret ska vara 0 till 15.\n");
    EXPECT_EQ(refusal(R"({"spv": {"01": 1}})"), "Fältet \"spv[01]\": numret ska vara 0 till 15.\n");
    EXPECT_EQ(refusal(R"({"avst": [0, 1, 2, 3, 4, 5, 6]})"), "Fältet \"avst\": har fler än 6 element.\n");
    EXPECT_EQ(refusal(R"({"psi0": {"3": {"2": true}}})"),
              "Fältet \"psi0[3][2]\": ska vara ett tal eller null.\n");
}

TEST_F(WriteCommand, RefusesWhatAFileCannotHold) {
    EXPECT_EQ(refusal(R"({"nfack": 16})"), "Antal Fack är 16; ett heltal från 1 till 10 väntas.\n");
    EXPECT_EQ(refusal(R"({"loadCode": 7})"), "Regelverk är 7; ett heltal från 0 till 6 väntas.\n");
    EXPECT_EQ(refusal(R"({"upl": {"3": 0.2}})"),
              "Upplagsbredd (m), stöd 3: 0,2 blir 0\nEn indatafil kan inte hålla det. Ingen fil skrevs.\n");
    EXPECT_EQ(refusal(R"({"spv": {"1": 12345678}})"), "Spännvidd (m), fack 1: 12345678 blir 1234567\n"
                                                      "En indatafil kan inte hålla det. Ingen fil skrevs.\n");
    EXPECT_EQ(refusal(R"({"rubrik": "Hus, 4"})"),
              "Rubrik: \"Hus, 4\" blir \"Hus\"\nEn indatafil kan inte hålla det. Ingen fil skrevs.\n");
    EXPECT_TRUE(refusal(R"({"rubrik": "två\nrader"})").starts_with("Rubrik: \"två\nrader\" blir \"två\"\n"));
    EXPECT_EQ(refusal(R"({"rubrik": "π"})"),
              "Rubrik: \"π\" blir \"?\"\nEn indatafil kan inte hålla det. Ingen fil skrevs.\n");
}

TEST_F(WriteCommand, TellsADecimalThatDoesNotFitAndGoesOn) {
    EXPECT_EQ(written(R"({"spv": {"1": 5.33333}})").designCase.spv(1), 5.333f);
    EXPECT_EQ(err.str(), "Spännvidd (m), fack 1: 5,33333 blir 5,333\n");
}

TEST_F(WriteCommand, ReadsOrRefusesWhateverTheTextIs) {
    ASSERT_EQ(run({"json", "--used", "A.IND"}), 0);
    const std::string whole = out.str();
    std::mt19937 random(11);
    const auto upTo = [&](std::size_t count) { return random() % count; };
    int read = 0;
    for (int trial = 0; trial < 500; ++trial) {
        std::string damaged = whole;
        for (std::size_t i = 0; i <= upTo(3); ++i) {
            const std::size_t at = upTo(damaged.size());
            if (upTo(2) == 0)
                damaged.erase(at, 1 + upTo(4));
            else
                damaged[at] = "0123456789-+.eE{}[],:\"\\ntf\xC3\x00"[upTo(29)];
        }
        files.content.erase("D.IND");
        const int code = run({"write", "-", "D.IND", "--base", "A.IND"}, damaged);
        ASSERT_TRUE(code == 0 || code == 1) << damaged;
        ASSERT_EQ(files.content.contains("D.IND"), code == 0) << damaged;
        ASSERT_EQ(err.str().find("run-time error"), std::string::npos) << damaged << err.str();
        read += code == 0 ? 1 : 0;
    }
    EXPECT_GT(read, 10) << "damage that leaves a case";
    EXPECT_LT(read, 480);
}

TEST_F(WriteCommand, NamesTheFileThatIsMissing) {
    EXPECT_EQ(run({"write", "saknas.json", "V1.IND"}), 1);
    EXPECT_TRUE(err.str().starts_with("Filen saknas.json finns inte.\n")) << err.str();
    EXPECT_EQ(run({"write", "-", "V1.IND", "--base", "saknas.IND"}, "{}"), 1);
    EXPECT_TRUE(err.str().starts_with("Filen saknas.IND finns inte.\n")) << err.str();
    EXPECT_FALSE(files.content.contains("V1.IND"));
}

} // namespace

} // namespace varno
