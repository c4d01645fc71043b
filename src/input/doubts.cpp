#include "input/doubts.h"

#include "input/field_table.h"
#include "model/plausibility.h"

namespace varno {

namespace {

std::optional<Control> boxOf(const Finding& finding) {
    for (const TextField& row : textFields) {
        if (row.name == finding.field) return Control{row.field, finding.index};
    }
    return std::nullopt;
}

} // namespace

std::vector<Doubt> doubtsOf(const DesignCase& designCase) {
    std::vector<Doubt> doubts;
    for (const Finding& finding : implausible(designCase))
        doubts.push_back({boxOf(finding), finding.text});
    return doubts;
}

std::string doubtsInOneLine(const std::vector<Doubt>& doubts) {
    std::string line;
    for (const Doubt& doubt : doubts)
        line += (line.empty() ? "Se över: " : " ") + doubt.text;
    return line;
}

} // namespace varno
