#include "tool/command_line.h"
#include "tool/fake_engines.h"
#include "tool/told.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <sstream>

#include "diagram/moment_curves.h"
#include "drawing/svg_check.h"
#include "support/case_files.h"
#include "support/memory_files.h"
#include "tool/drawing_list.h"

namespace varno {

namespace {

using nlohmann::json;
using testing::errorOf;

class DrawingCommands : public ::testing::Test {
  protected:
    // Two spans of 6 m between cantilevers of 1 m: 600 twips per metre.
    void SetUp() override {
        CaseFile sample = testing::sampleCase();
        DesignCase& c = sample.designCase;
        c.nfack = 2;
        c.spv(1) = c.spv(2) = 6;
        c.plast(1) = c.flast(1) = 1;
        c.plast(2) = c.flast(2) = 2;
        c.konsv = c.konsh = 1;
        c.nllast = 1;
        c.llfnr(1) = 2;
        c.avst(1) = 0.5f;
        c.lllast(1) = 5;
        files.content["A.IND"] = testing::writtenCase(sample);
        const testing::Curve curve{testing::CurveSpan(0.25, 10), testing::CurveSpan(0.25, -5)};
        files.content["momk.dat"] = testing::momentFileOf(curve, curve);
    }
    int run(const std::vector<std::string>& arguments) {
        out.str("");
        err.str("");
        return tool::runTool(arguments, {files, nothing, out, err, engines});
    }
    std::vector<std::string> listed() const {
        std::vector<std::string> lines;
        std::istringstream in(out.str());
        for (std::string line; std::getline(in, line);)
            lines.push_back(line);
        return lines;
    }

