#include "tool/case_sheet.h"

#include <algorithm>

#include "base/numbers.h"
#include "input/field_table.h"
#include "tool/case_inputs.h"

namespace varno::tool {

namespace {

// Two decimals, and the third when there is one: "6,00 " stands right above "6,125".
template <typename Number>
std::string aligned(Number value) {
    std::string text = formatNumber(value, "#0.000", swedish);
    if (text.back() == '0') text.back() = ' ';
    return text;
}

std::string thickness(float value) {
    return formatNumber(value, "0.000", swedish);
}

template <typename Number>
std::string plain(Number value) {
    return withoutTrailingBlanks(aligned(value));
}

std::string factorText(const Factor& factor) {
    return factor ? plain(*factor) : "–";
}

class Builder {
  public:
    void heading(const std::string& caption) { sections_.push_back({caption, {}}); }
    void add(const std::string& caption, const std::string& value) {
        sections_.back().parts.emplace_back(SheetLine{caption, value});
    }
    void add(SheetTable table) { sections_.back().parts.emplace_back(std::move(table)); }
    void line(const std::string& text) { sections_.back().parts.emplace_back(SheetLine{text, ""}); }
    std::vector<SheetSection> sections() { return std::move(sections_); }

  private:
    std::vector<SheetSection> sections_;
};

// A number that no list and no option group has is shown as the number.
std::string choiceWords(Field field, const DesignCase& designCase) {
    return choiceText(field, designCase).value_or(std::to_string(designCase.*choiceField(field)->place));
}

void addChoice(Builder& report, const DesignCase& c, Field field) {
    report.add(plainCaption(field), choiceWords(field, c));
}

void addRuleSet(Builder& report, const DesignCase& c) {
    report.add("Lastregler", ruleSetWords(c));
    report.add(classFrame(c), classWords(c));
}

void addRules(Builder& report, const DesignCase& c) {
    report.heading("Lastförutsättningar");
    addRuleSet(report, c);
    addChoice(report, c, Field::lokt);
    addChoice(report, c, Field::lastkomb);
    report.add("Partialkoefficient γG", factorText(c.lambdaG(c.loadCode)));
    report.add("Reduktionsfaktor ξ", factorText(c.ksi(c.loadCode)));
    report.add("Partialkoefficient γQ", factorText(c.lambdaQ(c.loadCode)));
    report.add("Lastfaktorer ψ0, ψ1, ψ2", factorText(c.psi0(c.loadCode, c.lokt)) + "  " +
                                              factorText(c.psi1(c.loadCode, c.lokt)) + "  " +
                                              factorText(c.psi2(c.loadCode, c.lokt)));
}

void addSpans(Builder& report, const DesignCase& c) {
    report.heading(std::string(spanHeading) + " (" + std::to_string(c.nfack) + ")");
    SheetTable table{{std::string(spanHeading)}, {""}};
    for (const Field column : {Field::spv, Field::ptjl, Field::plast, Field::flast}) {
        table[0].push_back(plainCaption(column));
        table[1].push_back(unitOf(column));
    }
    for (int span = 1; span <= c.nfack; ++span) {
        table.push_back({std::to_string(span), aligned(c.spv(span)), thickness(c.ptjl(span)),
                         aligned(c.plast(span)), aligned(c.flast(span))});
    }
    report.add(table);
}

void addSupports(Builder& report, const DesignCase& c) {
    report.heading("Upplag och konsoler");
    SheetTable table{{"Upplag", "Bredd"}, {"", "m"}};
    for (int support = 0; support <= c.nfack; ++support)
        table.push_back({std::to_string(support), thickness(c.upl(support))});
    report.add(table);
    const auto length = [](float value) { return value == 0 ? "saknas" : plain(value) + " m"; };
    report.add(plainCaption(Field::konsv), length(c.konsv));
    report.add(plainCaption(Field::konsh), length(c.konsh));
}

void addLineLoads(Builder& report, const DesignCase& c) {
    report.heading("Linjelaster (" + std::to_string(c.nllast) + ")");
    if (c.nllast <= 0) return report.line("Inga");
    SheetTable table{{"Nr", std::string(spanHeading), "Avstånd", "Last"}, {"", "", "m", "kN/m"}};
    for (int i = 1; i <= std::min<int>(c.nllast, maxLineLoads); ++i) {
        table.push_back(
            {std::to_string(i), std::to_string(c.llfnr(i)), aligned(c.avst(i)), aligned(c.lllast(i))});
    }
    report.add(table);
}

std::string millimetres(int value) {
    return std::to_string(value) + " mm";
}

void addMaterials(Builder& report, const DesignCase& c) {
    const auto steel = [&](Field field, int grade) {
        return choiceWords(field, c) + (grade >= 1 && grade <= 3 ? " MPa" : "");
    };
    report.heading("Betong och armering");
    addChoice(report, c, Field::btg);
    report.add("Överkant: stål fyk", steel(Field::aok, c.aok));
    report.add("Överkant: stångdiameter", choiceWords(Field::dok, c));
    report.add("Överkant: täckande skikt", millimetres(c.ktack));
    report.add("Överkant: avkortning", c.kavko != 0 ? "ja" : "nej");
    report.add("Underkant: stål fyk", steel(Field::auk, c.auk));
    report.add("Underkant: stångdiameter", choiceWords(Field::duk, c));
    report.add("Underkant: avst. tyngdpunkt", millimetres(c.duarm));
}

void addFireAndDeformation(Builder& report, const DesignCase& c) {
    report.heading("Brand");
    report.add("Brandklass", choiceWords(Field::brandk, c));
    addChoice(report, c, Field::brandb);
    addChoice(report, c, Field::kutak);
    report.heading(plainCaption(Field::brukskomb));
    const auto limit = [](int divisor) {
        return divisor == 0 ? std::string("anges ej") : "L / " + std::to_string(divisor);
    };
    report.add("Laster", choiceWords(Field::brukskomb, c));
    report.add(plainCaption(Field::initiell), limit(c.initiell));
    report.add(plainCaption(Field::tillkommande), limit(c.tillkommande));
    report.add(plainCaption(Field::overhojning), millimetres(c.overhojning));
}

} // namespace

std::string withoutTrailingBlanks(std::string text) {
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

std::vector<SheetSection> caseSheet(const DesignCase& designCase) {
    Builder report;
    for (const auto add :
         {addRules, addSpans, addSupports, addLineLoads, addMaterials, addFireAndDeformation})
        add(report, designCase);
    return report.sections();
}

} // namespace varno::tool
