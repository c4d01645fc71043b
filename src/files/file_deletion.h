#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/file_calls.h"
#include "base/message_boxes.h"
#include "files/file_chooser.h"

namespace varno {

/// The files that the menu items under "Ta bort" offer: `del1` to `del3`.
inline constexpr std::array deletionPatterns{"*.RES", "*.IND", "*.IND;*.RES"};

inline constexpr const char* deletionCaption = "Ta bort Filer";
inline constexpr const char* confirmationCaption = "Bekräfta";
inline constexpr const char* confirmationQuestion = "Är Du säker på att Du vill ta bort:";

/// The deletion window (`DelFile`) as its rules see it. Entries of the file list count from 0.
class DeletionView : public FileChooserView {
  public:
    virtual int entryCount() const = 0;
    virtual std::string entry(int position) const = 0;
    virtual bool isSelected(int position) const = 0;
    virtual void select(int position, bool selected) = 0;

    /// The check box `bekr`.
    virtual bool confirming() const = 0;
    virtual void setConfirming(bool confirming) = 0;

    /// The confirmation window (`Veri`), modally, with the name in its label and the position in its hidden
    /// one. True for "Ja", false for "Ångra" and for its close box.
    virtual bool confirmed(const std::string& name, const std::string& position) = 0;
    /// The help window with its two labels, modally.
    virtual void showHelp(const std::string& first, const std::string& second) = 0;
};

/// The rules of the deletion window.
class FileDeletion : public FileChooser {
  public:
    FileDeletion(Folders& folders, FileCalls& calls, MessageBoxes& boxes, DeletionView& view)
        : FileChooser(folders, view), calls_(calls), boxes_(boxes), view_(view) {}

    /// The window, modally: with the files of a pattern, in the directory that the file-name dialog was left
    /// in (empty when it was not used). \throws RunTimeError 76 when that is gone.
    void open(const std::string& pattern, const std::string& dialogDirectory);
    /// "Ta bort": the selected files, from the first to the last. A file that cannot be deleted is told and
    /// ends it; that file and the selected ones behind it stay selected.
    void deletePressed();
    void helpPressed();
    void closePressed() { view_.close(); }

  private:
    std::vector<std::string> selectedNames() const;
    void deleteSelected();

    FileCalls& calls_;
    MessageBoxes& boxes_;
    DeletionView& view_;
};

} // namespace varno
