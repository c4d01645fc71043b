#include "engine/result_text.h"

#include "engine/columns.h"
#include "engine/input_text.h"
#include "engine/pages.h"

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
    addInput(pages, c);
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
