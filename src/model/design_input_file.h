#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "base/file.h"
#include "base/numbers.h"
#include "model/design_case.h"

// The design input file: one design case as 37 lines of text in a fixed order, each ended by CR LF, all
// single bytes. The one table below drives the reader and the writer. What one might not expect:
//   - the two text lines carry DOS codes for the first occurrence of each Swedish letter, Windows-1252 for the
//     rest;
//   - a line is read as one field, so a comma in the title splits it and shifts every later value; the writer does
//     not guard against it, because the engine and existing files know no quotes;
//   - leading blanks of a line are skipped, also of a column line; cells are cut by byte position after that;
//   - a number wider than its cell is cut on the right: 12345678 is read back as 1234567;
//   - end supports read as 0 whatever the file holds;
//   - a value that is not a number reads as 0.

namespace varno {

/// A fixed-width cell of a column line: the number in the pattern, left-aligned, blanks behind it.
struct CellFormat {
    std::size_t width;
    NumberPattern pattern;

    bool isColumn() const { return width != std::string_view::npos; }
};

inline constexpr CellFormat spanCell{7, "##0.000"};
inline constexpr CellFormat supportCell{6, "#0.000"};
inline constexpr CellFormat numberCell{3, "##0"};
inline constexpr CellFormat wholeLine{std::string_view::npos,
                                      ""}; ///< of a line's only number, in general form

/// What a line of the file holds and where its value lives.
struct CaseNameLine {};
struct TitleLine {};
struct IntegerLine {
    std::int16_t DesignCase::*field;
    int first = -32768; ///< of the numbers that the program knows
    int last = 32767;
};
struct SafetyClassLine {}; ///< the element of the current rule set
struct RealLine {
    float DesignCase::*field;
};
struct SpanCellsLine { ///< elements `first`..nfack
    SpanArray DesignCase::*field;
    CellFormat cell;
    int first;
};
struct FactorCellsLine { ///< lambdaG, ksi, lambdaQ, psi0, psi1, psi2 of the current rule set and category
    CellFormat cell;
};
struct LineLoadLine { ///< span number, distance and load of one line load
    int index;
};
using CaseLine = std::variant<CaseNameLine, TitleLine, IntegerLine, SafetyClassLine, RealLine, SpanCellsLine,
                              FactorCellsLine, LineLoadLine>;

inline constexpr std::array<CaseLine, 37> caseLines{
    CaseNameLine{},
    TitleLine{},
    IntegerLine{&DesignCase::loadCode, 0, maxLoadCode},
    SafetyClassLine{},
    IntegerLine{&DesignCase::nfack, 1, maxSpans},
    SpanCellsLine{&DesignCase::spv, spanCell, 1},
    SpanCellsLine{&DesignCase::ptjl, spanCell, 1},
    SpanCellsLine{&DesignCase::upl, supportCell, 0},
    IntegerLine{&DesignCase::lokt, 0, maxLoadCategory},
    FactorCellsLine{spanCell},
    IntegerLine{&DesignCase::lastkomb},
    SpanCellsLine{&DesignCase::plast, spanCell, 1},
    SpanCellsLine{&DesignCase::flast, spanCell, 1},
    RealLine{&DesignCase::konsv},
    RealLine{&DesignCase::konsh},
    IntegerLine{&DesignCase::btg},
    IntegerLine{&DesignCase::aok},
    IntegerLine{&DesignCase::dok},
    IntegerLine{&DesignCase::kavko},
    IntegerLine{&DesignCase::ktack},
    IntegerLine{&DesignCase::auk},
    IntegerLine{&DesignCase::duk},
    IntegerLine{&DesignCase::duarm},
    IntegerLine{&DesignCase::brandk},
    IntegerLine{&DesignCase::brandb},
    IntegerLine{&DesignCase::kutak},
    IntegerLine{&DesignCase::reservedValue},
    IntegerLine{&DesignCase::overhojning},
    IntegerLine{&DesignCase::initiell},
    IntegerLine{&DesignCase::tillkommande},
    IntegerLine{&DesignCase::brukskomb},
    IntegerLine{&DesignCase::nllast, 0, maxLineLoads},
    LineLoadLine{1},
    LineLoadLine{2},
    LineLoadLine{3},
    LineLoadLine{4},
    LineLoadLine{5},
};

/// Calls `visit(cell, field, element, at)` for each number of a line from left to right: its cell, its field of the
/// record, its span, support or line load (nothing for what has no such row), and `at(record)`, which is the number
/// itself in any record. How many there are, and of which rule set and category, `designCase` says.
template <typename Visit>
void forEachNumber(const CaseLine& line, const DesignCase& designCase, Visit visit) {
    const auto number = [&](CellFormat cell, std::optional<int> element, auto field, auto... place) {
        visit(
            cell, field, element, [=](auto& record) -> auto& {
                if constexpr (sizeof...(place) == 0)
                    return record.*field;
                else
                    return (record.*field)(place...);
            });
    };
    const int ruleSet = designCase.loadCode;
    if (const auto* integer = std::get_if<IntegerLine>(&line)) number(wholeLine, {}, integer->field);
    if (const auto* real = std::get_if<RealLine>(&line)) number(wholeLine, {}, real->field);
    if (std::holds_alternative<SafetyClassLine>(line))
        number(wholeLine, {}, &DesignCase::safetyClass, ruleSet);
    if (const auto* spans = std::get_if<SpanCellsLine>(&line)) {
        for (int i = spans->first; i <= designCase.nfack; ++i)
            number(spans->cell, i, spans->field, i);
    }
    if (const auto* factors = std::get_if<FactorCellsLine>(&line)) {
        for (const auto table : {&DesignCase::lambdaG, &DesignCase::ksi, &DesignCase::lambdaQ})
            number(factors->cell, {}, table, ruleSet);
        for (const auto table : {&DesignCase::psi0, &DesignCase::psi1, &DesignCase::psi2})
            number(factors->cell, {}, table, ruleSet, designCase.lokt);
    }
    if (const auto* load = std::get_if<LineLoadLine>(&line)) {
        number(numberCell, load->index, &DesignCase::llfnr, load->index);
        number(spanCell, load->index, &DesignCase::avst, load->index);
        number(spanCell, load->index, &DesignCase::lllast, load->index);
    }
}

/// The type of the number that `at` gives: std::int16_t, float or Factor.
template <typename At>
using NumberAt = std::remove_cvref_t<std::invoke_result_t<At, DesignCase&>>;

/// The end supports have no width in memory, whatever the line of the support widths says.
inline void holdEndSupports(const CaseLine& line, DesignCase& designCase) {
    const auto* const widths = std::get_if<SpanCellsLine>(&line);
    if (widths == nullptr || widths->field != &DesignCase::upl) return;
    designCase.upl(0) = 0;
    designCase.upl(designCase.nfack) = 0;
}

/// A design case as a file holds it. Texts are UTF-8.
struct CaseFile {
    DesignCase designCase;
    std::string name; ///< as in DocumentState::currentFileName
    std::string title;
    bool operator==(const CaseFile&) const = default;
};

} // namespace varno

namespace VARNO1 {

/// Reads the 37 lines of an open file; what it does not name stays as it is in `presets`. \throws
/// RunTimeError 52 (no file), 62 (too few lines), 6 (a number out of range), 9 (a rule set, category or span
/// count outside the arrays).
varno::CaseFile readDesignCase(varno::File& file, const varno::DesignCase& presets);
/// The same from the bytes of a file.
varno::CaseFile readDesignCase(varno::SequentialText text, const varno::DesignCase& presets);

/// Writes the 37 lines to a file open for output. Closing the file, and noting in the document that the case
/// is saved, is the caller's: only a closed file is on the disk.
void writeDesignCase(varno::File& file, const varno::CaseFile& caseFile);
/// The bytes that they are.
varno::Bytes writtenDesignCase(const varno::CaseFile& caseFile);

} // namespace VARNO1
