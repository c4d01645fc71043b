#include <algorithm>
#include <string>
#include <vector>

#include "base/numbers.h"
#include "base/text.h"
#include "input/field_table.h"
#include "tool/case_inputs.h"
#include "tool/commands.h"

namespace varno::tool {

namespace {

const NumberLocale swedish{.decimal = ",", .thousands = "\u00A0"};

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

std::string withoutTrailingBlanks(std::string text) {
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

template <typename Number>
std::string plain(Number value) {
    return withoutTrailingBlanks(aligned(value));
}

std::string factorText(const Factor& factor) {
    return factor ? plain(*factor) : "–";
}

using Row = std::vector<std::string>;

class Report {
  public:
    explicit Report(const CaseFile& loaded) {
        const std::string name = loaded.name + ".IND";
        text_ += name + "\n" + std::string(characterCount(name), '=') + "\n" +
                 withoutTrailingBlanks(loaded.title) + "\n";
    }
    void heading(const std::string& caption) { text_ += "\n" + caption + "\n"; }

    /// "caption   value", the values of a section under each other.
    void add(const std::string& caption, const std::string& value) {
        constexpr std::size_t captionWidth = 30;
        const std::size_t width = characterCount(caption);
        line(caption + std::string(width < captionWidth ? captionWidth - width : 1, ' ') + value);
    }
    /// Columns as wide as their widest cell, right-aligned, two blanks between them.
    void add(const std::vector<Row>& table) {
        std::vector<std::size_t> widths(table.front().size());
        for (const Row& row : table) {
            for (std::size_t column = 0; column < row.size(); ++column)
                widths[column] = std::max(widths[column], characterCount(row[column]));
        }
        for (const Row& row : table) {
            std::string cells;
            for (std::size_t column = 0; column < row.size(); ++column)
                cells += std::string(column == 0 ? 0 : 2, ' ') +
                         std::string(widths[column] - characterCount(row[column]), ' ') + row[column];
            line(cells);
        }
    }
    void line(const std::string& text) { text_ += withoutTrailingBlanks("  " + text) + "\n"; }
    const std::string& text() const { return text_; }

  private:
    std::string text_;
};

// A number that no list and no option group has is shown as the number.
std::string choiceWords(Field field, const DesignCase& designCase) {
    return choiceText(field, designCase).value_or(std::to_string(designCase.*choiceField(field)->place));
}

void addChoice(Report& report, const DesignCase& c, Field field) {
    report.add(plainCaption(field), choiceWords(field, c));
}

void addRuleSet(Report& report, const DesignCase& c) {
    report.add("Lastregler", ruleSetWords(c));
    report.add(classFrame(c), classWords(c));
}

void addRules(Report& report, const DesignCase& c) {
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

void addSpans(Report& report, const DesignCase& c) {
    report.heading(std::string(spanHeading) + " (" + std::to_string(c.nfack) + ")");
    std::vector<Row> table{{std::string(spanHeading)}, {""}};
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

void addSupports(Report& report, const DesignCase& c) {
    report.heading("Upplag och konsoler");
    std::vector<Row> table{{"Upplag", "Bredd"}, {"", "m"}};
    for (int support = 0; support <= c.nfack; ++support)
        table.push_back({std::to_string(support), thickness(c.upl(support))});
    report.add(table);
    const auto length = [](float value) { return value == 0 ? "saknas" : plain(value) + " m"; };
    report.add(plainCaption(Field::konsv), length(c.konsv));
    report.add(plainCaption(Field::konsh), length(c.konsh));
}

void addLineLoads(Report& report, const DesignCase& c) {
    report.heading("Linjelaster (" + std::to_string(c.nllast) + ")");
    if (c.nllast <= 0) return report.line("Inga");
    std::vector<Row> table{{"Nr", std::string(spanHeading), "Avstånd", "Last"}, {"", "", "m", "kN/m"}};
    for (int i = 1; i <= std::min<int>(c.nllast, maxLineLoads); ++i) {
        table.push_back(
            {std::to_string(i), std::to_string(c.llfnr(i)), aligned(c.avst(i)), aligned(c.lllast(i))});
    }
    report.add(table);
}

std::string millimetres(int value) {
    return std::to_string(value) + " mm";
}

void addMaterials(Report& report, const DesignCase& c) {
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

void addFireAndDeformation(Report& report, const DesignCase& c) {
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

std::string caseReport(const CaseFile& loaded) {
    Report report(loaded);
    for (const auto add :
         {addRules, addSpans, addSupports, addLineLoads, addMaterials, addFireAndDeformation})
        add(report, loaded.designCase);
    return report.text();
}

} // namespace varno::tool
