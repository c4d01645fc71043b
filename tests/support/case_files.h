#pragma once

#include <string>
#include <vector>

#include "model/design_input_file.h"

namespace varno::testing {

/// What the program's writer makes of a case.
Bytes writtenCase(const CaseFile& caseFile);

/// What the program's reader makes of a file, from the record as it stands before every read: the presets.
/// \throws RunTimeError as the reader does.
CaseFile readCase(const Bytes& bytes);

/// Three spans under rule set 3, every field filled with a value of its own that fits its cell.
CaseFile sampleCase();

/// The file of sampleCase, byte for byte.
Bytes sampleFile();

/// The lines of a text whose every line ends with CR LF, without the ends. Fails the test for any other text.
std::vector<Bytes> linesOf(const Bytes& text);
/// The lines again with an end after each.
Bytes textOf(const std::vector<Bytes>& lines, const std::string& lineEnd = "\r\n");

/// sampleFile with line `number` (from 1) exchanged.
Bytes sampleFileWith(int number, const Bytes& line);

} // namespace varno::testing
