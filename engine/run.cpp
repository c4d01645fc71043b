#include "engine/run.h"

#include "engine/case_check.h"
#include "engine/case_reader.h"
#include "engine/envelope.h"
#include "engine/files.h"
#include "engine/letters.h"
#include "engine/moment_file.h"
#include "engine/result_text.h"

#include <algorithm>
#include <cmath>

namespace varnowb {
namespace {

constexpr const char* kInput = "~indata~.tmp";
constexpr const char* kMoments = "momk.dat";
constexpr const char* kNewResult = "~varnowb.tm1";
constexpr const char* kNewMoments = "~varnowb.tm2";

// Well inside what the front-end's single-precision numbers can hold; no floor slab comes near it.
constexpr double kLargestResult = 1e12;

Envelope calculate(const DesignInput& c) {
    DesignLoads loads;
    for (std::size_t i = 0; i < c.spv.size(); ++i) {
        loads.permanent.push_back(c.lambdaG * c.plast[i]);
        loads.variable.push_back(c.lambdaQ * c.flast[i]);
    }
    for (std::size_t i = 0; i < static_cast<std::size_t>(c.nllast); ++i)
        loads.lines.push_back({lineLoadPosition(c, *c.lineLoads[i]), c.lineLoads[i]->lllast});
    return envelope({c.konsv, c.konsh, c.spv}, loads, c.upl);
}

void checkResult(const Envelope& result) {
    const auto check = [](double value) {
        if (!(std::abs(value) <= kLargestResult))
            throw CaseError("Indata ger orimligt stora moment eller reaktioner.");
    };
    for (const auto* ranges : {&result.supportMoment, &result.reaction})
        for (const auto& range : *ranges) {
            check(range.max);
            check(range.min);
        }
    for (const auto* curves : {&result.upper, &result.lower})
        for (const auto& curve : *curves)
            std::for_each(curve.begin(), curve.end(), check);
    for (const auto& field : result.field) {
        check(field.max.moment);
        check(field.min.moment);
    }
}

ExitCode refuse(const std::string& resultFile, std::string_view name, std::string_view reason) {
    if (!writeFile(kNewResult, refusalText(name, reason)) || !replaceFile(kNewResult, resultFile))
        return kNotWritten;
    return removeFile(kMoments) ? kSenseless : kNotWritten;
}

ExitCode finish(const std::string& resultFile, const DesignInput& c, const Envelope& result) {
    if (!writeFile(kNewMoments, momentFile(result))) return kNotWritten;
    if (!writeFile(kNewResult, resultText(c, result))) {
        removeFile(kNewMoments);
        return kNotWritten;
    }
    // The result file last: it is by this file that a run is judged.
    if (!replaceFile(kNewMoments, kMoments)) {
        removeFile(kNewResult);
        return kNotWritten;
    }
    return replaceFile(kNewResult, resultFile) ? kCalculated : kNotWritten;
}

} // namespace

ExitCode run() {
    const auto bytes = readFile(kInput);
    if (!bytes) return kNoCase;
    const auto lines = splitLines(*bytes);
    if (lines.empty()) return kNoCase;
    const auto resultFile = resultFileName(lines.front());
    if (!resultFile) return kNoCase;
    try {
        const auto c = readCase(*bytes);
        checkCase(c);
        const auto result = calculate(c);
        checkResult(result);
        return finish(*resultFile, c, result);
    } catch (const CaseError& error) {
        return refuse(*resultFile, lines.front(), error.what());
    }
}

} // namespace varnowb
