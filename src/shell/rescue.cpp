#include "shell/rescue.h"

#include <algorithm>
#include <vector>

#include "base/file.h"
#include "base/run_time_error.h"
#include "model/design_input_file.h"

namespace varno {

namespace {

constexpr const char* extension = ".raddning";

const std::string& ownPath(const RescuedCase& rescued) {
    return rescued.savedTo.empty() ? rescued.readFrom : rescued.savedTo;
}

std::string quoted(const std::string& text) {
    return text.empty() ? text : "\"" + text + "\"";
}

std::string question(const RescuedCase& rescued) {
    const auto line = [](const std::string& name, const std::string& value) {
        return value.empty() ? std::string() : name + ": " + value + "\r\n";
    };
    return "Programmet slutade utan att ändringarna i " + rescued.currentFileName +
           ".IND sparades. De finns kvar.\r\n\r\n" + line("Rubrik", quoted(rescued.title)) +
           line("Fil", ownPath(rescued)) + line("Senast ändrat", rescued.changed) +
           "\r\nVill Du öppna det räddade fallet ?\r\n\r\n"
           "\"Ja\" öppnar det som ett ändrat fall, som Du kan spara. \"Nej\" kastar det. "
           "\"Avbryt\" frågar igen vid nästa start.";
}

} // namespace

struct Rescue::Found {
    std::string path;
    std::unique_ptr<RescueLocks::Lock> lock;
    RescuedCase rescued;
};

void Rescue::start(const std::string& folder, const std::string& instance) {
    folder_ = folder;
    path_ = folder + "\\" + instance + extension;
}

void Rescue::remove(const std::string& path) noexcept {
    try {
        calls_.remove(path);
    } catch (const RunTimeError&) {
        // It stays and is offered; that is better than a message about it now.
    }
}

// The files of programs that run no more. One that cannot be read is left alone: a newer program may know it.
std::vector<Rescue::Found> Rescue::leftBehind() {
    std::vector<Found> found;
    for (const std::string& name : folders_.files(folder_, std::string("*") + extension)) {
        const std::string path = folder_ + "\\" + name;
        auto lock = locks_.take(path);
        if (!lock) continue;
        try {
            std::optional<RescuedCase> rescued = readRescue(calls_.readAll(path));
            if (!rescued) continue;
            if (worthless(*rescued))
                remove(path);
            else
                found.push_back({path, std::move(lock), std::move(*rescued)});
        } catch (const RunTimeError&) {
            continue;
        }
    }
    std::ranges::stable_sort(
        found, [](const Found& a, const Found& b) { return a.rescued.changed > b.rescued.changed; });
    return found;
}

// What a save would write stands in the case's file already: the program fell after the save, or the changes were
// taken back. Free line loads stand in no file, so a case with some is always worth a question.
bool Rescue::worthless(const RescuedCase& rescued) {
    const std::string& path = ownPath(rescued);
    if (path.empty() || rescued.designCase.nllastf != 0) return false;
    try {
        File file(calls_, path, FileMode::input, 0, 1);
        const CaseFile onDisk = VARNO1::readDesignCase(file, rescued.designCase);
        return onDisk == CaseFile{rescued.designCase, rescued.currentFileName, rescued.title};
    } catch (const RunTimeError&) {
        return false;
    }
}

void Rescue::offer() {
    if (folder_.empty()) return;
    for (Found& found : leftBehind()) {
        switch (boxes_.show(question(found.rescued), msgQuestionYesNoCancel, "Räddat fall")) {
        case MessageAnswer::yes:
            source_.restore(found.rescued);
            path_ = found.path;
            lock_ = std::move(found.lock);
            kept_ = true;
            return;
        case MessageAnswer::no:
            remove(found.path);
            break;
        default:
            return;
        }
    }
}

RescuedCase Rescue::current() {
    RescuedCase now = source_.toKeep();
    now.title = title_;
    return now;
}

void Rescue::write(RescuedCase now) {
    attempt_ = clock_.running();
    if (!lock_ && !(lock_ = locks_.take(path_))) return;
    RescuedCase stamped = now;
    stamped.changed = clock_.dateAndTime();
    File file(calls_, path_, FileMode::output, 0, 1);
    file.printLine(rescueText(stamped));
    file.close();
    written_ = std::move(now);
    kept_ = true;
}

void Rescue::look() {
    if (folder_.empty()) return;
    if (!source_.changed()) {
        drop();
        return;
    }
    title_ = source_.title();
    RescuedCase now = current();
    if (written_ == now) return;
    if (attempt_ && clock_.running() - *attempt_ < writePause) return;
    try {
        write(std::move(now));
    } catch (const RunTimeError&) {
        // A full disk now may have room later, and the case is in memory: the next look tries again.
    }
}

void Rescue::atOnce() noexcept {
    try {
        if (folder_.empty() || !source_.changed()) return;
        write(current());
    } catch (...) {
        // The file of half a minute ago is still whole.
    }
}

void Rescue::sessionEnds() noexcept {
    title_ = source_.title();
    atOnce();
}

void Rescue::drop() {
    if (!kept_) return;
    remove(path_);
    kept_ = calls_.exists(path_);
    written_.reset();
    attempt_.reset();
}

void Rescue::giveUp() {
    drop();
    folder_.clear();
}

} // namespace varno
