#include "tool/tool_runner.h"

namespace varno {

namespace {

class CompareCommand : public testing::ToolRunner {
  protected:
    void SetUp() override { files.content["A.IND"] = testing::sampleFile(); }
    template <typename Change>
    std::string difference(Change change) {
        put("B.IND", change);
        EXPECT_EQ(run({"diff", "A.IND", "B.IND"}), 3);
        EXPECT_EQ(err.str(), "");
        return out.str();
    }
};

TEST_F(CompareCommand, SaysNothingOfCasesThatAreTheSame) {
    EXPECT_EQ(run({"diff", "A.IND", "A.IND"}), 0);
    EXPECT_EQ(out.str() + err.str(), "");
}

TEST_F(CompareCommand, NamesAnInputByItsCaptionAndSpan) {
    EXPECT_EQ(difference([](DesignCase& c) {
                  c.spv(2) = 12.125f;
                  c.upl(1) = 0.2f;
                  c.konsv = 1;
                  c.avst(2) = 0;
                  c.btg = 3;
                  c.kavko = 0;
                  c.safetyClass(3) = 1;
                  c.lambdaQ(3) = 1.35;
              }),
              "Pålitlighetsklass: 2 -> 1\n"
              "Spännvidd (m), fack 2: 12,5 -> 12,125\n"
              "Upplagsbredd (m), stöd 1: 0,1 -> 0,2\n"
              "Partialkoefficient för variabel last: 1,5 -> 1,35\n"
              "Konsol vänster (m): 1,2 -> 1\n"
              "Betongklass: C25/30 -> C30/37\n"
              "Avkortning av armering: ja -> nej\n"
              "Avstånd från vänster stöd (m), linjelast 2: 0,125 -> 0\n");
}

TEST_F(CompareCommand, AnInputOfOneCaseOnlyIsMissingInTheOther) {
    EXPECT_EQ(difference([](DesignCase& c) {
                  c.nfack = 2;
                  c.upl(2) = 0;
                  c.nllast = 3;
              }),
              "Antal Fack: 3 -> 2\n"
              "Spännvidd (m), fack 3: 0,25 -> saknas\n"
              "Plattjocklek (m), fack 3: 0,175 -> saknas\n"
              "Upplagsbredd (m), stöd 2: 0,25 -> saknas\n"
              "Permanent last (kN/m2), fack 3: -1,5 -> saknas\n"
              "Variabel last (kN/m2), fack 3: 4 -> saknas\n"
              "Antal linjelaster: 2 -> 3\n"
              "Fack nr, linjelast 3: saknas -> 2\n"
              "Avstånd från vänster stöd (m), linjelast 3: saknas -> 1\n"
              "Last (kN/m), linjelast 3: saknas -> -5\n");
}

TEST_F(CompareCommand, ALineLoadThatIsNotInUseIsNoInput) {
    put("B.IND", [](DesignCase& c) { c.avst(5) = 3; });
    EXPECT_EQ(run({"diff", "A.IND", "B.IND"}), 0);
}

TEST_F(CompareCommand, PrintsTheInputsOfOneCaseForGit) {
    EXPECT_EQ(run({"diff", "A.IND"}), 0);
    EXPECT_TRUE(out.str().starts_with("Filnamn: \"NAMNLÖS\"\n"
                                      "Rubrik: \"Bärlägg för Ångström\"\n"
                                      "Regelverk: Eurokod, Sverige\n"
                                      "Pålitlighetsklass: 2\n"
                                      "Antal Fack: 3\n"
                                      "Spännvidd (m), fack 1: 6\n"))
        << out.str();
    EXPECT_NE(out.str().find("\nBeräkningsmetod - Brand: REI 60\n"), std::string::npos) << out.str();
}

TEST_F(CompareCommand, ReadsOneOfThemFromTheStandardInput) {
    put("B.IND", [](DesignCase& c) { c.ktack = 30; });
    EXPECT_EQ(run({"diff", "-", "B.IND"}, testing::sampleFile()), 3);
    EXPECT_EQ(out.str(), "Täckande BTG-skikt i ÖK: 22 -> 30\n");
}

} // namespace

} // namespace varno
