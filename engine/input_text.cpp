#include "engine/input_text.h"

#include "engine/numbers.h"

#include <span>

namespace varnowb {
namespace {

using Rows = std::span<const char* const>;

constexpr const char* kRules[] = {"utan tabellvärden", "BKR",     "Eurokod", "Eurokod",
                                  "Eurokod",           "Eurokod", "Eurokod"};
constexpr const char* kNumberedClasses[] = {"1", "2", "3"};
constexpr const char* kReliabilityClasses[] = {"RC1", "RC2", "RC3"};
constexpr const char* kCategories[] = {"valfri last", "A-Bostäder", "B-Kontor", "C1", "C2",
                                       "C3",          "C4",         "C5",       "D1", "D2"};
constexpr const char* kCombinations[] = {"6.10 a", "6.10 b", "6.10 a och 6.10 b"};
constexpr const char* kConcrete[] = {"C20/25", "C25/30", "C30/37", "C35/45", "C40/50",
                                     "C45/55", "C50/60", "C55/67", "C60/75"};
constexpr const char* kSteel[] = {"fyk 400", "fyk 500", "fyk 600"};
constexpr const char* kDiameters[] = {"6 mm", "8 mm", "10 mm", "12 mm", "16 mm"};
constexpr const char* kFireClasses[] = {"brandteknisk klass", "brandbelastning"};
constexpr const char* kFireTimes[] = {"REI 30", "REI 60", "REI 90", "REI 120"};
constexpr const char* kFireLoads[] = {"100 MJ/m2", "150 MJ/m2", "200 MJ/m2", "250 MJ/m2"};
constexpr const char* kCeilings[] = {"saknas", "13 gips"};
constexpr const char* kServiceLoads[] = {"frekventa laster", "karakteristiska laster"};

constexpr std::size_t kLabel = 30;

std::string right(const std::string& text, std::size_t width) {
    return text.size() < width ? std::string(width - text.size(), ' ') + text : text;
}

// "3  C30/37"; `from` is the number of the first row.
std::string chosen(int number, Rows rows, int from = 1) {
    const int row = number - from;
    const bool known = row >= 0 && row < static_cast<int>(rows.size());
    return std::to_string(number) + "  " + (known ? rows[static_cast<std::size_t>(row)] : "(ej i listan)");
}

std::string item(std::string_view label, const std::string& value) {
    return padded(label, kLabel) + value;
}

std::string factor(const char* name, const std::optional<double>& value) {
    return std::string{name} + " " + (value ? fitted(*value, 8, 3) : "-") + "  ";
}

// The six rule sets have three names for the class, and two ways to write it.
std::string classLine(const DesignInput& c) {
    const bool reliability = c.loadCode == 2 || c.loadCode == 4 || c.loadCode == 6;
    const char* label = c.loadCode == 3   ? "Pålitlighetsklass"
                        : c.loadCode == 5 ? "Konstruktionsklass"
                                          : "Säkerhetsklass";
    return item(label,
                chosen(c.safetyClass, reliability ? Rows{kReliabilityClasses} : Rows{kNumberedClasses}));
}

Block rules(const DesignInput& c) {
    Block block;
    block.add("INDATA").add();
    block.add(item("Lastregler", chosen(c.loadCode, kRules, 0)));
    block.add(classLine(c));
    block.add(item("Lastkategori", chosen(c.lokt, kCategories, 0)));
    block.add(item("Lastkombination", chosen(c.lastkomb, kCombinations)));
    block.add(item("Partialkoefficienter",
                   factor("lambdaG", c.lambdaG) + factor("lambdaQ", c.lambdaQ) + factor("ksi", c.ksi)));
    block.add(item("Kombinationsfaktorer",
                   factor("psi0", c.psi0) + factor("psi1", c.psi1) + factor("psi2", c.psi2)));
    return block;
}

Block geometry(const DesignInput& c) {
    Block block;
    block.add();
    block.add("  fack   spännvidd    tjocklek   permanent last   variabel last");
    block.add("    nr         (m)         (m)          (kN/m2)         (kN/m2)");
    for (std::size_t i = 0; i < c.spv.size(); ++i)
        block.add(right(std::to_string(i + 1), 6) + cell(c.spv[i], 12, 3) + cell(c.ptjl[i], 12, 3) +
                  cell(c.plast[i], 17, 3) + cell(c.flast[i], 16, 3));
    std::string numbers = padded("Stöd nr", 12);
    std::string widths = padded("bredd (m)", 12);
    for (std::size_t i = 0; i < c.upl.size(); ++i) {
        numbers += right(std::to_string(i), 6);
        widths += cell(c.upl[i], 6, 3);
    }
    block.add().add(numbers).add(widths);
    block.add("Konsol (m)  till vänster " + fitted(c.konsv, 12, 3) + ", till höger " +
              fitted(c.konsh, 12, 3));
    return block;
}

Block lineLoads(const DesignInput& c) {
    Block block;
    block.add().add("Antal linjelaster " + std::to_string(c.nllast));
    block.add("    nr   fack    avst (m)   last (kN/m)");
    for (int i = 1; i <= kLineLoads; ++i) {
        const auto& load = c.lineLoads[static_cast<std::size_t>(i - 1)];
        std::string line = right(std::to_string(i), 6);
        if (load)
            line +=
                right(std::to_string(load->llfnr), 7) + cell(load->avst, 12, 3) + cell(load->lllast, 14, 3);
        block.add(line + (i > c.nllast ? "   (används inte)" : ""));
    }
    return block;
}

Block materials(const DesignInput& c) {
    Block block;
    block.add();
    block.add(item("Betongklass", chosen(c.btg, kConcrete)));
    block.add("Armering i överkant");
    block.add(item("  stål, diameter", chosen(c.aok, kSteel) + ",  " + chosen(c.dok, kDiameters)));
    block.add(item("  täckande skikt, avkortning",
                   std::to_string(c.ktack) + " mm,  " + (c.kavko != 0 ? "ja" : "nej")));
    block.add("Armering i underkant");
    block.add(item("  stål, diameter", chosen(c.auk, kSteel) + ",  " + chosen(c.duk, kDiameters)));
    block.add(item("  tyngdpunkt från underkant", std::to_string(c.duarm) + " mm"));
    block.add(item("Brand", chosen(c.brandk, kFireClasses) + ",  " +
                                chosen(c.brandb, c.brandk == 2 ? Rows{kFireLoads} : Rows{kFireTimes})));
    block.add(item("Undertak", chosen(c.kutak, kCeilings)));
    block.add(item("Deformation, laster", chosen(c.brukskomb, kServiceLoads)));
    block.add(item("  nedböjning", "initiell L/" + std::to_string(c.initiell) + ",  tillkommande L/" +
                                       std::to_string(c.tillkommande)));
    block.add(item("  Överhöjning", std::to_string(c.overhojning) + " mm"));
    block.add(item("Reserverat värde", std::to_string(c.reservedValue)));
    return block;
}

} // namespace

void addInput(Pages& pages, const DesignInput& c) {
    pages.add(rules(c));
    pages.add(geometry(c));
    pages.add(lineLoads(c));
    pages.add(materials(c));
}

} // namespace varnowb
