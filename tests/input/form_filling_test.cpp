#include "input/form_filling.h"

#include <gtest/gtest.h>

#include "model/reference_tables.h"
#include "support/case_files.h"
#include "support/fake_form.h"
#include "support/memory_files.h"

namespace varno {

namespace {

using testing::FakeForm;
using testing::FakeMainWindow;
using testing::sampleCase;
using testing::sampleFile;
using testing::sampleFileWith;

class FormFilling : public ::testing::Test {
  protected:
    // As New and Open do.
    void read(const Bytes& text) {
        const CaseFile caseFile = testing::readCase(text);
        designCase = caseFile.designCase;
        filler.showCase(caseFile.title);
    }
    void readWith(const std::function<void(DesignCase&)>& change) {
        CaseFile caseFile = sampleCase();
        change(caseFile.designCase);
        read(testing::writtenCase(caseFile));
    }

    std::string text(Field field, int index = 0) const { return form.text({field, index}); }
    std::string selected(Field list) const {
        const int row = form.selectedRow(list);
        return row < 0 ? "nothing" : form.rows(list).at(static_cast<std::size_t>(row));
    }
    std::vector<std::string> texts(Field field, int first, int last) const {
        std::vector<std::string> all;
        for (int i = first; i <= last; ++i)
            all.push_back(text(field, i));
        return all;
    }

