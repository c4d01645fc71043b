#pragma once

#include <functional>
#include <string>

#include "files/file_lists.h"

namespace varno {

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

/// Going about among drives and folders: what the file-name dialog and the deletion window have in common.
class FileChooser {
  public:
    FileChooser(Folders& folders, FileChooserView& view) : lists_(folders), view_(view) {}
    FileChooser(const FileChooser&) = delete;
    FileChooser& operator=(const FileChooser&) = delete;

    FileLists& lists() { return lists_; }

    /// \throws RunTimeError 68 or 76; the lists then stay where they are.
    void driveChosen(const std::string& drive);
    void folderChosen(const std::string& path);

  protected:
    /// Shows the lists again however the step ends: after a drive that is not there, the drive list stands
    /// where the others do.
    void move(const std::function<void()>& step);

  private:
    FileLists lists_;
    FileChooserView& view_;
};

} // namespace varno
