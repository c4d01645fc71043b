// What the input form shows of a case.
#include <gtest/gtest.h>

#include <array>

#include "input/form_layout.h"
#include "shared_program.h"
#include "soon.h"
#include "win32/strings.h"

namespace varno::gui {
namespace {

// The user's decimal sign.
std::string decimalSign() {
    wchar_t text[8] = L"";
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, text, 8);
    return win32::narrow(text);
}

// A number of the file as the form shows it: that many decimals, the user's sign. The digits that fall away
// are zeros, so nothing is rounded here.
std::string shown(Bytes number, std::size_t decimals) {
    while (number.ends_with(' '))
        number.pop_back();
    auto point = number.find('.');
    if (point == Bytes::npos) {
        point = number.size();
        number += '.';
    }
    while (number.size() < point + 1 + decimals)
        number += '0';
    while (number.size() > point + 1 + decimals) {
        EXPECT_EQ(number.back(), '0') << number;
        number.pop_back();
    }
    return number.substr(0, point) + decimalSign() + number.substr(point + 1);
}

// The lines of a case, read by hand.
class CaseText {
  public:
    explicit CaseText(const Bytes& file) : lines_(linesOf(file)) {}
    Bytes line(std::size_t number) const { return lines_.at(number - 1); }
    int whole(std::size_t number) const { return std::stoi(line(number)); }
    Bytes cell(std::size_t number, std::size_t width, int index) const {
        return line(number).substr(static_cast<std::size_t>(index) * width, width);
    }

  private:
    std::vector<Bytes> lines_;
};

class Form : public SharedProgram {
  protected:
    static CaseText open(const std::string& name) {
        program().open(name + ".IND");
        expectCaption(program(), name + ".IND");
        return CaseText(scene().read(name + ".IND"));
    }
    static std::string text(Field field, int index = 0) { return program().field(field, index).text(); }
    static bool visible(Field field, int index = 0) { return program().field(field, index).visible(); }
    static bool enabled(Field field, int index = 0) { return program().field(field, index).enabled(); }
    static std::string row(Field list) { return program().field(list).selectedText(); }

    // The chosen option of a group, 0 for none.
    static int option(Field group, int count) {
        int chosen = 0;
        for (int i = 1; i <= count; ++i) {
            if (program().field(group, i).checked()) chosen = chosen == 0 ? i : -1;
        }
        return chosen;
    }

