#include "engine/result_text.h"

#include "engine/pages.h"
#include "engine/run.h"
#include "tests/engine/support.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace varno::engine {
namespace {

const std::string dosLetters = "\x8F\x8E\x99\x86\x84\x94";

constexpr const char* when = "2026-11-21 20:35";

std::string textOf(const test::CaseFile& file) {
    const CaseOnFile c = readCase(file.text());
    return resultText(c, calculate(c.values), when);
}

test::CaseValues fullCase(int spans) {
    auto v = test::equalSpans(spans, 5.5, 3, 2);
    v.konsv = 1.2;
    v.konsh = 0.8;
    v.nllast = 5;
    v.loads = {{1, 2, 10}, {1, -1.2, 5}, {1, 5.5, 4}, {spans, 2.75, 30}, {spans, 6, -1}};
    return v;
}

void expectGoodPages(const std::string& text) {
    std::size_t pages = 1, onPage = 0;
    for (const auto& line : test::crLfLines(text)) {
        ++onPage;
        EXPECT_LE(onPage, 70U);
        EXPECT_LE(line.size(), 78U) << line;
        if (line.find('^') != std::string::npos) {
            EXPECT_EQ(line, "^");
            ++pages;
            onPage = 0;
        }
    }
    EXPECT_GT(onPage, 0U) << "the last page is empty";
    EXPECT_LE(pages, 6U);
}

// Plain letters and the six, each of them once in a line, or the front-end shows a wrong sign.
void expectGoodLetters(const std::string& text) {
    for (const auto& line : test::crLfLines(text)) {
        for (const char c : line)
            EXPECT_TRUE((c >= ' ' && c < 0x7F) || dosLetters.find(c) != std::string::npos) << line;
        for (const char letter : dosLetters)
            EXPECT_LE(std::count(line.begin(), line.end(), letter), 1) << line;
    }
    const auto shown = test::asShown(text);
    EXPECT_EQ(shown.find_first_of(dosLetters), std::string::npos) << shown;
}

TEST(EngineResultText, PagesAndLettersAreGoodForEveryCase) {
    for (int spans = 1; spans <= 10; ++spans)
        for (const char* rules : {"0", "1", "2", "3", "4", "5", "6"})
            for (const char* category : {"0", "1", "2", "9"}) {
                auto file = test::caseFile(fullCase(spans));
                file.line(3) = rules;
                file.line(9) = category;
                const auto text = textOf(file);
                expectGoodPages(text);
                expectGoodLetters(text);
            }
}

TEST(EngineResultText, EveryRowOfEveryListIsShownRight) {
    for (int value = 0; value <= 11; ++value) {
        auto file = test::caseFile(fullCase(10));
        for (int line = 16; line <= 31; ++line)
            file.line(line) = std::to_string(value);
        file.line(11) = std::to_string(value);
        file.line(4) = std::to_string(value);
        const auto text = textOf(file);
        expectGoodPages(text);
        expectGoodLetters(text);
    }
}

TEST(EngineResultText, HugeNumbersStayInTheirPage) {
    auto v = fullCase(10);
    auto file = test::caseFile(v);
    std::string wide;
    for (int i = 0; i < 10; ++i)
        wide += "9999999";
    file.line(6) = file.line(7) = file.line(12) = file.line(13) = wide;
    file.line(10) = wide.substr(0, 42);
    file.line(14) = file.line(15) = "1.234567E+20";
    for (int line = 16; line <= 31; ++line)
        file.line(line) = "-32768";
    const auto text = textOf(file);
    expectGoodPages(text);
    expectGoodLetters(text);
}

TEST(EngineResultText, SaysThatItIsASample) {
    const auto text = textOf(test::caseFile(fullCase(2)));
    EXPECT_TRUE(text.starts_with("EXEMPELMOTOR"));
    const auto shown = test::asShown(text);
    for (const char* part :
         {"Endast ett exempel på en motor", "Ingen dimensionering och ingen kontroll av bärighet",
          "alla 4 kombinationer", "faktor gammaG = 1.000", "Linjelaster: alltid, faktor 1.",
          "Konsol bär samma last som facket intill", "utan egentyngd", "Beräknad  2026-11-21 20:35"})
        EXPECT_NE(shown.find(test::windows(part)), std::string::npos) << part;
    const std::string help{helpText()};
    EXPECT_NE(help.find("EXEMPELMOTOR"), std::string::npos);
    EXPECT_NE(help.find("exempel på en beräkningsmotor"), std::string::npos);
}

bool holdsLine(const std::string& shown, const std::string& line) {
    return shown.find("\r\n" + test::windows(line) + "\r\n") != std::string::npos;
}

TEST(EngineResultText, EchoesTheInputAsPeopleReadIt) {
    auto v = fullCase(2);
    v.nllast = 2;
    v.upl = {0, 0.25, 0};
    const auto shown = test::asShown(textOf(test::caseFile(v)));
    for (const char* line : {"Namn      HUS1",
                             "Rubrik    Bjalklag over plan 2",
                             "Lastregler                    Svenska byggregler (BKR)",
                             "Säkerhetsklass                2",
                             "Lastkategori                  A-Bostäder",
                             "Lastkombination               6.10 a och 6.10 b",
                             "Partialkoefficienter          gammaG 1.000  gammaQ 1.000  ksi 0.890",
                             "Kombinationsfaktorer          psi0 0.700  psi1 0.500  psi2 0.300",
                             "     1       5.500       0.170            3.000           2.000",
                             "Stöd nr          0     1     2",
                             "bredd (m)    0.000 0.250 0.000",
                             "Konsol (m)  till vänster 1.200, till höger 0.800",
                             "Linjelast   fack    avst (m)   last (kN/m)",
                             "     1         1       2.000        10.000",
                             "     2         1      -1.200         5.000",
                             "Betongklass                   C30/37",
                             "Armering i överkant           fyk 500, diameter 8 mm",
                             "Täckande BTG-skikt i ÖK       20 mm",
                             "Avkortning av armering        ja",
                             "Armering i underkant          fyk 500, diameter 10 mm",
                             "Avst. tyngdpkt armering i UK  42 mm",
                             "Beräkningsmetod - Brand       Brandteknisk klass, REI 60",
                             "Undertak                      Saknas",
                             "Deformation                   Frekventa laster",
                             "Initiell nedböjning           L/400",
                             "Tillkommande nedböjning       L/300",
                             "Överhöjning                   20 mm",
                             "Reserverat värde              77"})
        EXPECT_TRUE(holdsLine(shown, line)) << line << "\n" << shown;
    EXPECT_FALSE(holdsLine(shown, "     3         1       5.500         4.000")) << "not in use";
}

TEST(EngineResultText, WithoutLineLoadsItSaysSo) {
    const auto shown = test::asShown(textOf(test::caseFile(test::equalSpans(2, 5, 2, 3))));
    EXPECT_TRUE(holdsLine(shown, "Inga linjelaster"));
    EXPECT_EQ(shown.find("utan lastfaktor"), std::string::npos);
}

struct Shown {
    int line;
    const char* number;
    const char* text;
};

TEST(EngineResultText, ListNumbersAreShownWithTheirRows) {
    const Shown table[] = {
        {3, "0", "Lastregler                    inga"},
        {3, "2", "Lastregler                    Eurokod, Polen"},
        {3, "6", "Lastregler                    Eurokod, allmänt"},
        {3, "2", "Säkerhetsklass                RC2"},
        {3, "3", "Pålitlighetsklass             2"},
        {3, "4", "Säkerhetsklass                RC2"},
        {3, "5", "Konstruktionssklasse          2"},
        {3, "6", "Säkerhetsklass                RC2"},
        {9, "0", "Lastkategori                  Valfri last"},
        {9, "9", "Lastkategori                  D2"},
        {17, "4", "Armering i överkant           fyk nr 4, diameter 8 mm (ej i listan)"},
        {11, "1", "Lastkombination               6.10 a"},
        {16, "9", "Betongklass                   C60/75"},
        {16, "10", "Betongklass                   nr 10 (ej i listan)"},
        {17, "3", "Armering i överkant           fyk 600, diameter 8 mm"},
        {18, "5", "Armering i överkant           fyk 500, diameter 16 mm"},
        {18, "6", "Armering i överkant           fyk 500, diameter nr 6 (ej i listan)"},
        {19, "0", "Avkortning av armering        nej"},
        {19, "-1", "Avkortning av armering        ja"},
        {21, "1", "Armering i underkant          fyk 400, diameter 10 mm"},
        {24, "2", "Beräkningsmetod - Brand       nr 2 (ej i listan), 150 MJ/m2"},
        {25, "4", "Beräkningsmetod - Brand       Brandteknisk klass, REI 120"},
        {26, "2", "Undertak                      13 Gips"},
        {31, "2", "Deformation                   Karakteristiska laster"},
    };
    for (const auto& row : table) {
        auto file = test::caseFile(test::equalSpans(2, 5, 2, 3));
        file.line(row.line) = row.number;
        EXPECT_TRUE(holdsLine(test::asShown(textOf(file)), row.text)) << row.text;
    }
}

TEST(EngineResultText, BlocksThatDoNotFitStartANewPage) {
    const auto block = [](std::size_t lines) {
        Block b;
        for (std::size_t i = 0; i < lines; ++i)
            b.add("x");
        return b;
    };
    Pages pages{Block{}.add("head").add()};
    pages.add(block(60));
    pages.add(block(9)); // 69 lines and the one that ends the page
    pages.add(block(1));
    pages.add(block(67));
    const auto lines = test::crLfLines(pages.text());
    ASSERT_EQ(lines.size(), 70U + 4 + 69);
    EXPECT_EQ(lines[69], "^");
    EXPECT_EQ(lines[70], "head");
    EXPECT_EQ(lines[73], "^");
    EXPECT_EQ(lines.back(), "x");
    expectGoodPages(pages.text());
}

TEST(EngineResultText, ShowsTheResultsWithTheirPlaces) {
    // Two spans of 6 m, 3 and 5 kN/m: the values of EngineEnvelope.TwoSpans.
    const auto shown = test::asShown(textOf(test::caseFile(test::equalSpans(2, 6, 3, 5))));
    for (const char* line : {"     0      0.000           0.00       0.00          19.88       4.88",
                             "     1      6.000         -13.50     -36.00          60.00      22.50",
                             "     1         24.69     2.484  V = 0            -36.00     6.000  upplag",
                             "     2         24.69     3.516  V = 0            -36.00     0.000  upplag"})
        EXPECT_TRUE(holdsLine(shown, line)) << line << "\n" << shown;
    EXPECT_TRUE(holdsLine(shown, "STÖDMOMENT (kNm/m) och UPPLAGSREAKTIONER (kN/m)"));
    EXPECT_TRUE(holdsLine(shown, "FÄLTMOMENT (kNm/m)"));
    EXPECT_EQ(shown.find("LYFT"), std::string::npos);
}

TEST(EngineResultText, UpliftAndLineLoadsWithoutFactorStandBesideTheReactions) {
    // A short span beside a long one, loaded: the outer support of the short one is lifted.
    auto v = test::equalSpans(2, 6, 1, 5);
    v.spv = {2, 8};
    v.nllast = 1;
    v.loads = {{2, 4, 10}};
    const auto shown = test::asShown(textOf(test::caseFile(v)));
    EXPECT_TRUE(holdsLine(shown, "Linjelasterna ingår utan lastfaktor."));
    EXPECT_TRUE(holdsLine(shown, "LYFT: reaktionen kan bli negativ; plattan vill lyfta, upplaget tar drag."));
    std::size_t lifted = 0;
    for (const auto& line : test::crLfLines(shown + "\r\n"))
        lifted += line.ends_with("  LYFT");
    EXPECT_EQ(lifted, 1u) << shown;
}

TEST(EngineResultText, ACaseOfThreeSpansFitsOnOnePage) {
    auto v = test::equalSpans(3, 5.5, 3, 2);
    v.nllast = 1;
    v.loads = {{2, 2.5, 8.5}};
    auto file = test::caseFile(v);
    file.line(32) = "0";
    EXPECT_EQ(textOf(file).find('^'), std::string::npos);
    EXPECT_NE(textOf(test::caseFile(fullCase(10))).find('^'), std::string::npos);
}

TEST(EngineResultText, NameAndTitleAreEchoedByteByByte) {
    auto v = fullCase(10);
    v.name = "H\x99G\xD6";
    v.title = "B\x84rl\xE4gg \x86t H\x94g\xF6 \x8Fs";
    const auto text = textOf(test::caseFile(v));
    EXPECT_NE(text.find("\r\nRubrik    " + v.title + "\r\n"), std::string::npos);
    EXPECT_NE(text.find("\r\nNamn      " + v.name + "\r\n"), std::string::npos);
    const auto shown = test::asShown(text);
    EXPECT_TRUE(holdsLine(shown, "Rubrik    Bärlägg åt Högö Ås"));
    EXPECT_TRUE(holdsLine(shown, "EXEMPELMOTOR varnowb    2026-11-21 20:35    HÖGÖ"));
    EXPECT_EQ(shown.find_first_of(dosLetters), std::string::npos);
}

TEST(EngineResultText, ATitleCannotEndAPageOrBreakALine) {
    auto v = fullCase(3);
    v.title = "m^2\t\x0B\x7F" + std::string(200, 'x');
    const auto text = textOf(test::caseFile(v));
    expectGoodPages(text);
    EXPECT_NE(text.find("\r\nRubrik    m 2   xxx"), std::string::npos);
}

TEST(EngineResultText, ARefusalIsOneLineUnderTheSameHead) {
    const auto text = refusalText("HUS1", "Rad 6: spännvidd spv(1) = 0.000 m ska vara positiv.", when);
    expectGoodPages(text);
    expectGoodLetters(text);
    EXPECT_TRUE(text.starts_with("EXEMPELMOTOR"));
    EXPECT_TRUE(holdsLine(test::asShown(text), "FEL. Rad 6: spännvidd spv(1) = 0.000 m ska vara positiv."));
}

} // namespace
} // namespace varno::engine
