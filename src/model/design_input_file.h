#pragma once

#include <array>
#include <string>
#include <string_view>
#include <variant>

#include "base/file.h"
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
    std::string_view pattern;
};

inline constexpr CellFormat spanCell{7, "##0.000"};
inline constexpr CellFormat supportCell{6, "#0.000"};
inline constexpr CellFormat numberCell{3, "##0"};

/// What a line of the file holds and where its value lives.
struct CaseNameLine {};
struct TitleLine {};
struct IntegerLine {
    std::int16_t DesignCase::*field;
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
using CaseLineContent = std::variant<CaseNameLine, TitleLine, IntegerLine, SafetyClassLine, RealLine,
                                     SpanCellsLine, FactorCellsLine, LineLoadLine>;

struct CaseLine {
    int number; ///< 1..37
    CaseLineContent content;
};

inline constexpr std::array<CaseLine, 37> caseLines{{
    {1, CaseNameLine{}},
    {2, TitleLine{}},
    {3, IntegerLine{&DesignCase::loadCode}},
    {4, SafetyClassLine{}},
    {5, IntegerLine{&DesignCase::nfack}},
    {6, SpanCellsLine{&DesignCase::spv, spanCell, 1}},
    {7, SpanCellsLine{&DesignCase::ptjl, spanCell, 1}},
    {8, SpanCellsLine{&DesignCase::upl, supportCell, 0}},
    {9, IntegerLine{&DesignCase::lokt}},
    {10, FactorCellsLine{spanCell}},
    {11, IntegerLine{&DesignCase::lastkomb}},
    {12, SpanCellsLine{&DesignCase::plast, spanCell, 1}},
    {13, SpanCellsLine{&DesignCase::flast, spanCell, 1}},
    {14, RealLine{&DesignCase::konsv}},
    {15, RealLine{&DesignCase::konsh}},
    {16, IntegerLine{&DesignCase::btg}},
    {17, IntegerLine{&DesignCase::aok}},
    {18, IntegerLine{&DesignCase::dok}},
    {19, IntegerLine{&DesignCase::kavko}},
    {20, IntegerLine{&DesignCase::ktack}},
    {21, IntegerLine{&DesignCase::auk}},
    {22, IntegerLine{&DesignCase::duk}},
    {23, IntegerLine{&DesignCase::duarm}},
    {24, IntegerLine{&DesignCase::brandk}},
    {25, IntegerLine{&DesignCase::brandb}},
    {26, IntegerLine{&DesignCase::kutak}},
    {27, IntegerLine{&DesignCase::reservedValue}},
    {28, IntegerLine{&DesignCase::overhojning}},
    {29, IntegerLine{&DesignCase::initiell}},
    {30, IntegerLine{&DesignCase::tillkommande}},
    {31, IntegerLine{&DesignCase::brukskomb}},
    {32, IntegerLine{&DesignCase::nllast}},
    {33, LineLoadLine{1}},
    {34, LineLoadLine{2}},
    {35, LineLoadLine{3}},
    {36, LineLoadLine{4}},
    {37, LineLoadLine{5}},
}};

/// Follows a case being read, line by line: the input form does, and shows each value as it comes. The title
/// of the case lives there and nowhere else.
class CaseDisplay {
  public:
    virtual ~CaseDisplay() = default;
    virtual void readingStarts() {}
    virtual void setTitle(const std::string& title) = 0;
    /// The record holds the values of line `number`.
    virtual void lineRead(int number) { static_cast<void>(number); }
    virtual void caseRead() {}
};

} // namespace varno

namespace VARNO1 {

/// Reads the 37 lines of an open file into the record, which keeps what the file does not name, and sets
/// `currentFileName`. \throws RunTimeError 52 (no file), 62 (too few lines), 6 (a number out of range), 9 (a
/// rule set, category or span count outside the arrays); the record is then partly overwritten.
void readDesignCase(varno::File& file, varno::DesignCase& designCase, varno::DocumentState& document,
                    varno::CaseDisplay& display);

/// Writes the 37 lines to a file open for output. Closing the file, and noting in the document that the case
/// is saved, is the caller's: only a closed file is on the disk.
void writeDesignCase(varno::File& file, const varno::DesignCase& designCase,
                     const varno::DocumentState& document, const std::string& title);

} // namespace VARNO1
