#pragma once

#include <string>
#include <vector>

#include "model/case_check.h"

// What is said about a design input file, in Swedish: by the program after a save and after "Öppna...", and for
// anybody else who checks one.

namespace varno {

/// The field of a value, by its caption on the form and the number of its span, support or line load.
std::string fieldName(CasePlace place);

/// "Rubrik: \"Hus, 4\" blir \"Hus\""
std::string lostValueText(const LostValue& lost);
/// One message about all that was lost; empty when nothing was.
std::string savedCheckText(const SavedCheck& check);

/// "Rad 2 (Rubrik): ...", or about the whole file.
std::string fileFaultText(const FileFault& fault);
/// One message about all that is wrong with the file; empty when nothing is.
std::string fileFaultsText(const std::string& path, const std::vector<FileFault>& faults);

} // namespace varno
