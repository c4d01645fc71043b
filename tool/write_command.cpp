#include <cmath>
#include <ostream>

#include "base/numbers.h"
#include "model/case_check.h"
#include "model/reference_tables.h"
#include "shell/case_messages.h"
#include "tool/commands.h"

namespace varno::tool {

namespace {

// "V64" of "out/V64.IND": the calculation calls the result after the name in the case, so a hundred variants of one case
// need names of their own.
std::string nameFrom(const std::string& path) {
    const auto slash = path.find_last_of("/\\");
    const std::string file = slash == std::string::npos ? path : path.substr(slash + 1);
    return upperCase(file.substr(0, file.find('.')));
}

CaseFile baseOf(FileOpener& opener, const std::string& path) {
    if (!path.empty()) return loadCase(opener, path);
    CaseFile presets;
    presetDesignCase(presets.designCase);
    return presets;
}

// A number that the file holds with fewer decimals; anything else would be another number.
bool isRounded(const LostValue& lost) {
    const double kept = VARNO1::parseNumber(lost.kept);
    return lost.place.line > 2 && std::abs(kept - VARNO1::parseNumber(lost.read)) <= 0.0005 * 1.001;
}

// The numbers that say how many others there are, and of which table.
void checkRanges(const DesignCase& designCase) {
    int line = 0;
    for (const CaseLine& content : caseLines) {
        ++line;
        const auto* const whole = std::get_if<IntegerLine>(&content);
        if (whole == nullptr) continue;
        const int value = designCase.*whole->field;
        if (value < whole->first || value > whole->last)
            throw InputError(fieldName({line, 0}) + " är " + std::to_string(value) + "; ett heltal från " +
                             std::to_string(whole->first) + " till " + std::to_string(whole->last) +
                             " väntas.");
    }
}

// The end supports have no width. What ended the base may be an inner support now and the other way round; a width that
// was asked for stays, to be refused.
void holdEndSupports(DesignCase& designCase, const DesignCase& base) {
    for (const int support : {0, int{designCase.nfack}}) {
        if (designCase.upl(support) == base.upl(support)) designCase.upl(support) = 0;
    }
}

// Nothing may be in the file otherwise than it was said.
void checkWritten(const CaseFile& caseFile, std::ostream& err) {
    const SavedCheck check = checkSaved(caseFile, VARNO1::writtenDesignCase(caseFile));
    std::string refused;
    for (const LostValue& lost : check.lost) {
        if (isRounded(lost))
            err << lostValueText(lost) << '\n';
        else
            refused += lostValueText(lost) + "\n";
    }
    if (check.shifted || !refused.empty())
        throw InputError(refused + "En indatafil kan inte hålla det. Ingen fil skrevs.");
}

} // namespace

ExitCode writeCase(const Session& session, const Request& request) {
    const Bytes json = aboutFile(request.file, FileAction::reading,
                                 [&] { return session.opener.calls().readAll(request.file); });
    CaseFile base = baseOf(session.opener, request.base);
    base.name = nameFrom(request.target);
    CaseFile read;
    try {
        read = caseFromJson(json, base);
        read.name = upperCase(read.name);
        checkRanges(read.designCase);
        holdEndSupports(read.designCase, base.designCase);
        checkWritten(read, session.err);
    } catch (const InputError& error) {
        throw InputError(request.file + ": " + error.what());
    }
    File file = session.opener.openFile(request.target, FileMode::output);
    VARNO1::writeDesignCase(file, read);
    file.close();
    return done;
}

} // namespace varno::tool
