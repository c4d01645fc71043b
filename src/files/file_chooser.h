#pragma once

#include <functional>
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

/// The folder of a full path; a root keeps its backslash.
std::string folderOf(const std::string& path);

/// A window with a drive, a folder and a file list, as its rules see it.
class FileChooserView {
  public:
    virtual ~FileChooserView() = default;
    /// Shows the lists and the path label again; no file is selected then.
    virtual void refreshLists() = 0;
    /// Shows the window, modally, until `close`.
    virtual void run() = 0;
    virtual void close() = 0;
};

/// The drive, directory and file list that belong together in the file-name dialog and the deletion window:
/// changing the drive switches to that drive's current directory, changing the directory updates the files.
class FileChooser {
  public:
    FileChooser(Folders& folders, FileChooserView& view) : folders_(folders), view_(view) {}
    FileChooser(const FileChooser&) = delete;
    FileChooser& operator=(const FileChooser&) = delete;
    virtual ~FileChooser() = default;

    /// The directory that the lists stand in; the process's current directory until another is chosen.
    const std::string& directory();
    const std::string& pattern() const { return pattern_; }
    std::vector<std::string> drives() { return folders_.drives(); }
    /// "C:" of the directory, empty for a network path.
    std::string drive();
    std::vector<FolderRow> folderRows();
    std::vector<std::string> files() { return folders_.files(directory(), pattern_); }
    /// The full path of a file of the list.
    std::string pathOf(const std::string& name);

    void setPattern(const std::string& pattern) { pattern_ = pattern; }
    /// \throws RunTimeError 68 or 76; the lists then stay where they are.
    void changeDrive(const std::string& drive) { directory_ = folders_.currentOf(drive); }
    void changeDirectory(const std::string& path) { directory_ = folders_.resolve(directory(), path); }

    // The window's side: the same, and the lists are shown again.
    void driveChosen(const std::string& drive) {
        move([&] { changeDrive(drive); });
    }
    void folderChosen(const std::string& path) {
        move([&] { changeDirectory(path); });
    }

  protected:
    /// Shows the lists again however the step ends: after a drive that is not there, the drive list stands
    /// where the others do.
    void move(const std::function<void()>& step);
    /// The lists stand elsewhere, or may.
    virtual void moved() {}

  private:
    Folders& folders_;
    FileChooserView& view_;
    std::string directory_;
    std::string pattern_ = "*.*";
};

} // namespace varno
