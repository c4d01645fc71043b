#include "engine/result_text.h"

#include "base/text.h"
#include "controls/rule_sets.h"
#include "engine/columns.h"
#include "engine/pages.h"
#include "input/field_table.h"

namespace varno::engine {

namespace {

// No line of this file's texts may hold the same Swedish letter twice; see pages.h.

Block head(std::string_view when) {
    Block block;
    block.add("EXEMPELMOTOR varnowb                                Kalvora Tessaplan ver 7.10");
    block.add("Endast ett exempel på en motor: moment och upplagsreaktioner.");
    block.add("Ingen dimensionering och ingen kontroll av bärighet görs.");
    block.add();
    return block.add("Beräknad  " + std::string(when));
}

// What the design input file says, in the words of the input form.

constexpr std::size_t labelWidth = 30;

std::string item(std::string_view label, const std::string& value) {
    return left(label, labelWidth) + value;
}

std::string noSuchRow(int number) {
    return "nr " + std::to_string(number) + " (ej i listan)";
}

std::string chosen(Field field, const DesignCase& c) {
    return choiceText(field, c).value_or(noSuchRow(c.*choiceField(field)->place));
}

std::string choiceItem(Field field, const DesignCase& c) {
    return item(plainCaption(field), chosen(field, c));
}

// The list's own sign for a diameter is no letter of the result file.
std::string bars(Field steel, Field diameter, const DesignCase& c) {
    const auto grade = choiceText(steel, c);
    const auto size = choiceText(diameter, c);
    const auto number = [&](Field field) { return "nr " + std::to_string(c.*choiceField(field)->place); };
    return "fyk " + grade.value_or(number(steel)) + ", diameter " +
           (size ? size->substr(size->find(' ') + 1) + " mm" : number(diameter)) +
           (grade && size ? "" : " (ej i listan)");
}

std::string factor(const char* name, const Factor& value) {
    return std::string{name} + " " + (value ? fitted(*value, 8, 3) : "-") + "  ";
}

Block rules(const DesignCase& c) {
    const RuleSet* const known = ruleSetWith(&RuleSet::number, c.loadCode);
    const RuleSet& set = known == nullptr ? ruleSets.front() : *known;
    const int option = c.safetyClass(c.loadCode);
    const bool named = option >= 1 && option <= static_cast<int>(set.classes.size());
    Block block;
    block.add("INDATA");
    block.add(item("Lastregler", known == nullptr ? "inga" : known->name));
    block.add(item(set.frame, named ? set.classes[static_cast<std::size_t>(option - 1)] : noSuchRow(option)));
    block.add(choiceItem(Field::lokt, c)).add(choiceItem(Field::lastkomb, c));
    block.add(item("Partialkoefficienter", factor("gammaG", c.lambdaG(c.loadCode)) +
                                               factor("gammaQ", c.lambdaQ(c.loadCode)) +
                                               factor("ksi", c.ksi(c.loadCode))));
    return block.add(item("Kombinationsfaktorer", factor("psi0", c.psi0(c.loadCode, c.lokt)) +
                                                      factor("psi1", c.psi1(c.loadCode, c.lokt)) +
                                                      factor("psi2", c.psi2(c.loadCode, c.lokt))));
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
    block.add();
    if (c.nllast <= 0) return block.add("Inga linjelaster");
    block.add("Linjelast   fack    avst (m)   last (kN/m)");
    for (int i = 1; i <= c.nllast; ++i)
        block.add(cell(i, 6) + cell(c.llfnr(i), 10) + cell(c.avst(i), 12, 3) + cell(c.lllast(i), 14, 3));
    return block;
}

std::string millimetres(int value) {
    return std::to_string(value) + " mm";
}

Block materials(const DesignCase& c) {
    Block block;
    block.add();
    block.add(choiceItem(Field::btg, c));
    block.add(item(topReinforcement, bars(Field::aok, Field::dok, c)));
    block.add(item(textField(Field::ktack)->caption, millimetres(c.ktack)));
    block.add(item(choiceField(Field::kavko)->caption, c.kavko != 0 ? "ja" : "nej"));
    block.add(item("Armering i underkant", bars(Field::auk, Field::duk, c)));
    block.add(item(textField(Field::duarm)->caption, millimetres(c.duarm)));
    block.add(item(choiceField(Field::brandb)->caption,
                   chosen(Field::brandk, c) + ", " + chosen(Field::brandb, c)));
    block.add(choiceItem(Field::kutak, c)).add(choiceItem(Field::brukskomb, c));
    block.add(item(plainCaption(Field::initiell), "L/" + std::to_string(c.initiell)));
    block.add(item(plainCaption(Field::tillkommande), "L/" + std::to_string(c.tillkommande)));
    block.add(item(plainCaption(Field::overhojning), millimetres(c.overhojning)));
    if (c.reservedValue != 0) block.add(item("Reserverat värde", std::to_string(c.reservedValue)));
    return block;
}

// What was calculated

Block assumptions(const DesignCase& c, const Envelope& result) {
    Block block;
    block.add().add("ANTAGANDEN");
    block.add("Linjärelastisk kontinuerlig balk med konstant styvhet, strimla 1 m bred.");
    block.add("Upplag i punkter; upplagsbredden inverkar bara på kurvorna i momk.dat.");
    block.add("Permanent last som inmatad, utan egentyngd: faktor gammaG = " +
              fitted(*c.lambdaG(c.loadCode), 8, 3) + ".");
    block.add("Variabel last: till eller från i varje fack, faktor gammaQ = " +
              fitted(*c.lambdaQ(c.loadCode), 8, 3) + ",");
    block.add("alla " + std::to_string(result.patterns) +
              " kombinationer ingår. Konsol bär samma last som facket intill.");
    block.add("Linjelaster: alltid, faktor 1.");
    block.add("Lastkombination, ksi, psi, material och brand påverkar inte resultatet.");
    block.add("Moment i kNm/m, positivt vid dragning i underkant. Reaktion i kN/m,");
    return block.add("positiv uppåt. Max och min avser alla lastkombinationer ovan.");
}

// One row for each support, with its position from the slab's left end.
Block supportTable(const DesignCase& c, const Envelope& result) {
    Block block;
    block.add().add("STÖDMOMENT (kNm/m) och UPPLAGSREAKTIONER (kN/m)");
    // Whoever takes the reactions further has to know it here.
    if (c.nllast > 0) block.add("Linjelasterna ingår utan lastfaktor.");
    block.add("  stöd      x (m)     moment max        min   reaktion max        min");
    double x = c.konsv;
    bool uplift = false;
    for (int i = 0; i <= c.nfack; ++i) {
        if (i > 0) x += c.spv(i);
        const Range& moment = result.supportMoment[static_cast<std::size_t>(i)];
        const Range& reaction = result.reaction[static_cast<std::size_t>(i)];
        const bool lifts = reaction.min < -0.005;
        uplift = uplift || lifts;
        block.add(cell(i, 6) + cell(x, 11, 3) + cell(moment.max, 15, 2) + cell(moment.min, 11, 2) +
                  cell(reaction.max, 15, 2) + cell(reaction.min, 11, 2) + (lifts ? "  LYFT" : ""));
    }
    if (uplift) block.add("LYFT: reaktionen kan bli negativ; plattan vill lyfta, upplaget tar drag.");
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
    block.add().add("FÄLTMOMENT (kNm/m)");
    block.add("  fack           max     x (m)                       min     x (m)");
    int span = 0;
    for (const FieldMoments& field : result.field)
        block.add(cell(++span, 6) + placed(field.max) + placed(field.min));
    block.add("x från fackets vänstra stöd.");
    return block.add("V = 0: utan tvärkraft. linjelast: under en linjelast. upplag: vid upplaget.");
}

} // namespace

Bytes resultText(const CaseOnFile& file, const Envelope& result, std::string_view when) {
    const DesignCase& c = file.values;
    Pages pages(Block().addBytes("EXEMPELMOTOR varnowb    " + std::string(when) + "    ", file.name).add());
    pages.add(head(when).addBytes("Namn      ", file.name).addBytes("Rubrik    ", file.title).add());
    for (const Block& block : {rules(c), geometry(c), lineLoads(c), materials(c), assumptions(c, result),
                               supportTable(c, result), fieldTable(result)})
        pages.add(block);
    return pages.text();
}

Bytes refusalText(std::string_view name, std::string_view reason, std::string_view when) {
    Pages pages{Block()};
    pages.add(head(when).addBytes("Namn      ", name).add());
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
