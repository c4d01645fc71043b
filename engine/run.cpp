#include "engine/run.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/run_time_error.h"
#include "base/sequential_text.h"
#include "engine/case_reader.h"
#include "engine/moment_file.h"
#include "engine/result_text.h"

namespace varno::engine {

namespace {

constexpr const char* momentsName = "momk.dat";

// Well inside what the front-end's singles can hold; no floor slab comes near it.
constexpr double largestResult = 1e12;

// A complete file that waits to take the place of another; removed when it does not come to that. It is not flushed to the
// disk, which took longer than all the rest: nobody sees half of it, and what a power cut spoils is calculated again.
class Draft {
  public:
    Draft(FileCalls& files, const char* name) : files_(files), name_(name), output_(files.create(name)) {}
    ~Draft() {
        output_.reset();
        try {
            if (!placed_) files_.remove(name_);
        } catch (const RunTimeError&) {
            // It stays behind; the files that count are whole.
        }
    }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    void write(std::string_view bytes) {
        output_->write(bytes);
        output_->close();
    }
    void replace(const std::string& target) {
        files_.replace(name_, target);
        placed_ = true;
    }

  private:
    FileCalls& files_;
    std::string name_;
    std::unique_ptr<FileCalls::Output> output_;
    bool placed_ = false;
};

void checkResult(const Envelope& result) {
    const auto check = [](double value) {
        if (!(std::abs(value) <= largestResult))
            throw CaseError("Indata ger orimligt stora moment eller reaktioner.");
    };
    for (const auto* ranges : {&result.supportMoment, &result.reaction}) {
        for (const Range& range : *ranges) {
            check(range.max);
            check(range.min);
        }
    }
    for (const auto* curves : {&result.upper, &result.lower}) {
        for (const Curve& curve : *curves)
            std::ranges::for_each(curve, check);
    }
    for (const FieldMoments& field : result.field) {
        check(field.max.moment);
        check(field.min.moment);
    }
}

struct Outcome {
    ExitCode code;
    Bytes result;
    Bytes moments; ///< empty for a case that makes no sense
};

Outcome outcomeOf(const Bytes& bytes, const Bytes& name, std::string_view when) {
    try {
        const CaseOnFile file = readCase(bytes);
        checkCase(file.values);
        const Envelope result = calculate(file.values);
        checkResult(result);
        return {calculated, resultText(file, result, when), momentFile(result)};
    } catch (const CaseError& error) {
        return {senseless, refusalText(name, error.what(), when), {}};
    }
}

void write(FileCalls& files, const Outcome& outcome, const std::string& resultName) {
    std::optional<Draft> newMoments;
    if (!outcome.moments.empty()) newMoments.emplace(files, "~varnowb.tm2").write(outcome.moments);
    Draft newResult(files, "~varnowb.tm1");
    newResult.write(outcome.result);
    // The result file last: it is by this file that a run is judged.
    if (newMoments) newMoments->replace(momentsName);
    newResult.replace(resultName);
    if (!newMoments && files.exists(momentsName)) files.remove(momentsName);
}

// "NUL.res" would be the device, whatever follows the first point.
bool isDevice(std::string_view name) {
    const std::string stem = upperCase(trimBlanks(name.substr(0, name.find('.'))));
    constexpr std::array<std::string_view, 4> devices{"CON", "PRN", "AUX", "NUL"};
    if (std::ranges::find(devices, stem) != devices.end()) return true;
    return stem.size() == 4 && (stem.starts_with("COM") || stem.starts_with("LPT")) && stem[3] >= '1' &&
           stem[3] <= '9';
}

} // namespace

Envelope calculate(const DesignCase& c) {
    Beam beam{c.konsv, c.konsh, {}};
    DesignLoads loads;
    std::vector<double> upl{c.upl(0)};
    for (int i = 1; i <= c.nfack; ++i) {
        beam.spv.push_back(c.spv(i));
        loads.permanent.push_back(*c.lambdaG(c.loadCode) * c.plast(i));
        loads.variable.push_back(*c.lambdaQ(c.loadCode) * c.flast(i));
        upl.push_back(c.upl(i));
    }
    for (int i = 1; i <= c.nllast; ++i)
        loads.lines.push_back({lineLoadPosition(c, i), c.lllast(i)});
    return envelope(beam, loads, upl);
}

std::optional<std::string> resultFileName(const Bytes& firstLine) {
    const auto forbidden = [](char c) {
        return static_cast<unsigned char>(c) < 0x20 ||
               std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
    };
    if (trimBlanks(firstLine).empty() || std::ranges::any_of(firstLine, forbidden) || isDevice(firstLine))
        return {};
    return decodeWindows1252(VARNO1::fromOemLetters(firstLine)) + ".res";
}

ExitCode run(FileCalls& files, std::string_view when) {
    Bytes bytes;
    try {
        bytes = files.readAll("~indata~.tmp");
    } catch (const RunTimeError&) {
        return noCase;
    }
    const Bytes name(bytes.empty() ? std::string_view() : SequentialText(bytes).readLine());
    const auto resultName = resultFileName(name);
    if (!resultName) return noCase;
    const Outcome outcome = outcomeOf(bytes, name, when);
    try {
        write(files, outcome, *resultName);
        return outcome.code;
    } catch (const RunTimeError&) {
        return notWritten;
    }
}

} // namespace varno::engine
