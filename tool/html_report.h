#pragma once

#include <optional>
#include <string>
#include <vector>

#include "diagram/curve_values.h"
#include "model/design_input_file.h"

namespace varno::tool {

/// What a report is made of. Texts are UTF-8.
struct ReportContent {
    CaseFile caseFile;
    std::optional<CurveValues> moments = {};   ///< with the spans of the case
    std::vector<std::string> resultPages = {}; ///< as they are printed
    std::vector<std::string> notes = {};       ///< what is missing, or not as it should be
};

/// One HTML page that holds everything it needs, ready for print on A4.
std::string htmlReport(const ReportContent& content);

} // namespace varno::tool
