#include <algorithm>
#include <map>
#include <ostream>

#include "tool/batch_run.h"
#include "tool/commands.h"

namespace varno::tool {

namespace {

std::string lowerCase(std::string text) {
    std::ranges::transform(text, text.begin(), [](char c) {
        return static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    });
    return text;
}

// Two cases that share a folder would be calculated over each other. On Windows A and a are one name.
void checkNames(const std::vector<std::string>& files) {
    std::map<std::string, std::string> names;
    for (const std::string& file : files) {
        const auto [there, isNew] = names.emplace(lowerCase(folderNameOf(file)), file);
        if (!isNew)
            throw UsageError(there->second + " och " + file +
                             " heter lika och skulle få samma mapp; kör dem med var sin --out.");
    }
}

BatchOptions optionsOf(const Request& request, const EngineHost& host) {
    BatchOptions options;
    options.engine = engineWords(request.engine);
    if (options.engine.empty()) throw UsageError("valet --engine är tomt.");
    options.folder = pathOf(request.folder);
    options.jobs = request.jobs == 0 ? host.cores() : request.jobs;
    options.timeout = Milliseconds(static_cast<long long>(request.timeout * 1000));
    return options;
}

std::string counted(int count, const char* one, const char* many) {
    return std::to_string(count) + (count == 1 ? one : many);
}

void tell(const BatchSummary& summary, std::ostream& out) {
    for (const auto& [file, reason] : summary.failures)
        out << file << ": " << reason << '\n';
    out << counted(summary.calculated, " fall beräknat", " fall beräknade");
    if (summary.there > 0) out << ", " << counted(summary.there, " fanns redan", " fanns redan");
    if (!summary.failures.empty())
        out << ", " << counted(static_cast<int>(summary.failures.size()), " misslyckades", " misslyckades");
    if (summary.interrupted) out << "; körningen avbröts";
    out << ".\n";
}

} // namespace

ExitCode runCases(const Session& session, const Request& request) {
    checkNames(request.files);
    const BatchOptions options = optionsOf(request, session.host);
    BatchSummary summary;
    try {
        std::filesystem::create_directories(options.folder);
        Progress progress(session.err, session.terminal, static_cast<int>(request.files.size()));
        summary = BatchRun(session.opener, session.host, options, progress).run(request.files);
    } catch (const std::filesystem::filesystem_error& error) {
        const int number = runTimeErrorOfErrno(error.code().default_error_condition().value());
        throw RunTimeError(number).about(utf8Of(error.path1()), FileAction::writing);
    }
    tell(summary, session.out);
    if (summary.interrupted) return interrupted;
    return summary.failures.empty() ? done : found;
}

} // namespace varno::tool