    DesignCase designCase;
    FakeForm form;
    FakeMainWindow window;
    CaseFormFiller filler{designCase, form, window, {}};
};

using Texts = std::vector<std::string>;

const Texts barRows{"ø 6 ", "ø 8 ", "ø 10", "ø 12", "ø 16"};
const Texts steelRows{"400 ", "500 ", "600 "};

TEST_F(FormFilling, FillsTheFixedLists) {
    form.addRow(Field::duk, "left from before");
    read(sampleFile());
    EXPECT_EQ(form.rows(Field::brandk), Texts{"Brandteknisk klass"});
    EXPECT_EQ(form.rows(Field::duk), barRows);
    EXPECT_EQ(form.rows(Field::dok), barRows);
}

TEST_F(FormFilling, FillsTheListsOfACaseWithTheirTrailingBlanks) {
    read(sampleFile());
    EXPECT_EQ(form.rows(Field::btg), (Texts{"C20/25", "C25/30", "C30/37", "C35/45", "C40/50", "C45/55",
                                            "C50/60", "C55/67", "C60/75"}));
    EXPECT_EQ(form.rows(Field::aok), steelRows);
    EXPECT_EQ(form.rows(Field::auk), steelRows);
    EXPECT_EQ(form.rows(Field::lokt),
              (Texts{"Valfri last", "A-Bostäder ", "B-Kontor   ", "C1         ", "C2         ", "C3         ",
                     "C4         ", "C5         ", "D1         ", "D2         "}));
    read(sampleFile());
    EXPECT_EQ(form.rows(Field::btg).size(), 9u) << "the rows of the case before are still there";
    EXPECT_EQ(form.rows(Field::lokt).size(), 10u);
}

TEST_F(FormFilling, ShowsEveryNumberInItsPattern) {
    read(sampleFile());
    EXPECT_EQ(text(Field::rubrik), "Bärlägg för Ångström");
    EXPECT_EQ(text(Field::nfack), "3");
    EXPECT_EQ(texts(Field::spv, 1, 3), (Texts{"6.00", "12.50", "0.25"}));
    EXPECT_EQ(texts(Field::ptjl, 1, 3), (Texts{"0.170", "0.200", "0.175"}));
    EXPECT_EQ(texts(Field::plast, 1, 3), (Texts{"0.50", "1.00", "-1.50"}));
    EXPECT_EQ(texts(Field::flast, 1, 3), (Texts{"2.50", "3.00", "4.00"}));
    EXPECT_EQ(texts(Field::upl, 0, 3), (Texts{"0.000", "0.100", "0.250", "0.000"}));
    EXPECT_EQ(text(Field::konsv), "1.20");
    EXPECT_EQ(text(Field::konsh), "0.00");
    EXPECT_EQ(text(Field::ktack), "22");
    EXPECT_EQ(text(Field::duarm), "42");
    EXPECT_EQ(text(Field::overhojning), "20");
    EXPECT_EQ(text(Field::initiell), "400");
    EXPECT_EQ(text(Field::tillkommande), "300");
}

TEST_F(FormFilling, ShowsTheChoices) {
    read(sampleFile());
    EXPECT_EQ(selected(Field::lokt), "B-Kontor   ");
    EXPECT_EQ(selected(Field::btg), "C25/30");
    EXPECT_EQ(selected(Field::aok), "400 ");
    EXPECT_EQ(selected(Field::dok), "ø 12");
    EXPECT_EQ(selected(Field::auk), "600 ");
    EXPECT_EQ(selected(Field::duk), "ø 16");
    EXPECT_EQ(selected(Field::brandk), "Brandteknisk klass");
    EXPECT_EQ(form.option(Field::lastkomb), 3);
    EXPECT_EQ(form.option(Field::brukskomb), 2);
    EXPECT_EQ(form.option(Field::brandb), 2);
    EXPECT_EQ(form.option(Field::kutak), 1);
    EXPECT_EQ(form.option(Field::pkl), 2);
    EXPECT_TRUE(form.checked(Field::kavko)); // the file holds -1
    readWith([](DesignCase& c) {
        c.btg = 9;
        c.dok = 5;
        c.kavko = 0;
    });
    EXPECT_EQ(selected(Field::btg), "C60/75");
    EXPECT_EQ(selected(Field::dok), "ø 16");
    EXPECT_FALSE(form.checked(Field::kavko));
}

TEST_F(FormFilling, ShowsTheFactorsOfTheRuleSetAndLocksThem) {
    readWith([](DesignCase& c) {
        c.loadCode = 5;
        c.lokt = 9;
    });
    const std::pair<Field, const char*> factors[] = {
        {Field::lambdaG, "1.20"}, {Field::ksi, "1.00"},  {Field::lambdaQ, "1.50"},
        {Field::psi0, "0.60"},    {Field::psi1, "0.60"}, {Field::psi2, "0.50"},
    };
    for (const auto& [field, shown] : factors) {
        EXPECT_EQ(text(field), shown);
        EXPECT_FALSE(form.state({field}).enabled) << shown;
    }
}

TEST_F(FormFilling, ShowsEmptyFactorsWithoutText) {
    designCase.loadCode = 0;
    filler.showFactors();
    EXPECT_EQ(text(Field::lambdaG), "");
    designCase.ksi(0) = 0.0;
    filler.showFactors();
    EXPECT_EQ(text(Field::ksi), "0.00");
}

constexpr Field classGroups[] = {Field::shkl,   Field::shklpl, Field::pkl,
                                 Field::shklfi, Field::shkldk, Field::shkleu};

TEST_F(FormFilling, ShowsTheFlagAndTheClassFrameOfTheRuleSet) {
    // Flag by flag, from 1
    constexpr int ruleSetOfFlag[] = {1, 3, 5, 4, 2, 6};
    for (int flag = 1; flag <= 6; ++flag) {
        const int ruleSet = ruleSetOfFlag[flag - 1];
        readWith([&](DesignCase& c) {
            c.loadCode = static_cast<std::int16_t>(ruleSet);
            c.safetyClass(ruleSet) = 3;
        });
        EXPECT_EQ(window.flag, flag);
        for (int other = 1; other <= 6; ++other) {
            EXPECT_EQ(form.groupVisible(classGroups[other - 1]), other == ruleSet)
                << ruleSet << ", " << other;
        }
        EXPECT_EQ(form.option(classGroups[ruleSet - 1]), 3);
    }
}

TEST_F(FormFilling, ShowsNeitherFlagNorClassFrameWithoutRules) {
    read(sampleFile());
    readWith([](DesignCase& c) { c.loadCode = 0; });
    EXPECT_EQ(window.flag, 0);
    for (const Field group : classGroups)
        EXPECT_FALSE(form.groupVisible(group));
}

TEST_F(FormFilling, NamesTheLoadRulesInTheFrame) {
    for (int ruleSet = 1; ruleSet <= 6; ++ruleSet) {
        readWith([&](DesignCase& c) { c.loadCode = static_cast<std::int16_t>(ruleSet); });
        EXPECT_EQ(form.state({Field::loadFrame}).caption,
                  ruleSet == 1 ? "Laster enl. BKR" : "Laster enl. Eurokod");
    }
}

TEST_F(FormFilling, SelectsNothingForANumberOutsideTheRowsAndKeepsIt) {
    readWith([](DesignCase& c) {
        c.btg = 10;
        c.aok = 4;
        c.dok = 0;
        c.auk = -1;
        c.duk = 99;
        c.brandk = 2;
    });
    for (const Field list : {Field::btg, Field::aok, Field::dok, Field::auk, Field::duk, Field::brandk})
        EXPECT_EQ(form.selectedRow(list), -1);
    EXPECT_EQ(designCase.btg, 10);
    EXPECT_EQ(designCase.aok, 4);
    EXPECT_EQ(designCase.dok, 0);
    EXPECT_EQ(designCase.auk, -1);
    EXPECT_EQ(designCase.duk, 99);
    EXPECT_EQ(designCase.brandk, 2);
}

TEST_F(FormFilling, ShowsADeflectionLimitOf0AsEmpty) {
    readWith([](DesignCase& c) { c.initiell = c.tillkommande = c.overhojning = 0; });
    EXPECT_EQ(text(Field::initiell), "");
    EXPECT_EQ(text(Field::tillkommande), "");
    EXPECT_EQ(text(Field::overhojning), "0");
}

constexpr Field spanRows[] = {Field::spv, Field::ptjl, Field::plast, Field::flast, Field::upl};

TEST_F(FormFilling, ShowsTheCellsOfTheSpansOnly) {
    for (const int spans : {5, 1, 10, 3}) {
        readWith([&](DesignCase& c) { c.nfack = static_cast<std::int16_t>(spans); });
        for (const Field row : spanRows) {
            for (int span = 1; span <= 10; ++span)
                EXPECT_EQ(form.state({row, span}).visible, span <= spans) << spans << ", " << span;
        }
        EXPECT_TRUE(form.state({Field::upl, 0}).visible);
    }
}

TEST_F(FormFilling, LocksTheWidthOfTheEndSupport) {
    for (const int spans : {5, 3, 10}) {
        readWith([&](DesignCase& c) { c.nfack = static_cast<std::int16_t>(spans); });
        for (int support = 1; support <= spans; ++support)
            EXPECT_EQ(form.state({Field::upl, support}).enabled, support != spans)
                << spans << ", " << support;
        EXPECT_EQ(text(Field::upl, spans), "0.000");
    }
}

TEST_F(FormFilling, ShowsTheFirstTenOfFifteenSpans) {
    readWith([](DesignCase& c) {
        c.nfack = 15;
        for (int span = 1; span <= 15; ++span)
            c.spv(span) = static_cast<float>(span);
    });
    EXPECT_EQ(text(Field::nfack), "15");
    EXPECT_EQ(text(Field::spv, 10), "10.00");
    EXPECT_EQ(text(Field::spv, 11), "");
    EXPECT_TRUE(form.state({Field::spv, 10}).visible);
    EXPECT_TRUE(form.state({Field::upl, 10}).enabled); // an inner support of the fifteen
    EXPECT_EQ(designCase.spv(15), 15.0f);
}

TEST_F(FormFilling, LocksVariableLoadsThatTheCategoryFixes) {
    read(sampleFileWith(9, "0"));
    for (int span = 1; span <= 10; ++span)
        EXPECT_TRUE(form.state({Field::flast, span}).enabled);
    for (int category = 1; category <= 9; ++category) {
        read(sampleFileWith(9, std::to_string(category)));
        for (int span = 1; span <= 10; ++span)
            EXPECT_FALSE(form.state({Field::flast, span}).enabled);
    }
    // The loads of the file stay, whatever the category would give.
    EXPECT_EQ(texts(Field::flast, 1, 3), (Texts{"2.50", "3.00", "4.00"}));
}

TEST_F(FormFilling, CaptionsTheFireOptionsByTheFireClass) {
    const auto captions = [this] {
        Texts all;
        for (int option = 1; option <= 4; ++option)
            all.push_back(form.state({Field::brandb, option}).caption);
        return all;
    };
    for (const int fireClass : {2, 1, 0, 3}) {
        read(sampleFileWith(24, std::to_string(fireClass)));
        if (fireClass == 2) {
            EXPECT_EQ(captions(), (Texts{"100 MJ/m2", "150 MJ/m2", "200 MJ/m2", "250 MJ/m2"}));
        } else {
            EXPECT_EQ(captions(), (Texts{" REI  30 ", " REI  60 ", " REI  90 ", " REI 120 "}));
        }
        EXPECT_EQ(form.state({Field::brandb, 4}).visible, fireClass == 2);
    }
}

TEST_F(FormFilling, ShowsTheRecordAgain) {
    read(sampleFile());
    designCase.nfack = 2;
    designCase.loadCode = 1;
    designCase.konsh = 0.5f;
    designCase.btg = 4;
    filler.showCase("Ny rubrik");
    EXPECT_EQ(text(Field::nfack), "2");
    EXPECT_FALSE(form.state({Field::spv, 3}).visible);
    EXPECT_EQ(text(Field::konsh), "0.50");
    EXPECT_EQ(selected(Field::btg), "C35/45");
    EXPECT_EQ(form.state({Field::loadFrame}).caption, "Laster enl. BKR");
    EXPECT_EQ(text(Field::rubrik), "Ny rubrik");
    EXPECT_EQ(form.rows(Field::lokt).size(), 10u);
}

TEST_F(FormFilling, ShowsTheDecimalSignOfTheUser) {
    CaseFormFiller swedish(designCase, form, window, {.decimal = ",", .thousands = "\u00A0"});
    read(sampleFile());
    swedish.showCase("");
    EXPECT_EQ(text(Field::spv, 2), "12,50");
    EXPECT_EQ(text(Field::lambdaG), "1,35");
    EXPECT_EQ(text(Field::initiell), "400");
}

} // namespace

} // namespace varno
