#include <nlohmann/json.hpp>

#include "tool/tool_runner.h"

namespace varno {

namespace {

using nlohmann::json;

// Nothing to tell of it.
void makeSound(DesignCase& c) {
    c.lokt = 0;
    c.spv(3) = 5;
    c.plast(3) = 1;
}

class CheckCommand : public testing::ToolRunner {
  protected:
    void SetUp() override {
        put("A.IND", makeSound);
        put("B.IND", [](DesignCase& c) {
            makeSound(c);
            c.upl(2) = 0;
            c.konsv = 7;
        });
    }
};

TEST_F(CheckCommand, FindsNothingInASoundCase) {
    EXPECT_EQ(run({"check", "A.IND"}), 0);
    EXPECT_EQ(out.str() + err.str(), "");
    EXPECT_EQ(run({"check", "--json", "A.IND"}), 0);
    EXPECT_EQ(out.str(), "[]\n");
}

TEST_F(CheckCommand, TellsEachThingOnALineOfItsOwn) {
    EXPECT_EQ(run({"check", "A.IND", "B.IND"}), 3);
    EXPECT_EQ(out.str(), "B.IND: Upplagsbredden vid stöd 2 är 0 m.\n"
                         "B.IND: Vänster konsol, 7 m, är längre än fack 1, 6 m.\n");
}

TEST_F(CheckCommand, TellsWhatIsToldWhenAFileIsOpened) {
    files.content["C.IND"] = testing::sampleFileWith(16, "C25");
    EXPECT_EQ(run({"check", "C.IND"}), 3);
    EXPECT_TRUE(out.str().starts_with("C.IND: Rad 16 (Betongklass): \"C25\" står där ett tal väntas.\n"))
        << out.str();
}

TEST_F(CheckCommand, TellsWhatASaveWouldLose) {
    files.content["C.IND"] = testing::sampleFileWith(6, "6.12345125000.250  ");
    EXPECT_EQ(run({"check", "C.IND"}), 3);
    EXPECT_NE(out.str().find("C.IND: När fallet sparas: Spännvidd (m), fack 1: 6,12345 blir 6,123.\n"),
              std::string::npos)
        << out.str();
}

TEST_F(CheckCommand, TellsOfASketchThatCannotBeDrawn) {
    put("C.IND", [](DesignCase& c) {
        makeSound(c);
        c.llfnr(1) = 16;
    });
    EXPECT_EQ(run({"check", "C.IND"}), 3);
    EXPECT_NE(out.str().find("C.IND: Skissen kan inte ritas: "), std::string::npos) << out.str();
    EXPECT_NE(out.str().find("C.IND: Linjelast 1 står i fack 16, men plattan har 3 fack.\n"),
              std::string::npos)
        << out.str();
}

TEST_F(CheckCommand, GoesOnBehindAFileThatCannotBeRead) {
    files.content["C.IND"] = "kort\r\n";
    EXPECT_EQ(run({"check", "SAKNAS.IND", "C.IND", "B.IND"}), 1);
    EXPECT_TRUE(out.str().starts_with("SAKNAS.IND: Filen SAKNAS.IND finns inte.\n"
                                      "C.IND: Filen har bara 1 rader."))
        << out.str();
    EXPECT_NE(out.str().find("\nC.IND: Filen C.IND tar slut på rad 2 "), std::string::npos) << out.str();
    EXPECT_NE(out.str().find("\nB.IND: Upplagsbredden"), std::string::npos) << out.str();
    EXPECT_EQ(err.str(), "");
}

TEST_F(CheckCommand, TellsAScriptTheSame) {
    files.content["C.IND"] = testing::sampleFileWith(16, "\"x\"y");
    EXPECT_EQ(run({"check", "--json", "B.IND", "C.IND", "SAKNAS.IND"}), 1);
    const json remarks = json::parse(out.str());
    EXPECT_EQ(remarks[0], (json{{"file", "B.IND"},
                                {"kind", "plausibility"},
                                {"rule", "supportWidth"},
                                {"field", "upl"},
                                {"index", 2},
                                {"text", "Upplagsbredden vid stöd 2 är 0 m."}}));
    EXPECT_FALSE(remarks[1].contains("index")) << remarks[1];
    EXPECT_EQ(remarks[2]["kind"], "file");
    EXPECT_EQ(remarks[2]["line"], 16);
    EXPECT_EQ(remarks.back()["kind"], "unreadable");
    EXPECT_EQ(remarks.back()["file"], "SAKNAS.IND");
}

TEST_F(CheckCommand, ReadsTheStandardInput) {
    EXPECT_EQ(run({"check", "-"}, files.content["B.IND"]), 3);
    EXPECT_TRUE(out.str().starts_with("-: Upplagsbredden vid stöd 2")) << out.str();
}

} // namespace

} // namespace varno
