#include "tool/batch_run.h"

#include <algorithm>

#include "base/error_words.h"
#include "tool/case_inputs.h"
#include "tool/commands.h"

namespace varno::tool {

namespace {

std::string happened(const RunTimeError& error) {
    std::string words = errorWords(error.number(), error.subject()).happened;
    std::ranges::replace(words, '\n', ' ');
    return words;
}

std::string seconds(Milliseconds time) {
    return withComma(static_cast<double>(time.count()) / 1000) + " s";
}

} // namespace

std::string folderNameOf(const std::string& file) {
    return utf8Of(pathOf(file).stem());
}

std::vector<std::string> engineWords(const std::string& commandLine) {
    std::error_code none;
    // "C:\\Program Files\\..." is one program, with or without quotation marks.
    if (std::filesystem::is_regular_file(pathOf(commandLine), none))
        return {utf8Of(std::filesystem::absolute(pathOf(commandLine)))};
    std::vector<std::string> words;
    char quote = 0;
    bool inWord = false;
    for (const char c : commandLine) {
        if (quote == 0 && (c == ' ' || c == '\t')) {
            inWord = false;
            continue;
        }
        if (!inWord) words.emplace_back();
        inWord = true;
        if (c == quote)
            quote = 0;
        else if (quote == 0 && (c == '"' || c == '\''))
            quote = c;
        else
            words.back() += c;
    }
    for (std::string& word : words) {
        if (std::filesystem::is_regular_file(pathOf(word), none))
            word = utf8Of(std::filesystem::absolute(pathOf(word)));
    }
    return words;
}

BatchSummary BatchRun::run(const std::vector<std::string>& files) {
    const auto jobs = static_cast<std::size_t>(std::min(options_.jobs, host_.mostAtOnce()));
    auto next = files.begin();
    try {
        while (!host_.interrupted() && (next != files.end() || !jobs_.empty())) {
            while (next != files.end() && jobs_.size() < jobs && !host_.interrupted())
                begin(*next++);
            if (!jobs_.empty()) takeEnded();
            endLate();
            progress_.show(summary_.calculated + summary_.there, static_cast<int>(summary_.failures.size()),
                           host_.now());
        }
    } catch (...) {
        endAll();
        throw;
    }
    summary_.interrupted = host_.interrupted();
    endAll();
    return std::move(summary_);
}

void BatchRun::begin(const std::string& file) {
    Bytes input;
    std::string name = folderNameOf(file);
    std::string inputName = utf8Of(pathOf(file).filename());
    try {
        input = aboutFile(file, FileAction::reading, [&] { return opener_.calls().readAll(file); });
        const CaseFile loaded = loadCase(opener_, file);
        if (file == "-") {
            name = loaded.name;
            inputName = name + ".IND";
        }
    } catch (const RunTimeError& error) {
        return fail(file, happened(error));
    }
    CaseFolder folder(options_.folder, name, inputName);
    switch (folder.begin(host_, input)) {
    case CaseFolder::Begun::calculated:
        ++summary_.there;
        return;
    case CaseFolder::Begun::taken:
        return fail(file, "Fallet beräknas redan av någon annan.");
    case CaseFolder::Begun::ready:
        break;
    }
    const int child = start(folder);
    jobs_.emplace(child, Job{file, std::move(folder), host_.now() + options_.timeout});
}

// An engine that does not start for one case starts for none.
int BatchRun::start(const CaseFolder& folder) {
    try {
        return host_.start(options_.engine, folder.workPath(), CaseFolder::outputName);
    } catch (const RunTimeError& error) {
        throw InputError("Motorn kan inte startas. " +
                         happened(error.about(options_.engine.front(), FileAction::none)));
    }
}

std::optional<Milliseconds> BatchRun::longestWait() const {
    if (options_.timeout == Milliseconds(0)) return {};
    const auto first =
        std::ranges::min_element(jobs_, {}, [](const auto& running) { return running.second.until; });
    return std::max(first->second.until - host_.now(), Milliseconds(0));
}

void BatchRun::takeEnded() {
    const std::optional<EngineHost::Ended> ended = host_.wait(longestWait());
    if (!ended) return;
    const auto job = jobs_.find(ended->child);
    if (job == jobs_.end()) return;
    judge(job->second, *ended);
    jobs_.erase(job);
}

void BatchRun::judge(Job& job, const EngineHost::Ended& ended) {
    const std::string code = std::to_string(ended.code);
    std::string reason;
    if (ended.crashed)
        reason = "Motorn avbröts (" + code + ").";
    else if (!job.folder.hasResult())
        reason = "Motorn skrev ingen resultatfil (slutkod " + code + ").";
    else if (!job.folder.hasMoments())
        reason = "Motorn skrev inga momentkurvor (slutkod " + code + "); varför står i resultatfilen.";
    if (reason.empty()) {
        job.folder.keep();
        ++summary_.calculated;
    } else {
        const std::string kept = job.folder.keepFailed();
        fail(job.file, reason + " Se mappen " + kept + ".");
    }
}

void BatchRun::endLate() {
    if (options_.timeout == Milliseconds(0)) return;
    const Milliseconds now = host_.now();
    for (auto job = jobs_.begin(); job != jobs_.end();) {
        if (job->second.until > now) {
            ++job;
            continue;
        }
        host_.end(job->first);
        const std::string kept = job->second.folder.keepFailed();
        fail(job->second.file,
             "Motorn var inte klar inom " + seconds(options_.timeout) + ". Se mappen " + kept + ".");
        job = jobs_.erase(job);
    }
}

// What they have written so far goes with their folders.
void BatchRun::endAll() {
    for (const auto& running : jobs_)
        host_.end(running.first);
    jobs_.clear();
}

void BatchRun::fail(const std::string& file, const std::string& reason) {
    summary_.failures.push_back({file, reason});
}

} // namespace varno::tool
