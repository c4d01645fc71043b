#include "shell/status_line.h"

#include <gtest/gtest.h>

namespace varno {
namespace {

class StatusLineTest : public ::testing::Test {
  protected:
    StatusLineTest() {
        designCase.nfack = 3;
        facts.folder = "C:\\fall";
        facts.totalLength = 16.5f;
    }
    StatusWords words() const { return line.words(facts); }
    std::string why(Control box) {
        facts.lockedBox = box;
        return words().reason;
    }

    DesignCase designCase;
    DocumentState document;
    NumberLocale locale{",", ""};
    StatusLine line{designCase, document, locale};
    StatusFacts facts;
};

TEST_F(StatusLineTest, SavedOrChangedAndWhereItIsSaved) {
    EXPECT_EQ(words().state, "Nytt fall");
    document.caseSaved = true;
    EXPECT_EQ(words().state, "Sparad");
    facts.changed = true;
    EXPECT_EQ(words().state, "Ändrad, inte sparad");
    EXPECT_EQ(words().folder, "Sparas i C:\\fall");
}

TEST_F(StatusLineTest, WhatToLookAtTwiceIsCountedAndToldAtItsBox) {
    facts.doubts = 2;
    EXPECT_EQ(words().state, "Nytt fall, se över 2");
    EXPECT_EQ(words().reason, "");
    facts.doubt = "Permanent last saknas i fack 2.";
    EXPECT_EQ(words().reason, "Permanent last saknas i fack 2.");
    EXPECT_EQ(why({Field::upl, 0}), "Låst: ändupplagens bredd är alltid 0.")
        << "what cannot be done comes first";
}

TEST_F(StatusLineTest, TheLengthHasTheUsersDecimalSign) {
    EXPECT_EQ(words().length, "Total längd 16,50 m");
}

TEST_F(StatusLineTest, TheResultIsOlderOnceTheInputIsAnother) {
    EXPECT_EQ(words().result, "Inte beräknad");
    line.calculated("2026-11-21 15:40:07");
    EXPECT_EQ(words().result, "Beräknad 2026-11-21 15:40");
    designCase.spv(2) = 7;
    EXPECT_EQ(words().result, "Beräknad 2026-11-21 15:40, äldre än indata");
    designCase.spv(2) = DesignCase{}.spv(2);
    EXPECT_EQ(words().result, "Beräknad 2026-11-21 15:40");
    line.opened();
    EXPECT_EQ(words().result, "Inte beräknad");
}

TEST_F(StatusLineTest, FreeLineLoadsAreNotCalculatedWith) {
    line.calculated("2026-11-21 15:40:07");
    designCase.nllastf = 2;
    designCase.lllastf(1) = 5;
    EXPECT_EQ(words().result, "Beräknad 2026-11-21 15:40");
    designCase.nllast = 1;
    EXPECT_NE(words().result, "Beräknad 2026-11-21 15:40");
}

TEST_F(StatusLineTest, WhatIsShownIsTold) {
    document.currentFileName = "KONTOR";
    ShownResult shown{"KONTOR", "KONTOR.res", "2026-11-21 15:40:07", false};
    line.opened();
    EXPECT_EQ(line.resultLine(shown), "KONTOR.res, beräknad 2026-11-21 15:40");
    designCase.spv(2) = 7;
    EXPECT_EQ(line.resultLine(shown), "KONTOR.res, beräknad 2026-11-21 15:40, äldre än indata");
    line.calculated("2026-11-21 15:41:00");
    EXPECT_EQ(line.resultLine(shown), "KONTOR.res, beräknad 2026-11-21 15:40");
    designCase.spv(2) = 8;
    EXPECT_EQ(line.resultLine(shown), "KONTOR.res, beräknad 2026-11-21 15:40, äldre än indata");
    shown.written.clear();
    EXPECT_EQ(line.resultLine(shown), "KONTOR.res, äldre än indata");
    document.currentFileName = "Bostad";
    shown.written = "2026-11-21 15:40:07";
    EXPECT_EQ(line.resultLine(shown), "KONTOR.res, beräknad 2026-11-21 15:40. Nu är BOSTAD.IND öppet.");
}

TEST_F(StatusLineTest, AResultOfBeforeIsAsOldAsItsFiles) {
    document.currentFileName = "KONTOR";
    ShownResult shown{"KONTOR", "KONTOR.res", "2026-11-21 15:40:07", true};
    line.opened();
    EXPECT_TRUE(line.resultLine(shown).ends_with(", äldre än indata"));
    line.calculated("2026-11-21 15:41:00");
    EXPECT_FALSE(line.resultLine(shown).ends_with(", äldre än indata"))
        << "a title that was saved is not calculated with";
    line.opened();
    shown.inputIsNewer = false;
    document.dataChanged = true;
    EXPECT_TRUE(line.resultLine(shown).ends_with(", äldre än indata"))
        << "a rescued case came as a changed one";
}

TEST_F(StatusLineTest, SaysWhyABoxIsLocked) {
    EXPECT_EQ(words().reason, "");
    EXPECT_EQ(why({Field::upl, 0}), "Låst: ändupplagens bredd är alltid 0.");
    designCase.lokt = 1;
    EXPECT_EQ(
        why({Field::flast, 1}),
        "Låst: lastkategorin A-Bostäder bestämmer lasten. Med \"Valfri last\" skrivs den fack för fack.");
    designCase.lokt = 77;
    EXPECT_EQ(why({Field::flast, 1}),
              "Låst: lastkategorin bestämmer lasten. Med \"Valfri last\" skrivs den fack för fack.");
    for (const Field factor : {Field::lambdaG, Field::lambdaQ, Field::ksi, Field::psi0, Field::psi1})
        EXPECT_EQ(why({factor}), "Låst: faktorn följer regelverket. Den öppnas när flaggan klickas fram till "
                                 "\"Eurokod, allmänt\".");
    EXPECT_EQ(why({Field::psi2}), "Låst: faktorn följer regelverk och lastkategori.");
}

TEST_F(StatusLineTest, SaysWhyDiagramIsGrey) {
    facts.greyDiagram = true;
    EXPECT_EQ(words().reason,
              "Diagram är grå: fallet är inte beräknat. Välj \"Kör...\" i menyn \"Beräkning\".");
    line.calculated("2026-11-21 15:40:07");
    EXPECT_EQ(words().reason,
              "Diagram är grå: indata har ändrats sedan beräkningen. Välj \"Kör...\" i menyn \"Beräkning\".");
}

} // namespace
} // namespace varno