    testing::MemoryFiles files;
    std::istringstream nothing;
    std::ostringstream out;
    std::ostringstream err;
    testing::FakeEngines engines;
};

TEST_F(DrawingCommands, ListTheSketchInDrawingOrder) {
    ASSERT_EQ(run({"sketch", "A.IND", "--list"}), 0) << err.str();
    const auto lines = listed();
    ASSERT_GT(lines.size(), 24u);
    EXPECT_EQ(lines[0], R"({"surface":"strip","op":"clear"})");
    EXPECT_EQ(lines[1], R"({"surface":"strip","op":"box","x1":340,"y1":75,"x2":8740,"y2":50,"colour":4,)"
                        R"("filled":true})");
    EXPECT_EQ(lines[2], R"({"surface":"strip","op":"button","index":0,"visible":true,"left":900,"top":90})");
    EXPECT_EQ(lines[4], R"({"surface":"strip","op":"button","index":2,"visible":true,"left":8100,"top":90})");
    EXPECT_EQ(lines[5], R"({"surface":"strip","op":"button","index":3,"visible":false})");
    EXPECT_EQ(lines[17], R"({"surface":"strip","op":"button","index":15,"visible":false})");
    EXPECT_EQ(lines[18], R"({"surface":"load","op":"clear"})");
    // The first span carries half the load of the second, on 7 m: ten parts of 420 twips.
    EXPECT_EQ(lines[19], R"({"surface":"load","op":"box","x1":0,"y1":800,"x2":4200,"y2":400,"colour":"fg",)"
                         R"("filled":false})");
    EXPECT_EQ(lines[20], R"({"surface":"load","op":"line","x1":0,"y1":800,"x2":0,"y2":400,"colour":"fg",)"
                         R"("width":1})");
    EXPECT_EQ(lines[lines.size() - 3],
              R"({"surface":"load","op":"line","x1":4500,"y1":800,"x2":4500,"y2":100,)"
              R"("colour":4,"width":2})");
    for (const std::string& line : lines)
        EXPECT_TRUE(json::accept(line)) << line;
}

TEST_F(DrawingCommands, TheListHoldsWhatTheCanvasDraws) {
    tool::ListCanvas canvas("strip", out);
    canvas.disc({940.5, 65}, 30, Colour::foreground(), brightWhite);
    canvas.box({1, 0.1}, {2, 1e-9}, brightWhite, Fill::none);
    canvas.line({-0.5, 1e9}, {0, 0}, green, 2);
    const auto lines = listed();
    EXPECT_EQ(lines[0], R"({"surface":"strip","op":"circle","x":940.5,"y":65,"r":30,"colour":"fg"})");
    EXPECT_EQ(json::parse(lines[1]), (json{{"surface", "strip"},
                                           {"op", "box"},
                                           {"x1", 1},
                                           {"y1", 0.1},
                                           {"x2", 2},
                                           {"y2", 1e-9},
                                           {"colour", 15},
                                           {"filled", false}}));
    EXPECT_EQ(json::parse(lines[2])["y1"], 1e9);
    EXPECT_EQ(json::parse(lines[2])["colour"], 2);
}

TEST_F(DrawingCommands, ListTheDiagram) {
    ASSERT_EQ(run({"diagram", "A.IND", "momk.dat", "--list"}), 0) << err.str();
    const auto lines = listed();
    EXPECT_EQ(lines[0], R"({"surface":"diagram","op":"clear"})");
    // 10 is the largest moment; ordinates of the left cantilever 180 twips apart, then its ramp.
    EXPECT_EQ(lines[1], R"({"surface":"diagram","op":"line","x1":340,"y1":2000,"x2":340,"y2":2000,)"
                        R"("colour":"fg","width":1})");
    EXPECT_EQ(lines[5], R"({"surface":"diagram","op":"line","x1":340,"y1":2000,"x2":940,"y2":3900,)"
                        R"("colour":"fg","width":1})");
    EXPECT_EQ(lines[6], R"({"surface":"diagram","op":"box","x1":940,"y1":3900,"x2":940,"y2":2000,)"
                        R"("colour":"fg","filled":false})");
    EXPECT_EQ(lines.back(), R"({"surface":"diagram","op":"line","x1":8740,"y1":2000,"x2":340,"y2":2000,)"
                            R"("colour":"fg","width":1})");
    const std::size_t perCurve = 5 + 2 * 41 + 5;
    ASSERT_EQ(lines.size(), 1 + 2 * perCurve + 1);
    EXPECT_EQ(json::parse(lines[1 + perCurve])["colour"], 4);
    EXPECT_EQ(json::parse(lines[1 + perCurve + 5])["colour"], "fg") << "supports are never red";
}

TEST_F(DrawingCommands, DrawIntoAnSvgFile) {
    ASSERT_EQ(run({"sketch", "A.IND", "--svg", "S.svg"}), 0) << err.str();
    ASSERT_EQ(run({"diagram", "A.IND", "momk.dat", "--svg", "D.svg"}), 0) << err.str();
    EXPECT_EQ(out.str(), "");
    for (const char* name : {"S.svg", "D.svg"}) {
        std::string svg = files.content.at(name);
        std::erase(svg, '\r');
        EXPECT_EQ(testing::svgFault(svg), "") << name;
        EXPECT_NE(svg.find("#800000"), std::string::npos) << name << " has nothing red";
    }
    EXPECT_NE(files.content["D.svg"].find("viewBox=\"0 0 9600 4800\""), std::string::npos);
    EXPECT_NE(files.content["D.svg"].find("M340 2000 L940 3900"), std::string::npos);
}

TEST_F(DrawingCommands, AFileThatCannotBeDrawnIsARunTimeErrorAndNoPicture) {
    EXPECT_EQ(run({"sketch", "B.IND", "--svg", "S.svg"}), 1);
    testing::expectTold(err.str(), "Filen B.IND finns inte.", "52: Bad file name or number");
    EXPECT_EQ(run({"diagram", "A.IND", "saknas.dat", "--svg", "D.svg"}), 1);
    testing::expectTold(err.str(), "Filen saknas.dat finns inte.", "52: Bad file name or number");
    files.content["noll.dat"] = testing::momentFileOf({testing::CurveSpan(1)}, {testing::CurveSpan(1)});
    EXPECT_EQ(run({"diagram", "A.IND", "noll.dat", "--svg", "D.svg"}), 1);
    testing::expectTold(err.str(), "Alla moment i momk.dat är 0.", "11: Division by zero");
    files.content["kort.dat"] = "2,0.25,1";
    EXPECT_EQ(run({"diagram", "A.IND", "kort.dat", "--list"}), 1);
    testing::expectTold(
        err.str(),
        "Filen kort.dat tar slut innan allt är läst: den är tom, avklippt eller av ett annat slag.",
        "62: Input past end of file");
    EXPECT_EQ(out.str(), "");
    EXPECT_FALSE(files.content.contains("S.svg"));
    EXPECT_FALSE(files.content.contains("D.svg"));
}

TEST_F(DrawingCommands, ASketchThatFailsIsListedAsFarAsItCame) {
    CaseFile sample = testing::sampleCase();
    sample.designCase.llfnr(1) = 16;
    files.content["B.IND"] = testing::writtenCase(sample);
    EXPECT_EQ(run({"sketch", "B.IND", "--list"}), 1);
    testing::expectTold(err.str(), "Ett nummer eller ett antal är större än vad som får plats.",
                        "9: Subscript out of range");
    EXPECT_EQ(listed()[0], R"({"surface":"strip","op":"clear"})");
    EXPECT_EQ(run({"sketch", "B.IND", "--svg", "S.svg"}), 1);
    EXPECT_FALSE(files.content.contains("S.svg"));
}

TEST_F(DrawingCommands, APictureIsEitherListedOrDrawn) {
    const std::vector<std::string> wrong[] = {
        {"sketch", "A.IND"},
        {"sketch", "--list"},
        {"sketch", "A.IND", "--svg"},
        {"sketch", "A.IND", "--list", "--svg", "S.svg"},
        {"diagram", "A.IND", "--list"},
        {"diagram", "A.IND", "momk.dat"},
        {"diagram", "A.IND", "momk.dat", "--list", "--svg", "D.svg"},
        {"pages"},
    };
    for (const auto& arguments : wrong) {
        EXPECT_EQ(run(arguments), 2) << ::testing::PrintToString(arguments);
        EXPECT_TRUE(err.str().starts_with("Fel användning: "));
    }
    EXPECT_TRUE(files.calls.empty());
    EXPECT_EQ(run({"diagram", "--list", "A.IND", "momk.dat"}), 0) << "in any order";
}

TEST_F(DrawingCommands, HelpIsSwedish) {
    for (const char* command : {"sketch", "diagram", "pages"}) {
        EXPECT_EQ(run({command, "--help"}), 0);
        EXPECT_NE(out.str().find("Användning: varnotool " + std::string(command)), std::string::npos)
            << out.str();
        for (const char* english : {"Usage", "Options", "OPTIONS", "REQUIRED", "TEXT", "Positionals"})
            EXPECT_EQ(out.str().find(english), std::string::npos) << english << " in " << out.str();
    }
}

TEST_F(DrawingCommands, PagesAreAnArrayOfTexts) {
    files.content["A.res"] = "B\x84rlag \xB2 \"x\"\\\r\nslut^\r\nmer";
    ASSERT_EQ(run({"pages", "A.res"}), 0) << err.str();
    EXPECT_EQ(json::parse(out.str()), (json{"\r\nBärlag ² \"x\"\\\r\nslut^", "\r\nmer"}));
    files.content["A.res"] = "";
    ASSERT_EQ(run({"pages", "A.res"}), 0);
    EXPECT_EQ(out.str(), "[]\n");
}

TEST_F(DrawingCommands, ASeventhPageIsARunTimeError) {
    files.content["A.res"] = "^\n^\n^\n^\n^\n^\n";
    ASSERT_EQ(run({"pages", "A.res"}), 0);
    EXPECT_EQ(json::parse(out.str()).size(), 6u);
    files.content["A.res"] += "7";
    EXPECT_EQ(run({"pages", "A.res"}), 1);
    testing::expectTold(err.str(), "Ett nummer eller ett antal är större än vad som får plats.",
                        "9: Subscript out of range");
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(run({"pages", "saknas.res"}), 1);
    testing::expectTold(err.str(), "Filen saknas.res finns inte.", "52: Bad file name or number");
}

} // namespace

} // namespace varno
