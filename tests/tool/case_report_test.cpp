#include "tool/commands.h"

#include <gtest/gtest.h>

#include <functional>

#include "base/text.h"
#include "support/case_files.h"

namespace varno {

namespace {

std::string reportWith(const std::function<void(DesignCase&)>& change) {
    CaseFile loaded = testing::sampleCase();
    change(loaded.designCase);
    return tool::caseReport(loaded);
}

void expectLine(const std::string& report, const std::string& line) {
    EXPECT_NE(report.find("\n" + line + "\n"), std::string::npos) << '"' << line << "\" is not in\n"
                                                                  << report;
}

constexpr const char* sampleReport = R"(NAMNLÖS.IND
===========
Bärlägg för Ångström

Lastförutsättningar
  Lastregler                    Eurokod, Sverige
  Pålitlighetsklass             2
  Lastkategori                  B-Kontor
  Lastkombination               6.10 a och 6.10 b
  Partialkoefficient γG         1,35
  Reduktionsfaktor ξ            0,89
  Partialkoefficient γQ         1,50
  Lastfaktorer ψ0, ψ1, ψ2       0,70  0,50  0,30

Fack (3)
  Fack  Spännvidd  Plattjocklek  Permanent last  Variabel last
                m             m           kN/m2          kN/m2
     1      6,00          0,170           0,50           2,50
     2     12,50          0,200           1,00           3,00
     3      0,25          0,175          -1,50           4,00

Upplag och konsoler
  Upplag  Bredd
              m
       0  0,000
       1  0,100
       2  0,250
       3  0,000
  Konsol vänster                1,20 m
  Konsol höger                  saknas

Linjelaster (2)
  Nr  Fack  Avstånd    Last
                  m    kN/m
   1     1    2,50   10,00
   2     3    0,125   7,75

Betong och armering
  Betongklass                   C25/30
  Överkant: stål fyk            400 MPa
  Överkant: stångdiameter       ø 12
  Överkant: täckande skikt      22 mm
  Överkant: avkortning          ja
  Underkant: stål fyk           600 MPa
  Underkant: stångdiameter      ø 16
  Underkant: avst. tyngdpunkt   42 mm

Brand
  Brandklass                    Brandteknisk klass
  Beräkningsmetod - Brand       REI 60
  Undertak                      Saknas

Deformation
  Laster                        Karakteristiska laster
  Initiell nedböjning           L / 400
  Tillkommande nedböjning       L / 300
  Överhöjning                   20 mm
)";

TEST(CaseReport, ShowsACaseAsAPersonWouldReadIt) {
    EXPECT_EQ(tool::caseReport(testing::sampleCase()), sampleReport);
}

TEST(CaseReport, ShowsNumbersOutsideTheListsAsNumbers) {
    const std::string report = reportWith([](DesignCase& c) {
        c.safetyClass(3) = 0;
        c.lastkomb = 4;
        c.btg = 10;
        c.aok = 0;
        c.dok = 6;
        c.auk = -1;
        c.duk = 0;
        c.brandk = 3;
        c.brandb = 5;
        c.kutak = 0;
        c.brukskomb = 9;
        c.initiell = 0;
        c.kavko = 0;
    });
    expectLine(report, "  Pålitlighetsklass             0");
    expectLine(report, "  Lastkombination               4");
    expectLine(report, "  Betongklass                   10");
    expectLine(report, "  Överkant: stål fyk            0");
    expectLine(report, "  Överkant: stångdiameter       6");
    expectLine(report, "  Underkant: stål fyk           -1");
    expectLine(report, "  Brandklass                    3");
    expectLine(report, "  Beräkningsmetod - Brand       5");
    expectLine(report, "  Undertak                      0");
    expectLine(report, "  Laster                        9");
    expectLine(report, "  Initiell nedböjning           anges ej");
    expectLine(report, "  Överkant: avkortning          nej");
}

TEST(CaseReport, ShowsACaseWithoutRulesAndLineLoads) {
    const std::string report = reportWith([](DesignCase& c) {
        c.loadCode = 0;
        c.nllast = 0;
        c.nfack = 0;
    });
    expectLine(report, "  Lastregler                    0");
    expectLine(report, "  Partialkoefficient γG         –");
    expectLine(report, "Linjelaster (0)\n  Inga");
}

TEST(CaseReport, ShowsAllSpansAndNoMoreLineLoadsThanThereAre) {
    const std::string report = reportWith([](DesignCase& c) {
        c.nfack = 15;
        c.spv(15) = 7.125f;
        c.nllast = 7;
    });
    expectLine(report, "    15      7,125         0,000           0,00           0,00");
    expectLine(report, "   5     0    0,00    0,00");
    EXPECT_EQ(report.find("   6     0"), std::string::npos);
}

TEST(CaseReport, NamesTheRuleSetsAndTheirClasses) {
    const char* lines[] = {
        "Lastregler                    0\n  Säkerhetsklass                2",
        "Lastregler                    Svenska byggregler (BKR)\n  Säkerhetsklass                2",
        "Lastregler                    Eurokod, Polen\n  Säkerhetsklass                RC2",
        "Lastregler                    Eurokod, Sverige\n  Pålitlighetsklass             2",
        "Lastregler                    Eurokod, Finland\n  Säkerhetsklass                RC2",
        "Lastregler                    Eurokod, Danmark\n  Konstruktionssklasse          2",
        "Lastregler                    Eurokod, allmänt\n  Säkerhetsklass                RC2"};
    for (int ruleSet = 0; ruleSet <= maxLoadCode; ++ruleSet) {
        const std::string report = reportWith([&](DesignCase& c) {
            c.loadCode = static_cast<std::int16_t>(ruleSet);
            c.safetyClass(ruleSet) = 2;
        });
        expectLine(report, std::string("  ") + lines[ruleSet]);
    }
}

TEST(CaseReport, NamesTheChoicesAsTheFormDoes) {
    const std::string report = reportWith([](DesignCase& c) {
        c.lokt = 1;
        c.lastkomb = 2;
        c.brukskomb = 1;
        c.kutak = 2;
        c.brandb = 4;
    });
    expectLine(report, "  Lastkategori                  A-Bostäder");
    expectLine(report, "  Lastkombination               6.10 b");
    expectLine(report, "  Laster                        Frekventa laster");
    expectLine(report, "  Undertak                      13 Gips");
    expectLine(report, "  Beräkningsmetod - Brand       REI 120");
    expectLine(reportWith([](DesignCase& c) {
                   c.brandk = 2;
                   c.brandb = 1;
               }),
               "  Beräkningsmetod - Brand       100 MJ/m2");
}

TEST(CaseReport, AlignsCharactersAndNotBytes) {
    const std::string report = reportWith([](DesignCase& c) { c.nllast = 1; });
    expectLine(report,
               "  Nr  Fack  Avstånd    Last\n                  m    kN/m\n   1     1    2,50   10,00");
    EXPECT_EQ(characterCount("Åäö €"), 5u);
}

} // namespace

} // namespace varno
