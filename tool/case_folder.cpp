#include "tool/case_folder.h"

#include <fstream>
#include <iterator>

#include "base/file.h"
#include "base/run_time_error.h"
#include "diagram/moment_file.h"
#include "results/calculation_run.h"

namespace varno::tool {

namespace fs = std::filesystem;

namespace {

fs::path withEnding(const fs::path& path, const char* ending) {
    fs::path longer = path;
    longer += ending;
    return longer;
}

Bytes contentOf(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void write(const fs::path& path, const Bytes& bytes) {
    std::ofstream out(path, std::ios::binary);
    out << bytes;
    if (!out.flush()) throw RunTimeError(errDiskFull).about(utf8Of(path), FileAction::writing);
}

// A file that fits and is not empty. Engines for Windows care little about capitals.
template <typename Fits>
bool hasFile(const fs::path& folder, Fits fits) {
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(folder, none)) {
        if (entry.is_regular_file(none) && entry.file_size(none) > 0 && fits(entry.path())) return true;
    }
    return false;
}

bool hasResultFile(const fs::path& folder) {
    return hasFile(folder,
                   [](const fs::path& path) { return equalIgnoringCase(utf8Of(path.extension()), ".res"); });
}

} // namespace

fs::path pathOf(const std::string& utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

std::string utf8Of(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

CaseFolder::CaseFolder(const fs::path& runFolder, const std::string& name, std::string inputName)
    : folder_(runFolder / pathOf(name)), work_(withEnding(folder_, draftEnding)),
      failed_(withEnding(folder_, ".fel")), lockPath_(withEnding(folder_, ".~lock")),
      inputName_(std::move(inputName)) {}

// Half a result is none.
CaseFolder::~CaseFolder() {
    std::error_code ignored;
    if (atWork_ && lock_) fs::remove_all(work_, ignored);
}

bool CaseFolder::holds(const Bytes& input) const {
    std::error_code none;
    return fs::is_regular_file(folder_ / pathOf(inputName_), none) &&
           contentOf(folder_ / pathOf(inputName_)) == input && hasResultFile(folder_);
}

CaseFolder::Begun CaseFolder::begin(EngineHost& host, const Bytes& input) {
    if (holds(input)) return Begun::calculated;
    lock_ = host.tryLock(utf8Of(lockPath_));
    if (!lock_) return Begun::taken;
    // Another process may have been at work on it until now.
    if (holds(input)) return Begun::calculated;
    // What a run that was killed has left.
    fs::remove_all(work_);
    fs::remove_all(failed_);
    fs::create_directory(work_);
    atWork_ = true;
    write(work_ / pathOf(inputName_), input);
    write(work_ / temporaryInputFile, input);
    return Begun::ready;
}

bool CaseFolder::hasResult() const {
    return hasResultFile(work_);
}

bool CaseFolder::hasMoments() const {
    return hasFile(work_, [](const fs::path& path) {
        return equalIgnoringCase(utf8Of(path.filename()), momentFileName);
    });
}

void CaseFolder::keep() {
    moveTo(folder_);
}

std::string CaseFolder::keepFailed() {
    moveTo(failed_);
    return utf8Of(failed_);
}

void CaseFolder::moveTo(const fs::path& target) {
    std::error_code none;
    fs::remove(work_ / temporaryInputFile, none);
    const fs::path output = work_ / outputName;
    if (fs::is_regular_file(output, none) && fs::file_size(output, none) == 0) fs::remove(output, none);
    // A folder cannot be renamed over another.
    const fs::path before = withEnding(folder_, ".~old");
    fs::remove_all(before);
    if (fs::exists(target)) fs::rename(target, before);
    fs::rename(work_, target);
    atWork_ = false;
    fs::remove_all(before);
    lock_.reset();
}

} // namespace varno::tool
