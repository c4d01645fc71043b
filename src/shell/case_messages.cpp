#include "shell/case_messages.h"

#include <algorithm>
#include <array>
#include <optional>

#include "base/text.h"
#include "controls/rule_sets.h"
#include "input/field_table.h"
#include "lineloads/line_load_set.h"

namespace varno {

namespace {

// A file that is something else can have a fault on every line; nobody reads more than these.
constexpr std::size_t mostShown = 12;
constexpr const char* lineEnd = "\r\n";

std::string choiceName(const ChoiceField& field) {
    // Two lists bear the caption "fyk": what a screen reader says tells which one.
    const std::string spoken = accessibleName({field.field});
    return spoken.empty() ? std::string(field.caption) : spoken;
}

// The name of a number of the record; `index` is the span or support of a box of the grid, none for the whole row.
template <typename Place>
std::string numberName(Place place, std::optional<int> index = {}) {
    for (const TextField& field : textFields) {
        if (field.place != NumberPlace(place)) continue;
        return index ? accessibleName({field.field, *index}) : trimBlanks(field.caption);
    }
    return {};
}

class Namer {
  public:
    explicit Namer(int cell) : cell_(cell) {}

    std::string operator()(CaseNameLine) const { return "Filnamn"; }
    std::string operator()(TitleLine) const { return accessibleName({Field::rubrik}); }
    std::string operator()(SafetyClassLine) const { return std::string(ruleSets.front().frame); }
    std::string operator()(IntegerLine line) const {
        if (line.field == &DesignCase::loadCode) return "Regelverk";
        if (line.field == &DesignCase::reservedValue) return "Reserverat värde";
        if (line.field == &DesignCase::nfack) return accessibleName({Field::nfack});
        if (line.field == &DesignCase::nllast) return accessibleName(LineLoadControl{LineLoadBox::nllast});
        for (const ChoiceField& field : choiceFields) {
            if (field.place == line.field) return choiceName(field);
        }
        return numberName(line.field);
    }
    std::string operator()(RealLine line) const { return numberName(line.field); }
    std::string operator()(const SpanCellsLine& line) const {
        return cell_ == 0 ? numberName(line.field) : numberName(line.field, cell_ - 1 + line.first);
    }
    std::string operator()(const FactorCellsLine&) const {
        constexpr std::array factors{Field::lambdaG, Field::ksi,  Field::lambdaQ,
                                     Field::psi0,    Field::psi1, Field::psi2};
        if (cell_ < 1 || cell_ > static_cast<int>(factors.size())) return "Koefficienter";
        return accessibleName({factors[static_cast<std::size_t>(cell_ - 1)]});
    }
    std::string operator()(LineLoadLine line) const {
        if (cell_ < 1 || cell_ > static_cast<int>(lineLoadColumns.size()))
            return "Linjelast " + std::to_string(line.index);
        constexpr std::array boxes{LineLoadBox::llfnr, LineLoadBox::avst, LineLoadBox::lllast};
        return accessibleName(LineLoadControl{boxes[static_cast<std::size_t>(cell_ - 1)], line.index});
    }

