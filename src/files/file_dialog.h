#pragma once

#include <cstdint>
#include <string>

#include "base/message_boxes.h"
#include "files/file_lists.h"

namespace varno {

/// The file-name dialog's window (`FileInfo`) as its rules see it.
class FileDialogView {
  public:
    virtual ~FileDialogView() = default;
    virtual std::string name() const = 0;
    virtual void setName(const std::string& name) = 0;
    /// Selects the whole text of the text box and gives it the focus.
    virtual void selectName() = 0;
    virtual void setNote(const std::string& note) = 0;
    /// Shows the lists and the path label again.
    virtual void refreshLists() = 0;
    virtual void close() = 0;
};

/// The file-name dialog that Open, Save as and the printing of a result share. One for the whole run: it
/// stays in the directory it was left in, and Save writes there.
class FileDialog {
  public:
    FileDialog(Folders& folders, MessageBoxes& boxes) : lists_(folders), boxes_(boxes) {}

    // The caller's side: set up, show modally, then read.
    std::int16_t dialogForSaving = 0; ///< 1 for saving, 0 for choosing an existing file
    std::string caption;
    std::int16_t dialogAnswer = 1; ///< the button that closed it: 0 "OK", 1 "Avbryt"
    std::string typedName;         ///< the name accepted with "OK"
    FileLists& lists() { return lists_; }
    /// The dialog's current directory & "\" & `name`.
    std::string path(const std::string& name) { return lists_.directory() + "\\" + name; }

    // The window's side.
    void activated(FileDialogView& view);
    void fileClicked(FileDialogView& view, const std::string& name) { view.setName(name); }
    void driveChosen(FileDialogView& view, const std::string& drive);
    void folderChosen(FileDialogView& view, const std::string& path);
    /// "OK": a text with ":", "\", "*" or "?" moves the lists and leaves the dialog open; any other is the
    /// name. \throws RunTimeError 68 or 76 for a drive or folder that is not there.
    void accepted(FileDialogView& view);
    void cancelled(FileDialogView& view);

  private:
    bool moveLists(const std::string& text);

    FileLists lists_;
    MessageBoxes& boxes_;
};

} // namespace varno
