#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/text.h"
#include "model/design_input_file.h"

// What is wrong with a design input file, as values; what is said about it is put into words elsewhere
// (`shell/case_messages.h`). The reader itself takes whatever it is given: a comma in the title moves every value behind
// it, a cut number reads as a smaller one, and a letter as a recipe would read as a case.

namespace varno {

/// A value of the file: its line (1..37), and in a column line the cell (from 1).
struct CasePlace {
    int line = 0;
    int cell = 0;
    bool operator==(const CasePlace&) const = default;
};

/// A value that does not come back from the file as the record holds it.
struct LostValue {
    CasePlace place;
    std::string kept; ///< as the record holds it
    std::string read; ///< as the reader gives it back
    bool operator==(const LostValue&) const = default;
};

struct SavedCheck {
    std::vector<LostValue> lost;
    bool shifted = false; ///< name or title take more or less than their line: all values behind them move
};

/// Reads the bytes of a file that was just written, and compares every value that a file holds with the case.
/// A number with more decimals than its cell is lost as well as one with too many digits: what is told is what
/// the next reader sees. An empty factor is the 0 that it reads as.
SavedCheck checkSaved(const CaseFile& caseFile, const Bytes& written);

/// What is wrong with a line, or with the number of lines.
struct FileFault {
    enum class Kind {
        empty,         ///< the file has no line
        tooFewLines,   ///< `number` lines
        tooManyLines,  ///< `number` lines
        severalValues, ///< a comma, or text behind a closing quotation mark, divides the line
        openQuote,     ///< a quotation without its end takes in the lines below
        notANumber,    ///< `found` stands where a number is expected
        notWhole,      ///< a whole number is expected
        outOfRange,    ///< of the numbers that the program knows: `first` to `last`
        blanksAhead,   ///< the cells of a column line stand to the right of their places
        cellMissing,   ///< the line ends before its last cell
    };
    Kind kind = Kind::empty;
    CasePlace place;
    std::string found = {}; ///< UTF-8, as it stands in the file
    int number = 0;
    int first = 0;
    int last = 0;
    bool operator==(const FileFault&) const = default;
};

/// Looks at each line on its own, so that one fault is told once and not again for every line behind it.
std::vector<FileFault> checkFile(const Bytes& bytes);

/// Most of the lines that are there are not what they should be: this never was a case.
bool isNoCase(const std::vector<FileFault>& faults);

} // namespace varno
