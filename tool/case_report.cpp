#include "tool/case_report.h"

#include <algorithm>
#include <array>

#include "base/numbers.h"
#include "base/text.h"
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

std::string rules(const DesignCase& c) {
    Section section("Lastförutsättningar");
    section.add("Lastregler", ruleSetWords(c.loadCode));
    section.add(classCaption(c.loadCode), classWords(c.loadCode, c.safetyClass(c.loadCode)));
    section.add("Lastkategori", loadCategoryWords(c.lokt));
    section.add("Lastkombination", loadCombinationWords(c.lastkomb));
    section.add("Partialkoefficient γG", factorText(c.lambdaG(c.loadCode)));
    section.add("Reduktionsfaktor ξ", factorText(c.ksi(c.loadCode)));
    section.add("Partialkoefficient γQ", factorText(c.lambdaQ(c.loadCode)));
    section.add("Lastfaktorer ψ0, ψ1, ψ2", factorText(c.psi0(c.loadCode, c.lokt)) + "  " +
                                               factorText(c.psi1(c.loadCode, c.lokt)) + "  " +
                                               factorText(c.psi2(c.loadCode, c.lokt)));
    return section.text();
}

std::string spans(const DesignCase& c) {
    Section section("Fack (" + std::to_string(c.nfack) + ")");
    TextTable table;
    table.addRow({"Fack", "Spännvidd", "Plattjocklek", "Permanent last", "Variabel last"});
    table.addRow({"", "m", "m", "kN/m²", "kN/m²"});
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
    section.add("Konsol vänster", length(c.konsv));
    section.add("Konsol höger", length(c.konsh));
    return section.text();
}

std::string lineLoads(const DesignCase& c) {
    Section section("Linjelaster (" + std::to_string(c.nllast) + ")");
    if (c.nllast <= 0) {
        section.say("Inga");
        return section.text();
    }
    TextTable table;
    table.addRow({"Nr", "Fack", "Avstånd", "Last"});
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
    section.add("Betongklass", concreteWords(c.btg));
    section.add("Överkant: stål fyk", steelWords(c.aok) + (c.aok >= 1 && c.aok <= 3 ? " MPa" : ""));
    section.add("Överkant: stångdiameter", barWords(c.dok));
    section.add("Överkant: täckande skikt", millimetres(c.ktack));
    section.add("Överkant: avkortning", c.kavko != 0 ? "ja" : "nej");
    section.add("Underkant: stål fyk", steelWords(c.auk) + (c.auk >= 1 && c.auk <= 3 ? " MPa" : ""));
    section.add("Underkant: stångdiameter", barWords(c.duk));
    section.add("Underkant: avst. tyngdpunkt", millimetres(c.duarm));
    return section.text();
}

std::string fire(const DesignCase& c) {
    Section section("Brand");
    section.add("Brandklass", fireClassWords(c.brandk));
    section.add("Beräkningsmetod", fireMethodWords(c.brandk, c.brandb));
    section.add("Undertak", ceilingWords(c.kutak));
    return section.text();
}

std::string deformation(const DesignCase& c) {
    Section section("Deformation");
    const auto limit = [](int divisor) {
        return divisor == 0 ? std::string("anges ej") : "L / " + std::to_string(divisor);
    };
    section.add("Laster", serviceCombinationWords(c.brukskomb));
    section.add("Initiell nedböjning", limit(c.initiell));
    section.add("Tillkommande nedböjning", limit(c.tillkommande));
    section.add("Överhöjning", millimetres(c.overhojning));
    return section.text();
}

} // namespace

std::string caseReport(const CaseFile& loaded) {
    const DesignCase& c = loaded.designCase;
    return heading(loaded) + rules(c) + spans(c) + supports(c) + lineLoads(c) + materials(c) + fire(c) +
           deformation(c);
}

} // namespace varno::tool
