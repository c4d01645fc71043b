#include "engine/result_text.h"

#include <span>

#include "base/text.h"
#include "engine/columns.h"
#include "engine/pages.h"
#include "model/reference_tables.h"

namespace varno::engine {

namespace {

// No line of this file's texts may hold the same Swedish letter twice; see pages.h.

Block firstHead() {
    Block block;
    block.add("EXEMPELMOTOR varnowb                                Kalvora Tessaplan ver 7.10");
    block.add("Endast ett exempel på en motor: moment och upplagsreaktioner.");
    block.add("Ingen dimensionering och ingen kontroll av bärighet görs.");
    return block.add();
}

// What the 37 lines of the design input file say, as people read it: the numbers of lists and options with the text of
// their row.

using Rows = std::span<const std::string_view>;

constexpr std::string_view ruleNames[] = {"utan tabellvärden", "BKR",     "Eurokod", "Eurokod",
                                          "Eurokod",           "Eurokod", "Eurokod"};
constexpr std::string_view numberedClasses[] = {"1", "2", "3"};
constexpr std::string_view reliabilityClasses[] = {"RC1", "RC2", "RC3"};
constexpr std::string_view combinations[] = {"6.10 a", "6.10 b", "6.10 a och 6.10 b"};
constexpr std::string_view diameters[] = {"6 mm", "8 mm", "10 mm", "12 mm", "16 mm"};
constexpr std::string_view fireKinds[] = {"brandteknisk klass", "brandbelastning"};
constexpr std::string_view fireTimes[] = {"REI 30", "REI 60", "REI 90", "REI 120"};
constexpr std::string_view fireLoads[] = {"100 MJ/m2", "150 MJ/m2", "200 MJ/m2", "250 MJ/m2"};
constexpr std::string_view ceilings[] = {"saknas", "13 gips"};
constexpr std::string_view serviceLoads[] = {"frekventa laster", "karakteristiska laster"};

constexpr std::size_t labelWidth = 30;

// "3  C30/37"; `from` is the number of the first row.
std::string chosen(int number, Rows rows, int from = 1) {
    const int row = number - from;
    const bool known = row >= 0 && row < static_cast<int>(rows.size());
    return std::to_string(number) + "  " +
           (known ? trimBlanks(rows[static_cast<std::size_t>(row)]) : "(ej i listan)");
}

std::string steel(int number) {
    std::string text = chosen(number, steelGrades);
    const auto grade = text.find("  ") + 2;
    return text[grade] == '(' ? text : text.insert(grade, "fyk ");
}

std::string item(const char* label, const std::string& value) {
    return left(label, labelWidth) + value;
}

std::string factor(const char* name, const Factor& value) {
    return std::string{name} + " " + (value ? fitted(*value, 8, 3) : "-") + "  ";
}

// The six rule sets have three names for the class, and two ways to write it.
std::string classLine(const DesignCase& c) {
    const bool reliability = c.loadCode == 2 || c.loadCode == 4 || c.loadCode == 6;
    const char* label = c.loadCode == 3   ? "Pålitlighetsklass"
                        : c.loadCode == 5 ? "Konstruktionsklass"
                                          : "Säkerhetsklass";
    return item(label, chosen(c.safetyClass(c.loadCode), reliability ? reliabilityClasses : numberedClasses));
}

Block rules(const DesignCase& c) {
    Block block;
    block.add("INDATA").add();
    block.add(item("Lastregler", chosen(c.loadCode, ruleNames, 0)));
    block.add(classLine(c));
    block.add(item("Lastkategori", chosen(c.lokt, loadCategories, 0)));
    block.add(item("Lastkombination", chosen(c.lastkomb, combinations)));
    block.add(item("Partialkoefficienter", factor("lambdaG", c.lambdaG(c.loadCode)) +
                                               factor("lambdaQ", c.lambdaQ(c.loadCode)) +
                                               factor("ksi", c.ksi(c.loadCode))));
    block.add(item("Kombinationsfaktorer", factor("psi0", c.psi0(c.loadCode, c.lokt)) +
                                               factor("psi1", c.psi1(c.loadCode, c.lokt)) +
                                               factor("psi2", c.psi2(c.loadCode, c.lokt))));
    return block;
}

Block geometry(const DesignCase& c) {
    Block block;
    block.add();
    block.add("  fack   spännvidd    tjocklek   permanent last   variabel last");
    block.add("    nr         (m)         (m)          (kN/m2)         (kN/m2)");
    for (int i = 1; i <= c.nfack; ++i)
        block.add(cell(i, 6) + cell(c.spv(i), 12, 3) + cell(c.ptjl(i), 12, 3) + cell(c.plast(i), 17, 3) +
                  cell(c.flast(i), 16, 3));
    std::string numbers = left("Stöd nr", 12);
    std::string widths = left("bredd (m)", 12);
    for (int i = 0; i <= c.nfack; ++i) {
        numbers += cell(i, 6);
        widths += cell(c.upl(i), 6, 3);
    }
    block.add().add(numbers).add(widths);
    block.add("Konsol (m)  till vänster " + fitted(c.konsv, 12, 3) + ", till höger " +
              fitted(c.konsh, 12, 3));
    return block;
}

Block lineLoads(const DesignCase& c) {
    Block block;
    block.add().add("Antal linjelaster " + std::to_string(c.nllast));
    block.add("    nr   fack    avst (m)   last (kN/m)");
    for (int i = 1; i <= maxLineLoads; ++i)
        block.add(cell(i, 6) + cell(c.llfnr(i), 7) + cell(c.avst(i), 12, 3) + cell(c.lllast(i), 14, 3) +
                  (i > c.nllast ? "   (används inte)" : ""));
    return block;
}

Block materials(const DesignCase& c) {
    Block block;
    block.add();
    block.add(item("Betongklass", chosen(c.btg, concreteClasses)));
    block.add("Armering i överkant");
    block.add(item("  stål, diameter", steel(c.aok) + ",  " + chosen(c.dok, diameters)));
    block.add(item("  täckande skikt, avkortning",
                   std::to_string(c.ktack) + " mm,  " + (c.kavko != 0 ? "ja" : "nej")));
    block.add("Armering i underkant");
    block.add(item("  stål, diameter", steel(c.auk) + ",  " + chosen(c.duk, diameters)));
    block.add(item("  tyngdpunkt från underkant", std::to_string(c.duarm) + " mm"));
    block.add(item("Brand", chosen(c.brandk, fireKinds) + ",  " +
                                chosen(c.brandb, c.brandk == 2 ? fireLoads : fireTimes)));
    block.add(item("Undertak", chosen(c.kutak, ceilings)));
    block.add(item("Deformation, laster", chosen(c.brukskomb, serviceLoads)));
    block.add(item("  nedböjning", "initiell L/" + std::to_string(c.initiell) + ",  tillkommande L/" +
                                       std::to_string(c.tillkommande)));
    block.add(item("  Överhöjning", std::to_string(c.overhojning) + " mm"));
    block.add(item("Reserverat värde", std::to_string(c.reservedValue)));
    return block;
}

// What was calculated

Block assumptions(const DesignCase& c, const Envelope& result) {
    Block block;
    block.add("ANTAGANDEN").add();
    block.add("Linjärelastisk kontinuerlig balk med konstant styvhet, strimla 1 m bred.");
    block.add("Upplag i punkter vid fackens ändar; upplagsbredden inverkar bara på kurvorna");
    block.add("i momk.dat.");
    block.add("Permanent last: alltid i alla fack, faktor lambdaG = " + fitted(*c.lambdaG(c.loadCode), 8, 3) +
              ".");
    block.add("Egentyngd tillkommer inte, permanent last tas som inmatad.");
    block.add("Variabel last: till eller från i varje fack, faktor lambdaQ = " +
              fitted(*c.lambdaQ(c.loadCode), 8, 3) + ",");
    block.add("alla " + std::to_string(result.patterns) + " kombinationer ingår.");
    block.add("Konsol bär samma last som facket intill och belastas samtidigt med det.");
    block.add("Linjelaster: alltid, faktor 1.");
    block.add("Lastkombination, ksi, psi, material och brand påverkar inte resultatet.");
    block.add("Moment i kNm/m, positivt vid dragning i underkant. Reaktion i kN/m,");
    return block.add("positiv uppåt. Max och min avser alla lastkombinationer ovan.");
}

// One row for each support, with its position from the slab's left end.
Block supportTable(const char* heading, const DesignCase& c, const std::vector<Range>& ranges) {
    Block block;
    block.add().add(heading).add();
    block.add("  stöd       x (m)           max           min");
    double x = c.konsv;
    for (int i = 0; i <= c.nfack; ++i) {
        if (i > 0) x += c.spv(i);
        const Range& range = ranges[static_cast<std::size_t>(i)];
        block.add(cell(i, 6) + cell(x, 12, 3) + cell(range.max, 14, 2) + cell(range.min, 14, 2));
    }
    return block;
}

std::string placed(const FieldMoment& field) {
    const char* place = field.place == Place::zeroShear   ? "V = 0"
                        : field.place == Place::underLoad ? "linjelast"
                                                          : "upplag";
    return cell(field.moment, 14, 2) + cell(field.x, 10, 3) + "  " + left(place, 9);
}

Block fieldTable(const Envelope& result) {
    Block block;
    block.add().add("FÄLTMOMENT (kNm/m)").add();
    block.add("  fack           max     x (m)                       min     x (m)");
    int span = 0;
    for (const FieldMoments& field : result.field)
        block.add(cell(++span, 6) + placed(field.max) + placed(field.min));
    block.add("x från fackets vänstra stöd. Momentet har sitt max eller min:");
    block.add("V = 0       utan tvärkraft");
    block.add("linjelast   under en linjelast, sidorna om lasten med olika tecken på V");
    return block.add("upplag      i facket invid upplaget");
}

} // namespace

Bytes resultText(const CaseOnFile& file, const Envelope& result) {
    const DesignCase& c = file.values;
    Pages pages(Block().addBytes("EXEMPELMOTOR varnowb    ", file.name).add());
    pages.add(firstHead().addBytes("Namn    ", file.name).addBytes("Rubrik  ", file.title).add());
    for (const auto& block : {rules(c), geometry(c), lineLoads(c), materials(c)})
        pages.add(block);
    pages.newPage();
    pages.add(assumptions(c, result));
    pages.add(supportTable("STÖDMOMENT (kNm/m)", c, result.supportMoment));
    pages.add(fieldTable(result));
    pages.add(supportTable("UPPLAGSREAKTIONER (kN/m)", c, result.reaction));
    return pages.text();
}

Bytes refusalText(std::string_view name, std::string_view reason) {
    Pages pages{Block()};
    pages.add(firstHead().addBytes("Namn    ", name).add());
    pages.add(Block().add("FEL. " + std::string(reason)).add().add("Inga moment kunde tas fram."));
    return pages.text();
}

std::string_view helpText() {
    return "varnowb - EXEMPELMOTOR till Kalvora Tessaplan ver 7.10\n"
           "\n"
           "Detta är ett litet exempel på en beräkningsmotor, så att en ny dator kan köra en\n"
           "beräkning från början till slut. Motorn räknar moment och upplagsreaktioner för en\n"
           "linjärelastisk kontinuerlig plattstrimla med 1 till 10 fack. Den dimensionerar\n"
           "ingenting och kontrollerar ingen bärighet.\n"
           "\n"
           "Motorn startas utan argument av varno.exe, i den aktuella mappen:\n"
           "  läser    ~indata~.tmp   indata, 37 rader\n"
           "  skriver  <namn>.res     resultat; namnet står på första raden i indata\n"
           "  skriver  momk.dat       momentkurvor, övre och undre\n"
           "\n"
           "Slutkod: 0 beräkningen är gjord\n"
           "         1 indata är orimliga; resultatfilen säger vad som är fel\n"
           "         2 indata saknas, namnet på första raden duger inte till filnamn, eller\n"
           "           okänt argument\n"
           "         3 en fil kunde inte skrivas\n";
}

} // namespace varno::engine
