#include "model/plausibility.h"

#include <gtest/gtest.h>

#include <limits>

#include "model/reference_tables.h"

namespace varno {

namespace {

using Kind = Finding::Kind;

// Three spans of 5.5 m under the Swedish Eurocode, offices: nothing to tell.
DesignCase soundCase() {
    DesignCase c;
    presetDesignCase(c);
    c.nfack = 3;
    c.upl(3) = 0;
    c.loadCode = 3;
    c.lokt = 2;
    for (int span = 1; span <= 3; ++span) {
        c.plast(span) = 0.5f;
        c.flast(span) = 3;
    }
    return c;
}

DesignCase withLineLoad(int span, float distance) {
    DesignCase c = soundCase();
    c.nllast = 2;
    c.llfnr(1) = 2;
    c.avst(1) = 1;
    c.llfnr(2) = static_cast<std::int16_t>(span);
    c.avst(2) = distance;
    return c;
}

TEST(Plausibility, HasNothingToTellOfASoundCase) {
    EXPECT_EQ(implausible(soundCase()), std::vector<Finding>{});
    EXPECT_EQ(implausible(withLineLoad(3, 5.5f)), std::vector<Finding>{});
}

TEST(Plausibility, ASpanOfNoLength) {
    DesignCase c = soundCase();
    c.spv(2) = 0;
    c.spv(3) = -1.25f;
    EXPECT_EQ(implausible(c),
              (std::vector<Finding>{{Kind::spanLength, "spv", 2, "Spännvidden i fack 2 är 0 m."},
                                    {Kind::spanLength, "spv", 3, "Spännvidden i fack 3 är -1,25 m."}}));
}

TEST(Plausibility, AnInnerSupportOfNoWidth) {
    DesignCase c = soundCase();
    c.upl(2) = 0;
    EXPECT_EQ(implausible(c),
              (std::vector<Finding>{{Kind::supportWidth, "upl", 2, "Upplagsbredden vid stöd 2 är 0 m."}}));
    c.nfack = 2;
    EXPECT_EQ(implausible(c), std::vector<Finding>{}) << "the end supports have none";
}

TEST(Plausibility, ASpanThatWasAddedHasNoPermanentLoadAndTheOldEndSupportNoWidth) {
    DesignCase c = soundCase();
    c.nfack = 4;
    c.upl(4) = 0;
    EXPECT_EQ(
        implausible(c),
        (std::vector<Finding>{{Kind::supportWidth, "upl", 3, "Upplagsbredden vid stöd 3 är 0 m."},
                              {Kind::permanentLoad, "plast", 4, "Permanent last saknas i fack 4."},
                              {Kind::variableLoad, "flast", 4,
                               "Variabel last i fack 4 är 2 kN/m2; lastkategori B-Kontor har 3 kN/m2."}}));
}

TEST(Plausibility, TheVariableLoadIsThatOfTheCategory) {
    for (int ruleSet = 1; ruleSet <= maxLoadCode; ++ruleSet) {
        for (int category = 1; category <= maxLoadCategory; ++category) {
            DesignCase c = soundCase();
            c.loadCode = static_cast<std::int16_t>(ruleSet);
            c.lokt = static_cast<std::int16_t>(category);
            for (int span = 1; span <= 3; ++span)
                c.flast(span) = loadFactorTable(ruleSet, category);
            EXPECT_EQ(implausible(c).size(), 0U) << ruleSet << ' ' << category;
            c.flast(3) += 0.01f;
            ASSERT_EQ(implausible(c).size(), 1U) << ruleSet << ' ' << category;
            EXPECT_EQ(implausible(c)[0].kind, Kind::variableLoad);
            EXPECT_EQ(implausible(c)[0].index, 3);
        }
    }
}

TEST(Plausibility, TheUsersOwnLoadMayBeAnything) {
    DesignCase c = soundCase();
    c.flast(1) = 17;
    EXPECT_EQ(implausible(c).size(), 1U);
    c.lokt = 0;
    EXPECT_EQ(implausible(c).size(), 0U);
    c.lokt = 2;
    c.loadCode = 0;
    EXPECT_EQ(implausible(c).size(), 0U) << "without load rules there is nothing to compare with";
}

TEST(Plausibility, ACantileverLongerThanTheSpanBesideIt) {
    DesignCase c = soundCase();
    c.spv(1) = 2;
    c.konsv = 2;
    c.konsh = 5.5f;
    EXPECT_EQ(implausible(c), std::vector<Finding>{});
    c.konsv = 2.5f;
    c.konsh = 5.505f;
    EXPECT_EQ(implausible(c),
              (std::vector<Finding>{
                  {Kind::cantilever, "konsv", 0, "Vänster konsol, 2,5 m, är längre än fack 1, 2 m."},
                  {Kind::cantilever, "konsh", 0, "Höger konsol, 5,505 m, är längre än fack 3, 5,5 m."}}));
}

TEST(Plausibility, ALineLoadInASpanThatIsNotThere) {
    EXPECT_EQ(implausible(withLineLoad(4, 1)),
              (std::vector<Finding>{
                  {Kind::lineLoadSpan, "llfnr", 2, "Linjelast 2 står i fack 4, men plattan har 3 fack."}}));
    EXPECT_EQ(implausible(withLineLoad(0, 1)).size(), 1U);
    EXPECT_EQ(implausible(withLineLoad(-32768, 1)).size(), 1U);
    DesignCase c = withLineLoad(4, 1);
    c.nllast = 1;
    EXPECT_EQ(implausible(c).size(), 0U) << "a load that is not in use";
}

TEST(Plausibility, ALineLoadBesideItsSpan) {
    EXPECT_EQ(implausible(withLineLoad(2, 5.505f)),
              (std::vector<Finding>{
                  {Kind::lineLoadPlace, "avst", 2,
                   "Linjelast 2 står utanför fack 2: avståndet är 5,505 m och spännvidden 5,5 m."}}));
    EXPECT_EQ(implausible(withLineLoad(2, -0.01f)).size(), 1U);
    EXPECT_EQ(implausible(withLineLoad(1, -0.01f)).size(), 1U);
}

TEST(Plausibility, AFreeLineLoadIsLookedAtAsOneOfTheCase) {
    DesignCase c = withLineLoad(4, 1);
    c.nllastf = 2;
    c.llfnrf(1) = 1;
    c.avstf(1) = 5.6f;
    c.llfnrf(2) = 5;
    EXPECT_EQ(
        implausible(c),
        (std::vector<Finding>{
            {Kind::lineLoadSpan, "llfnr", 2, "Linjelast 2 står i fack 4, men plattan har 3 fack."},
            {Kind::lineLoadPlace, "avstf", 1,
             "Fri linjelast 1 står utanför fack 1: avståndet är 5,6 m och spännvidden 5,5 m."},
            {Kind::lineLoadSpan, "llfnrf", 2, "Fri linjelast 2 står i fack 5, men plattan har 3 fack."}}));
}

TEST(Plausibility, ALineLoadOnACantileverStandsWhereItShould) {
    DesignCase c = withLineLoad(1, -1.2f);
    c.konsv = 1.2f;
    EXPECT_EQ(implausible(c).size(), 0U);
    c.avst(2) = -1.21f;
    EXPECT_EQ(implausible(c).size(), 1U);
    c.llfnr(2) = 2;
    c.avst(2) = -1;
    EXPECT_EQ(implausible(c).size(), 1U) << "there is no cantilever beside the second span";
    c = withLineLoad(3, 6.5f);
    c.konsh = 1;
    EXPECT_EQ(implausible(c).size(), 0U);
    c.avst(2) = 6.51f;
    EXPECT_EQ(implausible(c).size(), 1U);
}

TEST(Plausibility, TakesWhateverTheRecordHolds) {
    DesignCase c = withLineLoad(32767, std::numeric_limits<float>::quiet_NaN());
    c.nfack = 32767;
    c.nllast = 32767;
    c.lokt = c.loadCode = -5;
    c.spv(15) = std::numeric_limits<float>::quiet_NaN();
    EXPECT_GT(implausible(c).size(), 0U);
    c.nfack = -1;
    c.nllast = -1;
    EXPECT_EQ(implausible(c).size(), 0U);
}

TEST(Plausibility, EveryKindHasAName) {
    EXPECT_EQ(nameOf(Kind::spanLength), "spanLength");
    EXPECT_EQ(nameOf(Kind::variableLoad), "variableLoad");
    EXPECT_EQ(nameOf(Kind::lineLoadPlace), "lineLoadPlace");
}

} // namespace

} // namespace varno