  private:
    int cell_;
};

bool isText(CasePlace place) {
    return place.line <= 2;
}

// As a Swede reads a number.
std::string withComma(std::string number) {
    std::ranges::replace(number, '.', ',');
    return number;
}

std::string shown(const std::string& text, bool quoted) {
    return quoted ? "\"" + text + "\"" : withComma(text);
}

std::string whatIsWrong(const FileFault& fault) {
    const std::string found = fault.found.empty() ? "Det är tomt" : "\"" + fault.found + "\" står";
    switch (fault.kind) {
    case FileFault::Kind::empty:
        return "Filen är tom.";
    case FileFault::Kind::tooFewLines:
        return "Filen har bara " + std::to_string(fault.number) + " rader. En indatafil har " +
               std::to_string(caseLines.size()) + ".";
    case FileFault::Kind::tooManyLines:
        return "Filen har " + std::to_string(fault.number) + " rader. En indatafil har " +
               std::to_string(caseLines.size()) + ".";
    case FileFault::Kind::severalValues:
        return "\"" + fault.found +
               "\" läses som flera värden, för ett kommatecken eller citattecken delar raden. Ett enda värde "
               "väntas.";
    case FileFault::Kind::openQuote:
        return "Citattecknet avslutas inte, så raderna nedanför läses som en del av värdet.";
    case FileFault::Kind::notANumber:
        return found + " där ett tal väntas.";
    case FileFault::Kind::notWhole:
        return found + " där ett heltal väntas.";
    case FileFault::Kind::outOfRange:
        return found + " där ett heltal från " + std::to_string(fault.first) + " till " +
               std::to_string(fault.last) + " väntas.";
    case FileFault::Kind::blanksAhead:
        return "Raden börjar med blanksteg, så talen läses ur fel kolumner.";
    case FileFault::Kind::cellMissing:
        return "Raden är för kort. Talet saknas.";
    }
    return {};
}

std::string paragraph(const std::vector<std::string>& lines) {
    std::string text;
    for (std::size_t i = 0; i < std::min(lines.size(), mostShown); ++i)
        text += lines[i] + lineEnd;
    if (lines.size() > mostShown)
        text += "... och " + std::to_string(lines.size() - mostShown) + " till" + lineEnd;
    return text;
}

} // namespace

std::string fieldName(CasePlace place) {
    if (place.line < 1 || place.line > static_cast<int>(caseLines.size())) return {};
    return std::visit(Namer(place.cell), caseLines[static_cast<std::size_t>(place.line - 1)]);
}

std::string lostValueText(const LostValue& lost) {
    const bool quoted = isText(lost.place);
    return fieldName(lost.place) + ": " + shown(lost.kept, quoted) + " blir " + shown(lost.read, quoted);
}

std::string savedCheckText(const SavedCheck& check) {
    if (check.lost.empty() && !check.shifted) return {};
    std::vector<std::string> lines;
    for (const LostValue& lost : check.lost)
        lines.push_back(lostValueText(lost));
    std::string text =
        std::string(
            "Filen är sparad, men den kan inte hålla allt som det står i formuläret. När den läses:") +
        lineEnd + lineEnd + paragraph(lines);
    if (check.shifted) {
        text += std::string(lineEnd) +
                "Alla värden efter rubriken hamnar dessutom fel, eller filen går inte att öppna." + lineEnd;
    }
    return text + lineEnd + "Ändra det och spara igen.";
}

std::string fileFaultText(const FileFault& fault) {
    if (fault.kind == FileFault::Kind::empty || fault.kind == FileFault::Kind::tooManyLines) {
        return whatIsWrong(fault);
    }
    if (fault.kind == FileFault::Kind::tooFewLines) {
        const int missing = fault.number + 1;
        return whatIsWrong(fault) + " Rad " + std::to_string(missing) + " (" + fieldName({missing, 0}) +
               ") saknas.";
    }
    const std::string name = fieldName(fault.place);
    return "Rad " + std::to_string(fault.place.line) + (name.empty() ? "" : " (" + name + ")") + ": " +
           whatIsWrong(fault);
}

std::string fileFaultsText(const std::string& path, const std::vector<FileFault>& faults) {
    if (faults.empty()) return {};
    std::vector<std::string> lines;
    for (const FileFault& fault : faults)
        lines.push_back(fileFaultText(fault));
    return path + (isNoCase(faults) ? " är ingen indatafil." : " är inte som en indatafil ska vara.") +
           lineEnd + lineEnd + paragraph(lines) + lineEnd +
           "Värden som saknas eller inte kan läsas blir 0, och andra kan ha hamnat i fel fält. Kontrollera "
           "fallet "
           "innan Du använder eller sparar det.";
}

} // namespace varno
