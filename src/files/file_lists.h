#pragma once

#include <string>
#include <vector>

#include "base/folders.h"

namespace varno {

/// A row of the directory list: the folders from the root down to the current one, then its subfolders.
struct FolderRow {
    std::string name;
    std::string path;
    int depth = 0;
    bool open = false; ///< on the way to the current folder
};

/// The drive, directory and file list that belong together in the file-name dialog and the deletion window:
/// changing the drive switches to that drive's current directory, changing the directory updates the files.
class FileLists {
  public:
    explicit FileLists(Folders& folders) : folders_(folders) {}

    /// The directory that the lists stand in; the process's current directory until another is chosen.
    const std::string& directory();
    const std::string& pattern() const { return pattern_; }

    void setPattern(const std::string& pattern) { pattern_ = pattern; }
    /// \throws RunTimeError 68 or 76; the lists then stay where they are.
    void changeDrive(const std::string& drive);
    void changeDirectory(const std::string& path);

    std::vector<std::string> drives() { return folders_.drives(); }
    /// "C:" of the directory, empty for a network path.
    std::string drive();
    std::vector<FolderRow> folderRows();
    std::vector<std::string> files();
    /// The full path of a file of the list.
    std::string pathOf(const std::string& name);

  private:
    Folders& folders_;
    std::string directory_;
    std::string pattern_ = "*.*";
};

} // namespace varno
