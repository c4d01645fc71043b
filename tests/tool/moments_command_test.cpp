#include "diagram/moment_curves.h"
#include "tool/tool_runner.h"

namespace varno {

namespace {

class MomentsCommand : public testing::ToolRunner {
  protected:
    void SetUp() override {
        put("A.IND", [](DesignCase& c) {
            c.nfack = 2;
            c.konsv = 1;
            c.spv(1) = 6;
            c.upl(1) = 0.2f;
            c.upl(2) = 0;
        });
        const testing::Curve upper{testing::CurveSpan(0.3, 10).at(3, "12.5"), testing::CurveSpan(0.1)};
        const testing::Curve lower{testing::CurveSpan(0.3, -10), testing::CurveSpan(0.1, -0.25)};
        files.content["momk.dat"] = testing::momentFileOf(upper, lower);
    }
    std::vector<std::string> lines() const {
        std::istringstream in(out.str());
        std::vector<std::string> read;
        for (std::string line; std::getline(in, line);)
            read.push_back(line);
        return read;
    }
};

TEST_F(MomentsCommand, PrintsEveryPointOfBothCurves) {
    ASSERT_EQ(run({"moments", "momk.dat"}), 0) << err.str();
    const auto rows = lines();
    ASSERT_EQ(rows.size(), 1 + 2 * 21U);
    EXPECT_EQ(rows[0], "fack,punkt,x (m),kurva 1 (kNm/m),kurva 2 (kNm/m)");
    EXPECT_EQ(rows[1], "1,0,0,10,-10");
    EXPECT_EQ(rows[4], "1,3,0.9,12.5,-10");
    EXPECT_EQ(rows[22], "2,0,0,0,-0.25");
    EXPECT_EQ(rows[42], "2,20,2,0,-0.25");
}

TEST_F(MomentsCommand, PlacesThemAlongTheSlabOfACase) {
    ASSERT_EQ(run({"moments", "momk.dat", "--case", "A.IND"}), 0) << err.str();
    const auto rows = lines();
    EXPECT_EQ(rows[1], "1,0,1,10,-10");
    EXPECT_EQ(rows[4], "1,3,1.9,12.5,-10");
    EXPECT_EQ(rows[22], "2,0,7.2,0,-0.25") << "the points begin behind the support";
}

TEST_F(MomentsCommand, PrintsWhatASwedishSpreadsheetReads) {
    ASSERT_EQ(run({"moments", "momk.dat", "--spreadsheet"}), 0);
    EXPECT_EQ(lines()[4], "1;3;0,9;12,5;-10");
}

TEST_F(MomentsCommand, RefusesCurvesOfAnotherCase) {
    files.content["B.IND"] = testing::sampleFile();
    EXPECT_EQ(run({"moments", "momk.dat", "--case", "B.IND"}), 1);
    EXPECT_EQ(err.str(), "momk.dat har 2 fack, men B.IND har 3: kurvorna hör till ett annat fall.\n");
    EXPECT_EQ(out.str(), "");
}

TEST_F(MomentsCommand, AFileWithoutCurvesIsTold) {
    EXPECT_EQ(run({"moments", "A.IND"}), 1);
    EXPECT_EQ(err.str(), "A.IND har inga kurvor: en fil med momentkurvor börjar med antalet fack.\n");
    EXPECT_EQ(out.str(), "");
}

TEST_F(MomentsCommand, AFileThatIsCutOffIsARunTimeError) {
    EXPECT_EQ(run({"moments", "-"}, "2,0.25,1"), 1);
    EXPECT_TRUE(err.str().starts_with("Filen på standard in tar slut innan allt är läst")) << err.str();
    EXPECT_EQ(out.str(), "");
}

} // namespace

} // namespace varno
