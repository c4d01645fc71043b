#pragma once

#include <string>
#include <vector>

#include "base/file_calls.h"
#include "base/folders.h"
#include "base/message_boxes.h"

namespace varno {

/// A case that lies in a folder under another name because a program was ended while it saved it.
struct Leftover {
    std::string path;        ///< where it lies
    std::string casePath;    ///< where it belongs
    bool caseExists = false; ///< something older lies there
};

/// What programs that were ended in the middle of a save left in a folder: drafts, and the backups that earlier versions
/// made.
///
/// A leftover is worth something when it is a whole case and is not older than the case under its name and
/// differs from it, or when there is none. Everything else is removed; what another program holds open just now stays.
class Leftovers {
  public:
    Leftovers(Folders& folders, FileCalls& calls) : folders_(folders), calls_(calls) {}

    /// Those worth something, the newest of each case; removes the others.
    std::vector<Leftover> findIn(const std::string& folder);
    /// Puts it in the place of its case, in one step. \throws RunTimeError; nothing is changed then.
    void restore(const Leftover& leftover);

  private:
    bool isWorthMoreThan(const std::string& path, const std::string& other);
    void removeIfPossible(const std::string& path);

    Folders& folders_;
    FileCalls& calls_;
};

/// Asks about every leftover of a folder whether it is to take its case's place; "Nej" lets it lie.
/// \throws RunTimeError when one that was asked for could not be put in its place.
void askAboutLeftovers(Leftovers& leftovers, MessageBoxes& boxes, const std::string& folder);

} // namespace varno
