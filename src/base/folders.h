#pragma once

#include <string>
#include <vector>

namespace varno {

/// What the drive, folder and file lists show. Paths are absolute, with backslashes and without one at the
/// end except for a drive's root ("C:\"). Names come sorted as the user's Windows sorts them.
class Folders {
  public:
    virtual ~Folders() = default;
    /// The current directory of the process.
    virtual std::string current() = 0;
    /// The current directory of a drive ("C:"). \throws RunTimeError 68 when the drive is not there.
    virtual std::string currentOf(const std::string& drive) = 0;
    /// `path`, taken from `base` when relative. \throws RunTimeError 76 when that is no folder.
    virtual std::string resolve(const std::string& base, const std::string& path) = 0;
    /// "A:", "C:" ...
    virtual std::vector<std::string> drives() = 0;
    virtual std::vector<std::string> subfolders(const std::string& path) = 0;
    /// File names that fit one of the patterns of a list such as "*.IND;*.RES".
    virtual std::vector<std::string> files(const std::string& path, const std::string& patterns) = 0;
};

/// Those of Windows.
Folders& systemFolders();

} // namespace varno
