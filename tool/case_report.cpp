#include "tool/case_report.h"

#include <algorithm>
#include <array>

#include "base/numbers.h"
#include "base/text.h"
#include "input/field_table.h"
#include "tool/case_words.h"
#include "tool/text_table.h"

namespace varno::tool {

namespace {

const NumberLocale swedish{.decimal = ",", .thousands = "\u00A0"};
constexpr std::size_t indent = 2;

// Two decimals, and the third when there is one: "6,00 " stands right above "6,125".
template <typename Number>
std::string aligned(Number value) {
    std::string text = formatNumber(value, "#0.000", swedish);
    if (text.back() == '0') text.back() = ' ';
    return text;
}

template <typename Number>
std::string plain(Number value) {
    return withoutTrailingBlanks(aligned(value));
}

std::string thickness(float value) {
    return formatNumber(value, "0.000", swedish);
}

std::string factorText(const Factor& factor) {
    return factor ? plain(*factor) : "–";
}

// A section: its heading, and lines of "caption   value" with the values under each other.
class Section {
  public:
    explicit Section(const std::string& heading) : text_("\n" + heading + "\n") {}

    void add(const std::string& caption, const std::string& value) {
        constexpr std::size_t captionWidth = 30;
        const std::size_t width = characterCount(caption);
        const std::size_t gap = width < captionWidth ? captionWidth - width : 1;
        text_ += withoutTrailingBlanks(std::string(indent, ' ') + caption + std::string(gap, ' ') + value);
        text_ += '\n';
    }
    void add(const TextTable& table) { text_ += table.text(indent); }
    void say(const std::string& line) { text_ += std::string(indent, ' ') + line + '\n'; }
    const std::string& text() const { return text_; }

  private:
    std::string text_;
};

std::string heading(const CaseFile& loaded) {
    const std::string name = loaded.name + ".IND";
    return name + "\n" + std::string(characterCount(name), '=') + "\n" + withoutTrailingBlanks(loaded.title) +
           "\n";
}

void addChoice(Section& section, const DesignCase& c, Field field) {
    section.add(plainCaption(field), choiceWords(field, c));
}

std::string rules(const DesignCase& c) {
    Section section("Lastförutsättningar");
    section.add("Lastregler", ruleSetWords(c.loadCode));
    section.add(classCaption(c.loadCode), classWords(c.loadCode, c.safetyClass(c.loadCode)));
    addChoice(section, c, Field::lokt);
    addChoice(section, c, Field::lastkomb);
    section.add("Partialkoefficient γG", factorText(c.lambdaG(c.loadCode)));
    section.add("Reduktionsfaktor ξ", factorText(c.ksi(c.loadCode)));
    section.add("Partialkoefficient γQ", factorText(c.lambdaQ(c.loadCode)));
    section.add("Lastfaktorer ψ0, ψ1, ψ2", factorText(c.psi0(c.loadCode, c.lokt)) + "  " +
                                               factorText(c.psi1(c.loadCode, c.lokt)) + "  " +
                                               factorText(c.psi2(c.loadCode, c.lokt)));
    return section.text();
}

std::string spans(const DesignCase& c) {
    Section section(std::string(spanHeading) + " (" + std::to_string(c.nfack) + ")");
    TextTable table;
    std::vector<std::string> captions{std::string(spanHeading)};
    std::vector<std::string> units{""};
    for (const Field column : {Field::spv, Field::ptjl, Field::plast, Field::flast}) {
        captions.push_back(plainCaption(column));
        units.push_back(unitOf(column));
    }
    table.addRow(captions);
    table.addRow(units);
    for (int span = 1; span <= c.nfack; ++span) {
        table.addRow({std::to_string(span), aligned(c.spv(span)), thickness(c.ptjl(span)),
                      aligned(c.plast(span)), aligned(c.flast(span))});
    }
    section.add(table);
    return section.text();
}

std::string supports(const DesignCase& c) {
    Section section("Upplag och konsoler");
    TextTable table;
    table.addRow({"Upplag", "Bredd"});
    table.addRow({"", "m"});
    for (int support = 0; support <= c.nfack; ++support)
        table.addRow({std::to_string(support), thickness(c.upl(support))});
    section.add(table);
    const auto length = [](float value) { return value == 0 ? "saknas" : plain(value) + " m"; };
    section.add(plainCaption(Field::konsv), length(c.konsv));
    section.add(plainCaption(Field::konsh), length(c.konsh));
    return section.text();
}

std::string lineLoads(const DesignCase& c) {
    Section section("Linjelaster (" + std::to_string(c.nllast) + ")");
    if (c.nllast <= 0) {
        section.say("Inga");
        return section.text();
    }
    TextTable table;
    table.addRow({"Nr", std::string(spanHeading), "Avstånd", "Last"});
    table.addRow({"", "", "m", "kN/m"});
    for (int i = 1; i <= std::min<int>(c.nllast, maxLineLoads); ++i) {
        table.addRow(
            {std::to_string(i), std::to_string(c.llfnr(i)), aligned(c.avst(i)), aligned(c.lllast(i))});
    }
    section.add(table);
    return section.text();
}

std::string millimetres(int value) {
    return std::to_string(value) + " mm";
}

std::string materials(const DesignCase& c) {
    Section section("Betong och armering");
    addChoice(section, c, Field::btg);
    section.add("Överkant: stål fyk", choiceWords(Field::aok, c) + (c.aok >= 1 && c.aok <= 3 ? " MPa" : ""));
    section.add("Överkant: stångdiameter", choiceWords(Field::dok, c));
    section.add("Överkant: täckande skikt", millimetres(c.ktack));
    section.add("Överkant: avkortning", c.kavko != 0 ? "ja" : "nej");
    section.add("Underkant: stål fyk", choiceWords(Field::auk, c) + (c.auk >= 1 && c.auk <= 3 ? " MPa" : ""));
    section.add("Underkant: stångdiameter", choiceWords(Field::duk, c));
    section.add("Underkant: avst. tyngdpunkt", millimetres(c.duarm));
    return section.text();
}

std::string fire(const DesignCase& c) {
    Section section("Brand");
    section.add("Brandklass", choiceWords(Field::brandk, c));
    addChoice(section, c, Field::brandb);
    addChoice(section, c, Field::kutak);
    return section.text();
}

std::string deformation(const DesignCase& c) {
    Section section(plainCaption(Field::brukskomb));
    const auto limit = [](int divisor) {
        return divisor == 0 ? std::string("anges ej") : "L / " + std::to_string(divisor);
    };
    section.add("Laster", choiceWords(Field::brukskomb, c));
    section.add(plainCaption(Field::initiell), limit(c.initiell));
    section.add(plainCaption(Field::tillkommande), limit(c.tillkommande));
    section.add(plainCaption(Field::overhojning), millimetres(c.overhojning));
    return section.text();
}

} // namespace

std::string caseReport(const CaseFile& loaded) {
    const DesignCase& c = loaded.designCase;
    return heading(loaded) + rules(c) + spans(c) + supports(c) + lineLoads(c) + materials(c) + fire(c) +
           deformation(c);
}

} // namespace varno::tool
