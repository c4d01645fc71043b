#pragma once

#include <cstdint>
#include <string>

#include "base/file_calls.h"
#include "base/message_boxes.h"
#include "base/numbers.h"
#include "files/file_chooser.h"

namespace varno {

/// What the file-name dialog is used for.
struct FileDialogUse {
    const char* caption;
    const char* pattern;
    std::int16_t dialogForSaving; ///< 1 for saving, 0 for choosing an existing file
    int noteLines;                ///< the room below the lists
};
inline constexpr FileDialogUse choosingCase{"Välj Indatafil", "*.IND", 0, 4};
inline constexpr FileDialogUse savingCase{"Spara som..", "*.IND", 1, 2};
inline constexpr FileDialogUse choosingResult{"Välj Resultatfil", "*.RES", 0, 0};

/// The file-name dialog's window (`FileInfo`) as its rules see it.
class FileDialogView : public FileChooserView {
  public:
    virtual void setCaption(const std::string& caption) = 0;
    virtual std::string name() const = 0;
    virtual void setName(const std::string& name) = 0;
    /// Selects the whole text of the text box and gives it the focus.
    virtual void selectName() = 0;
    /// The note below the lists; empty for none.
    virtual void setNote(const std::string& note) = 0;
    virtual void setNoteLines(int lines) = 0;
};

/// The file-name dialog that Open, Save as and the printing of a result share. One for the whole run: it
/// stays in the directory it was left in, and Save writes there.
class FileDialog : public FileChooser {
  public:
    FileDialog(Folders& folders, FileCalls& calls, MessageBoxes& boxes, FileDialogView& view,
               const NumberLocale& locale)
        : FileChooser(folders, view), calls_(calls), boxes_(boxes), view_(view), locale_(locale) {}

    // The caller's side.
    /// Shows the dialog, modally; true for "OK": `typedName` is then the name.
    bool ask(const FileDialogUse& use) { return ask(use, use.dialogForSaving == 1 ? "test" : ""); }
    /// The same with the name that was typed last, to be changed.
    bool askAgain(const FileDialogUse& use) { return ask(use, typedName); }
    std::string typedName; ///< the name accepted with "OK"
    /// The dialog's current directory & "\" & `name`.
    std::string path(const std::string& name) { return directory() + "\\" + name; }

    // The window's side.
    void fileClicked(const std::string& name) { view_.setName(name); }
    /// The text of the box is another: of a case that is to be opened the note tells.
    void nameChanged();
    /// "OK": a text with ":", "\", "*" or "?" moves the lists and leaves the dialog open; any other is the
    /// name. \throws RunTimeError 68 or 76 for a drive or folder that is not there.
    void accepted();
    void cancelled();

  private:
    bool ask(const FileDialogUse& use, const std::string& name);
    void moveLists(const std::string& text);

    void moved() override { nameChanged(); }

    FileCalls& calls_;
    MessageBoxes& boxes_;
    FileDialogView& view_;
    const NumberLocale& locale_;
    bool describing_ = false;
    std::int16_t dialogAnswer_ = 1; ///< the button that closed it: 0 "OK", 1 "Avbryt"
};

} // namespace varno
