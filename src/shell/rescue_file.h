#pragma once

#include <optional>
#include <string>

#include "base/text.h"
#include "model/design_case.h"

// What a rescue file holds, line by line, UTF-8, each line ended by CR LF:
//
//     varno raddning 1
//     name=value        one for each field below, and for each field of the record
//     slut=checksum     of everything above
//
// Everything that the program knows of a case is there, also what a design input file cannot hold: a comma in the
// title, free line loads, the factors of the other rule sets. Numbers are the shortest text that reads back as the
// same number; the cells of an array are divided by blanks, an empty factor is "-". A text keeps its line ends and
// backslashes as \n, \r and \\.
//
// What one might not expect: a name that is unknown is skipped and one that is missing leaves its field empty, so that
// a newer and an older program read each other's files; without its last line a file is no rescue file at all.

namespace varno {

/// A changed case as it is kept for the next start. Texts are UTF-8.
struct RescuedCase {
    DesignCase designCase;
    std::string title;
    std::string currentFileName;
    std::string savedFileName;
    bool caseSaved = false;
    std::string readFrom;  ///< the file that it was read from, empty when there is none
    std::string savedTo;   ///< the file that it was last saved to, empty when there is none
    std::string directory; ///< where the file-name dialog stood: Save writes there
    std::string changed;   ///< when it was kept, as a person reads it
    bool operator==(const RescuedCase&) const = default;
};

/// The lines, the last one without its end.
Bytes rescueText(const RescuedCase& rescued);
/// Nothing for a file that is damaged, incomplete, or no rescue file.
std::optional<RescuedCase> readRescue(const Bytes& text);

} // namespace varno
