#include "files/case_summary.h"

#include "base/run_time_error.h"
#include "controls/rule_sets.h"
#include "model/case_check.h"
#include "model/design_input_file.h"
#include "model/reference_tables.h"

namespace varno {

namespace {

CaseFile caseOf(const Bytes& bytes) {
    DesignCase presets;
    presetDesignCase(presets);
    return VARNO1::readDesignCase(SequentialText(bytes), presets);
}

std::string spansText(const DesignCase& designCase, const NumberLocale& locale) {
    const auto metres = [&](float length) { return formatNumber(length, "#0.00", locale); };
    std::string text = std::to_string(designCase.nfack) + " fack: ";
    for (int span = 1; span <= designCase.nfack; ++span)
        text += (span > 1 ? " + " : "") + metres(designCase.spv(span));
    text += " m";
    if (designCase.konsv != 0) text += ", konsol vänster " + metres(designCase.konsv) + " m";
    if (designCase.konsh != 0) text += ", konsol höger " + metres(designCase.konsh) + " m";
    return text;
}

} // namespace

std::string caseSummary(FileCalls& calls, const std::string& path, const NumberLocale& locale) {
    try {
        if (!calls.exists(path)) return {};
        const Bytes bytes = calls.readAll(path);
        if (!checkFile(bytes).empty()) return "Filen är inte som en indatafil ska vara.";
        const CaseFile found = caseOf(bytes);
        constexpr std::size_t toTheMinute = 16;
        const RuleSet* const rules = ruleSetWith(&RuleSet::number, found.designCase.loadCode);
        return found.title + "\r\n" + spansText(found.designCase, locale) + "\r\n" +
               (rules == nullptr ? "Inget regelverk valt" : rules->name) + ", ändrad " +
               calls.lastWrittenText(path).substr(0, toTheMinute);
    } catch (const RunTimeError&) {
        return "Filen kan inte läsas.";
    }
}

} // namespace varno
