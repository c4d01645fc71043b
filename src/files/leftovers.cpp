#include "files/leftovers.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/file.h"
#include "base/run_time_error.h"
#include "model/design_input_file.h"

namespace varno {

namespace {

constexpr std::string_view backupEnding = ".~bak";
constexpr std::string_view caseEnding = ".IND";
constexpr const char* leftoverPatterns = "*.IND.~tmp;*.IND.~bak";

/// The case that a leftover belongs to, empty for any other file. Patterns of Windows may match more than they say.
std::string caseOf(const std::string& name) {
    for (const std::string_view ending : {std::string_view(draftEnding), backupEnding}) {
        if (name.size() <= ending.size() + caseEnding.size()) continue;
        std::string stem = name.substr(0, name.size() - ending.size());
        const std::string last = stem.substr(stem.size() - caseEnding.size());
        if (name.ends_with(ending) && equalIgnoringCase(last, caseEnding)) return stem;
    }
    return {};
}

} // namespace

std::vector<Leftover> Leftovers::findIn(const std::string& folder) {
    std::vector<Leftover> found;
    const std::string before = folder.ends_with('\\') ? folder : folder + "\\";
    for (const std::string& name : folders_.files(folder, leftoverPatterns)) {
        const std::string belongsTo = caseOf(name);
        if (belongsTo.empty()) continue;
        Leftover leftover{before + name, before + belongsTo, calls_.exists(before + belongsTo)};
        const auto rival = std::find_if(found.begin(), found.end(), [&](const Leftover& other) {
            return equalIgnoringCase(other.casePath, leftover.casePath);
        });
        try {
            if (!isWorthMoreThan(leftover.path, leftover.caseExists ? leftover.casePath : "")) {
                removeIfPossible(leftover.path);
            } else if (rival == found.end()) {
                found.push_back(leftover);
            } else if (isWorthMoreThan(leftover.path, rival->path)) {
                *rival = leftover;
            }
        } catch (const RunTimeError&) {
            // What cannot be read is neither offered nor removed.
        }
    }
    return found;
}

// `other` may be no file at all.
bool Leftovers::isWorthMoreThan(const std::string& path, const std::string& other) {
    const Bytes bytes = calls_.readAll(path);
    try {
        File file(calls_, path, FileMode::input, 0, 1);
        VARNO1::readDesignCase(file, {});
        if (!bytes.ends_with('\n')) return false;
    } catch (const RunTimeError&) {
        return false;
    }
    if (other.empty()) return true;
    // Some disks count in steps of two seconds.
    return calls_.lastWritten(path) >= calls_.lastWritten(other) && calls_.readAll(other) != bytes;
}

void Leftovers::removeIfPossible(const std::string& path) {
    try {
        calls_.remove(path);
    } catch (const RunTimeError&) {
        // Another program is saving just now, or nobody may remove anything here: it does no harm where it lies.
    }
}

void Leftovers::restore(const Leftover& leftover) {
    aboutFile(leftover.casePath, FileAction::writing, [&] {
        calls_.checkWritable(leftover.casePath);
        calls_.replace(leftover.path, leftover.casePath);
    });
}

void askAboutLeftovers(Leftovers& leftovers, MessageBoxes& boxes, const std::string& folder) {
    for (const Leftover& leftover : leftovers.findIn(folder)) {
        const std::string offer = leftover.caseExists
                                      ? " och är nyare än filen.\n\nVill Du ersätta filen med det ?"
                                      : ", men filen saknas.\n\nVill Du lägga det på filens plats ?";
        const MessageAnswer answer =
            boxes.show("Programmet avslutades medan " + leftover.casePath +
                            " sparades. Det som skulle sparas ligger kvar som " + leftover.path + offer +
                            " Svarar Du Nej ligger det kvar.",
                        leftover.caseExists ? msgYesNoDefaultNo : msgYesNo, "Avbruten lagring");
        if (answer == MessageAnswer::yes) leftovers.restore(leftover);
    }
}

} // namespace varno