    static void checkSpans(const CaseText& file);
    static void checkNumbers(const CaseText& file);
    static void checkChoices(const CaseText& file);
    static void checkRuleSet(int ruleSet, int safetyClass);
};

void Form::checkSpans(const CaseText& file) {
    const int n = file.whole(5);
    EXPECT_EQ(text(Field::nfack), std::to_string(n));
    for (int span = 1; span <= 10; ++span) {
        for (const Field field : {Field::spv, Field::ptjl, Field::plast, Field::flast, Field::upl}) {
            EXPECT_EQ(visible(field, span), span <= n) << span;
        }
        EXPECT_EQ(program().form().item(spanHeadId(span)).visible(), span <= n) << span;
        if (span > n) continue;
        EXPECT_EQ(text(Field::spv, span), shown(file.cell(6, 7, span - 1), 2));
        EXPECT_EQ(text(Field::ptjl, span), shown(file.cell(7, 7, span - 1), 3));
        EXPECT_EQ(text(Field::plast, span), shown(file.cell(12, 7, span - 1), 2));
        EXPECT_EQ(text(Field::flast, span), shown(file.cell(13, 7, span - 1), 2));
        EXPECT_EQ(enabled(Field::upl, span), span < n) << "the right end support is held at 0";
    }
    for (int support = 0; support <= n; ++support) {
        EXPECT_EQ(text(Field::upl, support), shown(file.cell(8, 6, support), 3));
    }
    EXPECT_TRUE(visible(Field::upl, 0));
}

void Form::checkNumbers(const CaseText& file) {
    constexpr std::array factors{Field::lambdaG, Field::ksi,  Field::lambdaQ,
                                 Field::psi0,    Field::psi1, Field::psi2};
    for (std::size_t i = 0; i < factors.size(); ++i) {
        EXPECT_EQ(text(factors[i]), shown(file.cell(10, 7, static_cast<int>(i)), 2));
        EXPECT_FALSE(enabled(factors[i]));
    }
    EXPECT_EQ(text(Field::konsv), shown(file.line(14), 2));
    EXPECT_EQ(text(Field::konsh), shown(file.line(15), 2));
    constexpr std::array wholes{
        std::pair(20u, Field::ktack),        std::pair(23u, Field::duarm),
        std::pair(28u, Field::overhojning),  std::pair(29u, Field::initiell),
        std::pair(30u, Field::tillkommande),
    };
    for (const auto& [line, field] : wholes)
        EXPECT_EQ(text(field), file.line(line)) << "line " << line;
}

void Form::checkChoices(const CaseText& file) {
    constexpr std::array lists{
        std::pair(9u, Field::lokt),    std::pair(16u, Field::btg), std::pair(17u, Field::aok),
        std::pair(18u, Field::dok),    std::pair(21u, Field::auk), std::pair(22u, Field::duk),
        std::pair(24u, Field::brandk),
    };
    for (const auto& [line, list] : lists) {
        const int first = line == 9 ? 0 : 1;
        EXPECT_EQ(program().field(list).selectedRow(), file.whole(line) - first) << "line " << line;
    }
    EXPECT_EQ(option(Field::lastkomb, 3), file.whole(11));
    EXPECT_EQ(option(Field::brandb, 4), file.whole(25));
    EXPECT_EQ(option(Field::kutak, 2), file.whole(26));
    EXPECT_EQ(option(Field::brukskomb, 2), file.whole(31));
    EXPECT_EQ(program().field(Field::kavko).checked(), file.whole(19) != 0);
}

void Form::checkRuleSet(int ruleSet, int safetyClass) {
    constexpr std::array groups{Field::shkl,   Field::shklpl, Field::pkl,
                                Field::shklfi, Field::shkldk, Field::shkleu};
    constexpr std::array flags{0, 1, 5, 2, 4, 3, 6}; // of rule set 0 to 6
    for (int other = 1; other <= 6; ++other) {
        EXPECT_EQ(program().form().item(classFrameId(other)).visible(), other == ruleSet) << other;
        for (int i = 1; i <= 3; ++i) {
            EXPECT_EQ(visible(groups[static_cast<std::size_t>(other - 1)], i), other == ruleSet) << other;
        }
    }
    if (ruleSet > 0) {
        EXPECT_EQ(option(groups[static_cast<std::size_t>(ruleSet - 1)], 3), safetyClass);
    }
    for (int flag = 0; flag <= 6; ++flag) {
        EXPECT_EQ(program().main().item(idFlag + flag).visible(),
                  flag == flags[static_cast<std::size_t>(ruleSet)])
            << "flag " << flag;
    }
    EXPECT_EQ(text(Field::loadFrame), ruleSet == 1 ? "Laster enl. BKR" : "Laster enl. Eurokod");
}

TEST_F(Form, ShowsEveryFieldOfTheSamples) {
    const std::vector<std::pair<std::string, std::string>> samples{
        {"BOSTAD", "Bostäder i Ängsgården hus Å väster om ån"},
        {"KONTOR", "Kontorshus Älvsjö södra flygeln på plan 3"},
        {"TIOFACK", "Tio fack i lagerhall på Öland södra kajen"},
    };
    for (const auto& [name, title] : samples) {
        const ::testing::ScopedTrace trace(__FILE__, __LINE__, name);
        const CaseText file = open(name);
        EXPECT_EQ(text(Field::rubrik), title);
        checkSpans(file);
        checkNumbers(file);
        checkChoices(file);
        checkRuleSet(file.whole(3), file.whole(4));
    }
}

TEST_F(Form, SaysWhatItsUsersKnow) {
    open("BOSTAD");
    std::vector<std::string> said;
    for (const Control& part : program().form().children()) {
        const std::string kind = part.className();
        if (kind != "Edit" && kind != "ComboBox" && !part.text().empty()) said.push_back(part.text());
    }
    std::vector<std::string> known{
        "Rubrik:",
        "Antal Fack:",
        "Geometri och Last",
        "Fack",
        "1",
        "2",
        "3",
        "4",
        "5",
        "6",
        "7",
        "8",
        "9",
        "10",
        "Spännvidd (m)",
        "Plattjocklek (m)",
        "Permanent last (kN/m2)",
        "Last (kN/m2)",
        "Upplagsbredd (m)",
        "Konsol vänster (m)",
        "Konsol höger (m)",
        text(Field::loadFrame),
        "Lastkategori",
        "Lastkombination",
        "6.10 a",
        "6.10 b",
        "6.10 a och 6.10 b",
    };
    const std::array plain{"1", "2", "3"};
    const std::array reliability{"RC1", "RC2", "RC3"};
    for (const auto& [frame, classes] : {std::pair{"Säkerhetsklass", plain},
                                         {"Säkerhetsklass", reliability},
                                         {"Pålitlighetsklass", plain},
                                         {"Säkerhetsklass", reliability},
                                         {"Konstruktionssklasse", plain},
                                         {"Säkerhetsklass", reliability}}) {
        known.emplace_back(frame);
        known.insert(known.end(), classes.begin(), classes.end());
    }
    const std::vector<std::string> afterTheClasses{
        "γ_G",
        "ξ",
        "γ_Q",
        "ψ_0",
        "ψ_1",
        "ψ_2",
        "Betongklass",
        "Undertak",
        "Saknas",
        "13 Gips",
        "Armering i överkant",
        "f_yk",
        "ø",
        "Täckande BTG-skikt i ÖK",
        "mm",
        "Avkortning av armering",
        "Armering i underkant - för Brand",
        "f_yk",
        "ø",
        "Avst. tyngdpkt armering i UK",
        "mm",
        "Beräkningsmetod - Brand",
        " REI  30 ",
        " REI  60 ",
        " REI  90 ",
        " REI 120 ",
        "Deformation",
        "Frekventa laster",
        "Karakteristiska laster",
        "Initiell nedböjning ",
        "L /",
        "Tillkommande nedböjning",
        "L /",
        "Överhöjning (mm)",
    };
    known.insert(known.end(), afterTheClasses.begin(), afterTheClasses.end());
    EXPECT_EQ(said, known);
}

TEST_F(Form, ListsHoldTheReferenceRowsWithTheirBlanks) {
    open("KONTOR");
    using Rows = std::vector<std::string>;
    const Rows diameters{"ø 6 ", "ø 8 ", "ø 10", "ø 12", "ø 16"};
    const Rows grades{"400 ", "500 ", "600 "};
    EXPECT_EQ(program().field(Field::btg).rows(), (Rows{"C20/25", "C25/30", "C30/37", "C35/45", "C40/50",
                                                        "C45/55", "C50/60", "C55/67", "C60/75"}));
    EXPECT_EQ(program().field(Field::dok).rows(), diameters);
    EXPECT_EQ(program().field(Field::duk).rows(), diameters);
    EXPECT_EQ(program().field(Field::aok).rows(), grades);
    EXPECT_EQ(program().field(Field::auk).rows(), grades);
    EXPECT_EQ(program().field(Field::lokt).rows(),
              (Rows{"Valfri last", "A-Bostäder ", "B-Kontor   ", "C1         ", "C2         ", "C3         ",
                    "C4         ", "C5         ", "D1         ", "D2         "}));
    EXPECT_EQ(program().field(Field::brandk).rows(), Rows{"Brandteknisk klass"});
    EXPECT_EQ(row(Field::lokt), "B-Kontor   ");
}

TEST_F(Form, LastRowsAreSelectedByTheirNumbers) {
    Bytes file = withLine(scene().read("KONTOR.IND"), 1, "SISTA");
    file = withLine(withLine(file, 16, "9"), 18, "5");
    file = withLine(withLine(file, 17, "3"), 22, "6");
    scene().write("SISTA.IND", file);
    open("SISTA");
    EXPECT_EQ(row(Field::btg), "C60/75");
    EXPECT_EQ(row(Field::dok), "ø 16");
    EXPECT_EQ(row(Field::aok), "600 ");
    EXPECT_EQ(row(Field::duk), "") << "a row that the list does not have";
}

TEST_F(Form, DanishRuleSetShowsItsPresets) {
    open("TIOFACK");
    EXPECT_EQ(text(Field::lambdaG), shown("1.20", 2));
    EXPECT_EQ(text(Field::ksi), shown("1.00", 2));
    EXPECT_EQ(text(Field::lambdaQ), shown("1.50", 2));
}

TEST_F(Form, EveryRuleSetShowsItsFlagAndItsClassFrame) {
    for (int ruleSet = 0; ruleSet <= 6; ++ruleSet) {
        const ::testing::ScopedTrace trace(__FILE__, __LINE__, ruleSet);
        Bytes file = withLine(scene().read("KONTOR.IND"), 1, "REGEL");
        file = withLine(withLine(file, 3, std::to_string(ruleSet)), 4, "3");
        scene().write("REGEL.IND", file);
        open("REGEL");
        checkRuleSet(ruleSet, 3);
    }
}

TEST_F(Form, FireClassOffersItsFirstThreeOptions) {
    open("BOSTAD");
    const std::array captions{" REI  30 ", " REI  60 ", " REI  90 ", " REI 120 "};
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(text(Field::brandb, i), captions[static_cast<std::size_t>(i - 1)]);
        EXPECT_EQ(visible(Field::brandb, i), i <= 3);
    }
}

TEST_F(Form, VariableLoadIsFixedByItsCategory) {
    open("BOSTAD");
    EXPECT_FALSE(enabled(Field::flast, 1));
    program().command(idNew);
    expectCaption(program(), "NAMNLÖS.IND");
    expectSoon(program(), true, [&] { return enabled(Field::flast, 1); });
}

} // namespace
} // namespace varno::gui
